#include "common/pictures/IconFont.h"

#include <QtTest>

// The font file is looked for once per process: here there is none.
class tst_IconFontMissing : public QObject
{
    Q_OBJECT

private slots:
    void missingFileLeavesTextReadable()
    {
        QVERIFY(!QFile::exists(QStringLiteral("Resources/BaseConfig/kelvarimiconfont.ttf")));
        const QFont font = IconFont::getIconFont();
        QCOMPARE(font.family(), QFont().family());
        QCOMPARE(font.pixelSize(), 12);
        QVERIFY(QFontMetrics(font).horizontalAdvance(QStringLiteral("text")) > 12);
    }

    void missingFileStillGivesPictures()
    {
        const QImage image = IconFont::getIconFontPixmap(QStringLiteral("H"), Qt::red, QSize(30, 30), 20).toImage();
        QImage blank = image;
        blank.fill(0);
        QVERIFY(image != blank);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_IconFontMissing, Widgets)
#include "tst_IconFontMissing.moc"
