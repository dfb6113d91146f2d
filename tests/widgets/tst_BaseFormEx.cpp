#include "fakes/Patience.h"
#include "widgets/BaseFormEx.h"
#include "widgets/OwnSkin.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

#include <functional>

namespace {

/// Counts how often it was asked to paint.
class CountingForm : public CBaseFormEx
{
public:
    int m_iPaints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++m_iPaints;
        CBaseFormEx::paintEvent(event);
    }
};

} // namespace

using FormAct = std::function<void(CBaseFormEx &)>;
Q_DECLARE_METATYPE(FormAct)

class tst_BaseFormEx : public QObject
{
    Q_OBJECT

private:
    static constexpr int cWidth = 80;
    static constexpr int cHeight = 60;

    // What the form itself paints, on nothing.
    static QImage painted(CBaseFormEx &form)
    {
        form.resize(cWidth, cHeight);
        QImage image(cWidth, cHeight, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        form.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }
    static bool isNear(const QColor &color, const QColor &other, int iTolerance)
    {
        return qAbs(color.red() - other.red()) <= iTolerance && qAbs(color.green() - other.green()) <= iTolerance &&
               qAbs(color.blue() - other.blue()) <= iTolerance && qAbs(color.alpha() - other.alpha()) <= iTolerance;
    }
    // The first and the last column of the row that have the line's colour; -1 for none.
    static QPair<int, int> lineInRow(const QImage &image, int y)
    {
        QPair<int, int> ends(-1, -1);
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != cLine) {
                continue;
            }
            if (ends.first < 0) {
                ends.first = x;
            }
            ends.second = x;
        }
        return ends;
    }

    inline static const QColor cPanel{0x20, 0x40, 0x60};
    inline static const QColor cLine{224, 224, 224};
    OwnSkin m_skin;

