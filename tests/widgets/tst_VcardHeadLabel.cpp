#include "common/BuiltInPictures.h"
#include "fakes/PaintedPicture.h"
#include "fakes/PictureFiles.h"
#include "widgets/VcardHeadLabel.h"

#include <QTest>

class tst_VcardHeadLabel : public QObject
{
    Q_OBJECT

private:
    static constexpr int cSide = 60;

    static QString photo(const QString &strName, const QColor &color, const char *pFormat)
    {
        return PictureFiles::writeBytes(strName,
                                        PictureFiles::encoded(PictureFiles::plain(QSize(40, 20), color), pFormat));
    }
    static QImage shown(const VcardHeadLabel &label) { return pixelsOf(label.pixmap(Qt::ReturnByValue)); }
    /// What a label shows of that file.
    static QImage headOf(const QString &strPath, const VcardHeadLabel &label)
    {
        return pixelsOf(roundByNumbers(QPixmap(strPath), qRound(cSide * label.devicePixelRatioF())));
    }

private slots:
    void initTestCase()
    {
        QVERIFY(QDir().mkpath(QFileInfo(strDEFAULT_HEAD_PATH).path()));
        QVERIFY(!photo(strDEFAULT_HEAD_PATH, Qt::green, "PNG").isEmpty());
    }

    void headIsAsWideAsTheLabelAndRound()
    {
        VcardHeadLabel label;
        label.setFixedSize(cSide, cSide);
        label.setHeadPictrue(photo(QStringLiteral("blue.png"), Qt::blue, "PNG"));
        QCOMPARE(shown(label), headOf(QStringLiteral("blue.png"), label));
        QCOMPARE(label.pixmap(Qt::ReturnByValue).devicePixelRatioF(), label.devicePixelRatioF());
        const QImage painted = paintedLike(
            label, [](QPainter &painter) { paintHeadByNumbers(painter, QPoint(), QStringLiteral("blue.png"), cSide); });
        comparePictures(label.grab().toImage().convertToFormat(QImage::Format_RGB32), painted, "head-label");
    }

    void widthIsTheOneOfTheCall()
    {
        VcardHeadLabel label;
        label.resize(cSide, 2 * cSide);
        label.setHeadPictrue(photo(QStringLiteral("blue.png"), Qt::blue, "PNG"));
        QCOMPARE(shown(label).size(), QSize(cSide, cSide) * label.devicePixelRatioF());
    }

    void newHeadTakesTheOldOnesPlace()
    {
        VcardHeadLabel label;
        label.setFixedSize(cSide, cSide);
        label.setHeadPictrue(photo(QStringLiteral("blue.png"), Qt::blue, "PNG"));
        label.setHeadPictrue(photo(QStringLiteral("red.png"), Qt::red, "PNG"));
        QCOMPARE(shown(label), headOf(QStringLiteral("red.png"), label));
    }

    void badPictureGivesTheDefaultHead_data() { PictureFiles::addBadPictureRows(); }

    void badPictureGivesTheDefaultHead()
    {
        QFETCH(QString, path);
        VcardHeadLabel label;
        label.setFixedSize(cSide, cSide);
        label.setHeadPictrue(path);
        QCOMPARE(shown(label), headOf(strDEFAULT_HEAD_PATH, label));
    }

    void withoutTheDefaultHeadTheLabelIsEmpty()
    {
        const QString strElsewhere = QDir::currentPath() + QStringLiteral("/elsewhere");
        const QString strHere = QDir::currentPath();
        QVERIFY(QDir().mkpath(strElsewhere));
        QVERIFY(QDir::setCurrent(strElsewhere));
        VcardHeadLabel label;
        label.setFixedSize(cSide, cSide);
        label.setHeadPictrue(QString());
        QVERIFY(QDir::setCurrent(strHere));
        QVERIFY(shown(label).isNull());
    }

    void fileGetsTheSuffixOfWhatItHolds()
    {
        const QString strWrong = photo(QStringLiteral("really.png"), Qt::blue, "JPG");
        QVERIFY(!strWrong.isEmpty());
        VcardHeadLabel label;
        label.setFixedSize(cSide, cSide);
        label.setHeadPictrue(strWrong);
        QVERIFY(!QFile::exists(strWrong));
        QVERIFY(QFile::exists(QStringLiteral("really.jpg")));
        QCOMPARE(shown(label), headOf(QStringLiteral("really.jpg"), label));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VcardHeadLabel, Widgets)

#include "tst_VcardHeadLabel.moc"
