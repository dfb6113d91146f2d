#include "common/pictures/IconFont.h"
#include "common/pictures/IconGlyphs.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QTextLayout>
#include <QtTest>

#include <memory>

// The font file is looked for once per process: here there is the one that ships.
class tst_IconFont : public QObject
{
    Q_OBJECT

private:
    // The smallest rectangle that holds every pixel that is not fully transparent.
    static QRect inkOf(const QImage &image)
    {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) != 0) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    // The families that a text in the icon font is drawn with.
    static QStringList familiesOf(const QString &strText)
    {
        QTextLayout layout(strText, IconFont::getIconFont());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QStringList families;
        for (const QGlyphRun &run : layout.glyphRuns()) {
            families.append(run.rawFont().familyName());
        }
        families.removeDuplicates();
        return families;
    }

private slots:
    void initTestCase()
    {
        const QString strShipped = QStringLiteral(VOIP_RESOURCES "/BaseConfig/kelvarimiconfont.ttf");
        QFont::insertSubstitution(QStringLiteral("微软雅黑"), QStringLiteral("Noto Sans CJK SC"));
        QVERIFY(QDir().mkpath(QStringLiteral("Resources/BaseConfig")));
        QVERIFY(QFile::copy(strShipped, QStringLiteral("Resources/BaseConfig/kelvarimiconfont.ttf")));
        const int iFont = QFontDatabase::addApplicationFont(strShipped);
        m_strFamily = QFontDatabase::applicationFontFamilies(iFont).value(0);
        QVERIFY(!m_strFamily.isEmpty());
        QVERIFY(m_strFamily != QFont().family());
    }

    void fontOfTheFileHasTwelvePixels()
    {
        const QFont font = IconFont::getIconFont();
        QCOMPARE(font.family(), m_strFamily);
        QCOMPARE(font.pixelSize(), 12);
        QCOMPARE(font.styleStrategy(), QFont::PreferAntialias);
    }

    void lettersComeFromTheTextFont()
    {
        const QStringList families = familiesOf(QStringLiteral("【语音会议】 2024-03-06 16:20:05"));
        QCOMPARE(families, QStringList{QStringLiteral("Noto Sans CJK SC")});
        QCOMPARE(familiesOf(IconGlyph::text(IconGlyph::CreatedByMe)), QStringList{m_strFamily});
    }

    void fileIsReadOncePerProcess()
    {
        IconFont::getIconFont();
        QVERIFY(QFile::remove(QStringLiteral("Resources/BaseConfig/kelvarimiconfont.ttf")));
        QCOMPARE(IconFont::getIconFont().family(), m_strFamily);
    }

    void callerGetsACopy()
    {
        QFont font = IconFont::getIconFont();
        font.setPixelSize(40);
        font.setFamily(QStringLiteral("changed"));
        QCOMPARE(IconFont::getIconFont().pixelSize(), 12);
        QCOMPARE(IconFont::getIconFont().family(), m_strFamily);
    }

    void fontOfTheContextGoesFirstAndStaysAsItIs()
    {
        QFont hosts(QStringLiteral("hosts own"));
        hosts.setPixelSize(33);
        hosts.setStyleStrategy(QFont::NoAntialias);
        CommonData context;
        const GivenContext given(context);
        QCOMPARE(IconFont::getIconFont().family(), m_strFamily);
        context.setIconFont(&hosts);
        QCOMPARE(IconFont::getIconFont(), hosts);
        QFont copy = IconFont::getIconFont();
        copy.setPixelSize(5);
        QCOMPARE(hosts.pixelSize(), 33);
    }

    void glyphIsCentredInItsColour()
    {
        const QImage image = IconFont::getIconFontPixmap(IconGlyph::text(IconGlyph::DesktopOnline),
                                                         QColor(0x12, 0x34, 0x56), QSize(64, 48), 40)
                                 .toImage();
        QCOMPARE(image.size(), QSize(64, 48));
        const QRect ink = inkOf(image);
        QVERIFY(ink.height() > 15);
        // Half a pixel of the glyph's side bearings may fall to either side.
        QVERIFY2(qAbs(ink.left() - (63 - ink.right())) <= 2, qPrintable(QString::number(ink.left())));
        for (const QPoint &corner :
             {image.rect().topLeft(), image.rect().topRight(), image.rect().bottomLeft(), image.rect().bottomRight()}) {
            QCOMPARE(image.pixel(corner), QRgb(0));
        }
        int iFull = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                iFull += image.pixelColor(x, y) == QColor(0x12, 0x34, 0x56) ? 1 : 0;
            }
        }
        QVERIFY(iFull > 50);
    }

    void glyphIsCentredAlsoFromTopToBottom()
    {
        const auto inkAt = [](int iHeight) {
            return inkOf(IconFont::getIconFontPixmap(IconGlyph::text(IconGlyph::DesktopOnline), Qt::black,
                                                     QSize(64, iHeight), 40)
                             .toImage());
        };
        QCOMPARE(inkAt(48).translated(0, 10), inkAt(68));
    }

    void pixelSizeScalesTheGlyph()
    {
        const auto heightAt = [](int iPixelSize) {
            return inkOf(IconFont::getIconFontPixmap(IconGlyph::text(IconGlyph::DesktopOnline), Qt::black,
                                                     QSize(90, 90), iPixelSize)
                             .toImage())
                .height();
        };
        QVERIFY(heightAt(20) > 8);
        QVERIFY(qAbs(heightAt(40) - 2 * heightAt(20)) <= 2);
        QCOMPARE(heightAt(0), heightAt(12));
        QCOMPARE(heightAt(-3), heightAt(12));
    }

    void emptyGlyphGivesATransparentPicture()
    {
        const QImage image = IconFont::getIconFontPixmap(QString(), Qt::red, QSize(9, 7), 12).toImage();
        QCOMPARE(image.size(), QSize(9, 7));
        QVERIFY(inkOf(image).isNull());
    }

    void emptySizeGivesANullPixmap_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("no size") << QSize();
        QTest::newRow("nothing") << QSize(0, 0);
        QTest::newRow("no height") << QSize(10, 0);
        QTest::newRow("negative") << QSize(-10, 10);
    }
    void emptySizeGivesANullPixmap()
    {
        QFETCH(QSize, size);
        QVERIFY(IconFont::getIconFontPixmap(IconGlyph::text(IconGlyph::DesktopOnline), Qt::red, size, 12).isNull());
    }

    void presenceHasItsGlyph_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("glyph");
        QTest::newRow("kind is tested before status") << 0 << 0 << 0xE628;
        QTest::newRow("computer 1") << 1 << 0 << 0xE625;
        QTest::newRow("computer 2") << 2 << 0 << 0xE627;
        QTest::newRow("computer 3") << 3 << 0 << 0xE627;
        QTest::newRow("computer 4") << 4 << 0 << 0xE626;
        QTest::newRow("computer 5") << 5 << 0 << 0xE625;
        QTest::newRow("computer -1") << -1 << 0 << 0xE625;
        QTest::newRow("kind 1, status 0") << 0 << 1 << 0xE698;
        QTest::newRow("kind 2, status 0") << 0 << 2 << 0xE699;
        QTest::newRow("kind 3, status 0") << 0 << 3 << 0xF624;
        QTest::newRow("kind -1, status 0") << 0 << -1 << 0xF624;
        QTest::newRow("kind 1, status 1") << 1 << 1 << 0xE6A1;
        QTest::newRow("kind 1, status -1") << -1 << 1 << 0xE6A1;
        QTest::newRow("kind 2, status 4") << 4 << 2 << 0xE69E;
        QTest::newRow("kind 3, status 1") << 1 << 3 << 0xE62D;
        QTest::newRow("kind -1, status -1") << -1 << -1 << 0xE62D;
    }
    void presenceHasItsGlyph()
    {
        QFETCH(int, status);
        QFETCH(int, kind);
        QFETCH(int, glyph);
        QCOMPARE(IconFont::getStatusTypeName(status, kind, false), QString(QChar(glyph)));
        QCOMPARE(IconFont::getStatusTypeName(status, kind, true), QString(QChar(glyph)));
    }

private:
    QString m_strFamily;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_IconFont, Widgets)
#include "tst_IconFont.moc"
