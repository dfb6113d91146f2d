#include "fakes/PaintedPicture.h"
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

/// What a form paints by.
struct Look
{
    QColor panel{0x20, 0x40, 0x60};
    int iTitle = 0;
    int iLineOffset = 0;
    bool bBody = true;
};

} // namespace

Q_DECLARE_METATYPE(Look)
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
    /// The same by its numbers.
    static QImage byNumbers(const Look &look)
    {
        return paintedOnNothing(QSize(cWidth, cHeight), [&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(look.panel);
            painter.drawRoundedRect(QRectF(2, 2, 76, 56), 2, 2);
            if (look.iTitle > 2) {
                painter.setPen(QColor(255, 255, 255, 1));
                painter.setBrush(QColor(255, 255, 255, 1));
                painter.drawRoundedRect(QRectF(2, 2, 75, look.iTitle - 2), 3, 3);
            }
            const int iLine = look.iTitle + 2;
            painter.fillRect(QRect(QPoint(look.iLineOffset + 2, iLine), QPoint(77, iLine)), QColor(224, 224, 224));
            if (look.bBody) {
                painter.setOpacity(230 / 255.0);
                painter.setPen(QColor(255, 255, 255, 230));
                painter.setBrush(QColor(255, 255, 255, 230));
                painter.drawRoundedRect(
                    QRectF(look.iLineOffset + 4, look.iTitle + 4, 73 - look.iLineOffset, 55 - look.iTitle), 3, 3);
            }
        });
    }

    OwnSkin m_skin;

private slots:
    void init() { m_skin->m_strPanelColor = Look().panel.name(); }

    void objectIsNamedAndHasNoChildren()
    {
        const CBaseFormEx form;
        QCOMPARE(form.objectName(), QStringLiteral("CBaseFormEx"));
        QVERIFY(form.children().isEmpty());
    }

    void formLooksAsNumbersSay_data()
    {
        QTest::addColumn<Look>("look");
        QTest::newRow("no title") << Look();
        QTest::newRow("no title, no body") << Look{Qt::blue, 0, 0, false};
        QTest::newRow("title of 20") << Look{Look().panel, 20};
        QTest::newRow("title of 36") << Look{Look().panel, 36};
        QTest::newRow("title of 20, no body") << Look{Look().panel, 20, 0, false};
        QTest::newRow("line further right") << Look{Look().panel, 20, 20};
        // What the title's strip of the lowest alpha lightens.
        QTest::newRow("black panel") << Look{Qt::black, 20, 0, false};
        for (const int iHeight : {3, 2, 1, -1, -40}) {
            QTest::addRow("title of %d", iHeight) << Look{Qt::black, iHeight, 0, false};
        }
    }

    void formLooksAsNumbersSay()
    {
        QFETCH(Look, look);
        m_skin->m_strPanelColor = look.panel.name();
        CBaseFormEx form;
        form.setTitleHeight(look.iTitle);
        form.setPaintLineOffset(look.iLineOffset + 3);
        form.setNoSeparate(!look.bBody);
        comparePictures(painted(form), byNumbers(look),
                        qPrintable(QStringLiteral("form-") + QLatin1String(QTest::currentDataTag())));
        form.setTitleHeight(0);
        form.setTitleHeightEx(look.iTitle);
        QCOMPARE(painted(form), byNumbers(look));
    }

    void titlePictureIsNeverSetSoTheTitleHasNoHeight()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setTitleImage(QStringLiteral("title.png"));
        QCOMPARE(painted(form), byNumbers({}));
    }

    void smallLineOffsetLeavesTheOldOne()
    {
        CBaseFormEx form;
        for (const int iOffset : {3, 0, -7}) {
            form.setPaintLineOffset(iOffset);
            QCOMPARE(painted(form), byNumbers({}));
        }
        form.setPaintLineOffset(13);
        form.setPaintLineOffset(3);
        QCOMPARE(painted(form), byNumbers({Look().panel, 0, 10}));
        form.setPaintLineOffset(4);
        QCOMPARE(painted(form), byNumbers({Look().panel, 0, 1}));
    }

    void bodyComesBack()
    {
        CBaseFormEx form;
        form.setNoSeparate(true);
        form.setNoSeparate(false);
        QCOMPARE(painted(form), byNumbers({}));
    }

    void noneShadowLeavesTheFormTransparent()
    {
        CBaseFormEx form;
        form.setTitleHeight(20);
        form.setNoneShadow(true);
        QCOMPARE(painted(form), paintedOnNothing(QSize(cWidth, cHeight), [](QPainter &) {}));
        form.setNoneShadow(false);
        QCOMPARE(painted(form), byNumbers({Look().panel, 20}));
    }

    void newSkinShowsAtTheNextPaint()
    {
        CBaseFormEx form;
        SysUIData other;
        other.m_strPanelColor = QStringLiteral("#ff0000");
        form.setSkinData(other);
        QCOMPARE(painted(form), byNumbers({}));
        m_skin->m_strPanelColor = QStringLiteral("#336699");
        QCOMPARE(painted(form), byNumbers({QColor(0x33, 0x66, 0x99)}));
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
        act(form);
        QCOMPARE(painted(form), byNumbers({}));
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
