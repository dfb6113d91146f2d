#include "common/BuiltInPictures.h"
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
    static QImage shown(const VcardHeadLabel &label) { return label.pixmap(Qt::ReturnByValue).toImage(); }

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
        const QImage head = shown(label);
        const qreal dRatio = label.devicePixelRatioF();
        QCOMPARE(head.size(), QSize(cSide, cSide) * dRatio);
        QCOMPARE(head.devicePixelRatio(), dRatio);
        QCOMPARE(head.pixelColor(head.rect().center()), QColor(Qt::blue));
        const QRect corners = head.rect();
        for (const QPoint &corner :
             {corners.topLeft(), corners.topRight(), corners.bottomLeft(), corners.bottomRight()}) {
            QCOMPARE(head.pixelColor(corner).alpha(), 0);
        }
        QCOMPARE(head.pixelColor(corners.center().x(), 1).alpha(), 255);
        QCOMPARE(label.grab().toImage().pixelColor(head.rect().center()), QColor(Qt::blue));
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
        QCOMPARE(shown(label).pixelColor(shown(label).rect().center()), QColor(Qt::red));
    }

    void badPictureGivesTheDefaultHead_data() { PictureFiles::addBadPictureRows(); }

    void badPictureGivesTheDefaultHead()
    {
        QFETCH(QString, path);
        VcardHeadLabel label;
        label.setFixedSize(cSide, cSide);
        label.setHeadPictrue(path);
        QCOMPARE(shown(label).pixelColor(shown(label).rect().center()), QColor(Qt::green));
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
        QVERIFY(shown(label).pixelColor(shown(label).rect().center()).blue() > 250);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VcardHeadLabel, Widgets)

#include "tst_VcardHeadLabel.moc"