private slots:
    void init() { m_skin->m_strPanelColor = cPanel.name(); }

    void objectIsNamedAndHasNoChildren()
    {
        const CBaseFormEx form;
        QCOMPARE(form.objectName(), QStringLiteral("CBaseFormEx"));
        QVERIFY(form.children().isEmpty());
    }

    void panelHasTheSkinsColourAndLeavesAnEdgeFree()
    {
        CBaseFormEx form;
        form.setNoSeparate(true);
        const QImage image = painted(form);
        QCOMPARE(image.pixelColor(cWidth / 2, cHeight / 2), cPanel);
        QCOMPARE(image.pixelColor(2, cHeight / 2), cPanel);
        QCOMPARE(image.pixelColor(cWidth - 3, cHeight / 2), cPanel);
        QCOMPARE(image.pixelColor(cWidth / 2, cHeight - 3), cPanel);
        for (int x = 0; x < cWidth; ++x) {
            for (const int y : {0, 1, cHeight - 2, cHeight - 1}) {
                QCOMPARE(image.pixelColor(x, y).alpha(), 0);
            }
        }
        for (int y = 0; y < cHeight; ++y) {
            for (const int x : {0, 1, cWidth - 2, cWidth - 1}) {
                QCOMPARE(image.pixelColor(x, y).alpha(), 0);
            }
        }
    }

    void panelsCornersAreRounded()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setNoSeparate(true);
        const QImage image = painted(form);
        for (const QPoint &corner :
             {QPoint(2, 2), QPoint(cWidth - 3, 2), QPoint(2, cHeight - 3), QPoint(cWidth - 3, cHeight - 3)}) {
            const int iAlpha = image.pixelColor(corner).alpha();
            QVERIFY2(iAlpha > 40 && iAlpha < 215, qPrintable(QString::number(iAlpha)));
        }
        // The radius is 2 pixels: three pixels into the panel it is solid.
        for (const QPoint &inside : {QPoint(4, 4), QPoint(cWidth - 5, cHeight - 5)}) {
            QCOMPARE(image.pixelColor(inside).alpha(), 255);
        }
    }

    void titleStripIsWhiteAtTheLowestAlpha()
    {
        m_skin->m_strPanelColor = QStringLiteral("#000000");
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setNoSeparate(true);
        const QImage image = painted(form);
        QCOMPARE(image.pixelColor(cWidth / 2, 10), QColor(1, 1, 1));
        QCOMPARE(image.pixelColor(cWidth / 2, 18), QColor(1, 1, 1));
        QCOMPARE(image.pixelColor(cWidth / 2, 21), QColor(0, 0, 0));
        QCOMPARE(image.pixelColor(cWidth / 2, 40), QColor(0, 0, 0));
    }

    void titleOfNoHeightPaintsNoStrip_data()
    {
        QTest::addColumn<int>("height");
        for (const int iHeight : {2, 1, 0, -1, -40}) {
            QTest::addRow("%d", iHeight) << iHeight;
        }
    }

    void titleOfNoHeightPaintsNoStrip()
    {
        QFETCH(int, height);
        m_skin->m_strPanelColor = QStringLiteral("#000000");
        CBaseFormEx form;
        form.setTitleHeight(height);
        form.setNoSeparate(true);
        const QImage image = painted(form);
        // A strip lightens the black panel, and where there is none it leaves the lowest alpha.
        for (int y = 0; y < cHeight; ++y) {
            if (y == height + 2) {
                continue;
            }
            const QColor expected = y < 2 || y >= cHeight - 2 ? QColor(0, 0, 0, 0) : QColor(0, 0, 0);
            QCOMPARE(image.pixelColor(cWidth / 2, y), expected);
        }
    }

    void lineRunsUnderTheTitle_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("row");
        QTest::newRow("no title: y = 2") << 0 << 2;
        QTest::newRow("title of 36") << 36 << 38;
    }

    void lineRunsUnderTheTitle()
    {
        QFETCH(int, height);
        QFETCH(int, row);
        CBaseFormEx scaled;
        scaled.setTitleHeight(height);
        CBaseFormEx plain;
        plain.setTitleHeightEx(height);
        for (CBaseFormEx *pForm : {&scaled, &plain}) {
            const QImage image = painted(*pForm);
            QCOMPARE(lineInRow(image, row), qMakePair(2, cWidth - 3));
            QCOMPARE(lineInRow(image, row - 1), qMakePair(-1, -1));
            QCOMPARE(lineInRow(image, row + 1), qMakePair(-1, -1));
        }
    }

    void titlePictureIsNeverSetSoTheTitleHasNoHeight()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setTitleImage(QStringLiteral("title.png"));
        QCOMPARE(lineInRow(painted(form), 2), qMakePair(2, cWidth - 3));
    }

    void smallLineOffsetLeavesTheOldOne()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        for (const int iOffset : {3, 0, -7}) {
            form.setPaintLineOffset(iOffset);
            QCOMPARE(lineInRow(painted(form), 22).first, 2);
        }
        form.setPaintLineOffset(13);
        form.setPaintLineOffset(3);
        QCOMPARE(lineInRow(painted(form), 22).first, 12);
        form.setPaintLineOffset(4);
        QCOMPARE(lineInRow(painted(form), 22).first, 3);
    }

    void lineOffsetMovesLineAndBody()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setPaintLineOffset(23);
        const QImage image = painted(form);
        QCOMPARE(lineInRow(image, 22), qMakePair(22, cWidth - 3));
        QCOMPARE(image.pixelColor(22, 40), cPanel);
        QVERIFY(image.pixelColor(26, 40).red() > 200);
        QVERIFY(image.pixelColor(cWidth - 5, 40).red() > 200);
    }

    void bodyIsWhiteWithTheSkinFaintlyThrough()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        const double dWhite = (230 / 255.0) * (230 / 255.0);
        const auto blend = [&](int iPanel) { return qRound(255 * dWhite + iPanel * (1 - dWhite)); };
        const QColor expected(blend(cPanel.red()), blend(cPanel.green()), blend(cPanel.blue()));
        const QImage image = painted(form);
        for (const QPoint &point :
             {QPoint(cWidth / 2, 40), QPoint(6, 40), QPoint(cWidth / 2, 26), QPoint(cWidth - 6, 40)}) {
            QVERIFY2(isNear(image.pixelColor(point), expected, 2), qPrintable(image.pixelColor(point).name()));
        }
        QCOMPARE(image.pixelColor(cWidth / 2, 12).red(), cPanel.red() + 1);
    }

    void bodysCornersAreRounded()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        const QImage image = painted(form);
        const int iInside = image.pixelColor(cWidth / 2, 40).red();
        // The rounded corner leaves the panel's colour where a square one would be white.
        QVERIFY(image.pixelColor(4, 24).red() < iInside - 20);
        QVERIFY(image.pixelColor(cWidth - 4, 24).red() < iInside - 20);
        QCOMPARE(image.pixelColor(7, 28).red(), iInside);
    }

    void noSeparateHidesTheBodyNotTheLine()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setNoSeparate(true);
        QImage image = painted(form);
        QCOMPARE(lineInRow(image, 22), qMakePair(2, cWidth - 3));
        QCOMPARE(image.pixelColor(cWidth / 2, 40), cPanel);
        form.setNoSeparate(false);
        image = painted(form);
        QCOMPARE(lineInRow(image, 22), qMakePair(2, cWidth - 3));
        QVERIFY(image.pixelColor(cWidth / 2, 40) != cPanel);
    }

    void noneShadowLeavesTheFormTransparent()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setNoneShadow(true);
        QImage nothing(cWidth, cHeight, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        QCOMPARE(painted(form), nothing);
        form.setNoneShadow(false);
        QVERIFY(painted(form) != nothing);
    }

    void newSkinShowsAtTheNextPaint()
    {
        CBaseFormEx form;
        form.setNoSeparate(true);
        SysUIData other;
        other.m_strPanelColor = QStringLiteral("#ff0000");
        form.setSkinData(other);
        QCOMPARE(painted(form).pixelColor(40, 40), cPanel);
        m_skin->m_strPanelColor = QStringLiteral("#336699");
        QCOMPARE(painted(form).pixelColor(40, 40), QColor(0x33, 0x66, 0x99));
    }

    void storedFlagsDoNotChangeTheLook_data()
    {
        QTest::addColumn<FormAct>("act");
        QTest::newRow("setOnlyMainWindow") << FormAct([](CBaseFormEx &form) { form.setOnlyMainWindow(true); });
        QTest::newRow("setPaintPic") << FormAct([](CBaseFormEx &form) { form.setPaintPic(true); });
        QTest::newRow("setWhiteTranspatent") << FormAct([](CBaseFormEx &form) { form.setWhiteTranspatent(true); });
    }

    void storedFlagsDoNotChangeTheLook()
    {
        QFETCH(FormAct, act);
        CBaseFormEx form;
        form.setTitleHeight(20);
        const QImage before = painted(form);
        act(form);
        QCOMPARE(painted(form), before);
    }

    void pictureOfTheBodyNeverShows()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        const QImage without = painted(form);
        const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/Resources/images/CommonCtrls"));
        const QString strPicture = folder.filePath(QStringLiteral("bg_main.png"));
        const bool bOwn = !QFile::exists(strPicture);
        if (bOwn) {
            QImage red(8, 8, QImage::Format_RGB32);
            red.fill(Qt::red);
            QVERIFY(QDir().mkpath(folder.path()));
            QVERIFY(red.save(strPicture));
        }
        const QImage with = painted(form);
        if (bOwn) {
            QVERIFY(QFile::remove(strPicture));
        }
        QCOMPARE(with, without);
    }

    void onlyTheTitlePictureAsksForAPaint_data()
    {
        QTest::addColumn<FormAct>("act");
        QTest::addColumn<bool>("paints");
        const auto row = [](const char *name, const FormAct &act, bool bPaints) {
            QTest::newRow(name) << act << bPaints;
        };
        row(
            "setTitleImage", [](CBaseFormEx &form) { form.setTitleImage(QString()); }, true);
        row(
            "setTitleHeight", [](CBaseFormEx &form) { form.setTitleHeight(30); }, false);
        row(
            "setTitleHeightEx", [](CBaseFormEx &form) { form.setTitleHeightEx(30); }, false);
        row(
            "setPaintLineOffset", [](CBaseFormEx &form) { form.setPaintLineOffset(30); }, false);
        row(
            "setNoSeparate", [](CBaseFormEx &form) { form.setNoSeparate(true); }, false);
        row(
            "setNoneShadow", [](CBaseFormEx &form) { form.setNoneShadow(true); }, false);
        row(
            "setWhiteTranspatent", [](CBaseFormEx &form) { form.setWhiteTranspatent(true); }, false);
        row(
            "setOnlyMainWindow", [](CBaseFormEx &form) { form.setOnlyMainWindow(true); }, false);
        row(
            "setPaintPic", [](CBaseFormEx &form) { form.setPaintPic(true); }, false);
        row(
            "setSkinData", [](CBaseFormEx &form) { form.setSkinData(SysUIData()); }, false);
    }

    void onlyTheTitlePictureAsksForAPaint()
    {
        QFETCH(FormAct, act);
        QFETCH(bool, paints);
        CountingForm form;
        form.resize(cWidth, cHeight);
        form.setAttribute(Qt::WA_DontShowOnScreen);
        form.show();
        QTRY_VERIFY_WITH_TIMEOUT(form.m_iPaints > 0, cPatienceMs);
        QCoreApplication::processEvents();
        const int iBefore = form.m_iPaints;
        act(form);
        QCoreApplication::processEvents();
        QCOMPARE(form.m_iPaints > iBefore, paints);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_BaseFormEx, Widgets)

#include "tst_BaseFormEx.moc"
