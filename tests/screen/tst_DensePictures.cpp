// Shipped pictures where windows show them: on this screen's density each pixel is the picture's own, none is enlarged.

#include "ComparedPicture.h"
#include "PictureSetting.h"

#include "fakes/Patience.h"
#include "model/SkinContext.h"
#include "model/SysUIData.h"
#include "ui/ContactFixture.h"
#include "ui/VoiceConferenceWidget.h"
#include "ui/VoipWidget.h"
#include "widgets/MenuEx.h"

#include <QApplication>
#include <QCheckBox>
#include <QPainter>
#include <QProcess>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include <memory>

namespace {

const QString cBack = QStringLiteral("images/CommonCtrls/kvim_common_back_normal");
const QString cTick = QStringLiteral("images/CommonCtrls/kvim_list_ic_selected");
const QString cGroove = QStringLiteral("images/skins/bg_slider_vertical");

int density()
{
    return qRound(qApp->devicePixelRatio());
}

QString fileOf(const QString &strPicture, int iDensity)
{
    return iDensity == 1 ? strPicture + QStringLiteral(".png")
                         : QStringLiteral("%1@%2x.png").arg(strPicture).arg(iDensity);
}

QRect dense(const QRect &part)
{
    return {part.topLeft() * density(), part.size() * density()};
}

/// The part, in the picture's own size, of the shipped picture for this screen, on white.
QImage shipped(const QString &strPicture, const QRect &part)
{
    const QImage picture(QStringLiteral(VOIP_RESOURCES "/") + fileOf(strPicture, density()));
    if (picture.isNull()) {
        return {};
    }
    QImage onWhite(picture.size(), QImage::Format_RGB32);
    onWhite.fill(Qt::white);
    QPainter painter(&onWhite);
    painter.drawImage(onWhite.rect(), picture, picture.rect());
    painter.end();
    return onWhite.copy(dense(part));
}

/// Whether the picture stands somewhere in what is shown, each pixel as it is.
bool holds(const QImage &shown, const QImage &picture)
{
    if (picture.isNull()) {
        return false;
    }
    for (int y = 0; y <= shown.height() - picture.height(); ++y) {
        for (int x = 0; x <= shown.width() - picture.width(); ++x) {
            if (shown.copy(x, y, picture.width(), picture.height()) == picture) {
                return true;
            }
        }
    }
    return false;
}

template <class Button>
std::unique_ptr<Button> button(const QString &strStyle, bool bChecked, bool bEnabled)
{
    auto pButton = std::make_unique<Button>(QStringLiteral("text"));
    pButton->setStyleSheet(strStyle);
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    pButton->setPalette(palette);
    pButton->setChecked(bChecked);
    pButton->setEnabled(bEnabled);
    return pButton;
}

/// The head as the drawing gives it at that size.
QImage drawnHead(const QString &strDrawing, int iSide)
{
    QProcess renderer;
    renderer.start(QStringLiteral("rsvg-convert"),
                   {"-w", QString::number(iSide), "-h", QString::number(iSide),
                    QStringLiteral(VOIP_RESOURCES "/drawings/") + strDrawing + QStringLiteral(".svg")});
    renderer.waitForFinished(-1);
    return QImage::fromData(renderer.readAllStandardOutput()).convertToFormat(QImage::Format_RGB32);
}

} // namespace

class tst_DensePictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QStringList files;
        for (const char *indicator : {"checkbox_normal", "checkbox_pressed", "checkbox_disable", "radio_normal",
                                      "radio_pressed", "radio_disable"}) {
            files.append(QStringLiteral("images/icon/btn_") + QLatin1String(indicator));
        }
        files << cBack << cTick << cGroove;
        for (QString &file : files) {
            file.append(QStringLiteral(".png"));
        }
        const QString strMissing = PictureSetting::prepare(files);
        QVERIFY2(strMissing.isEmpty(), qPrintable(strMissing));
    }

    void init()
    {
        m_pContacts = std::make_unique<ContactFixture>();
        PictureSetting::addContacts(*m_pContacts);
    }

    void cleanup() { m_pContacts.reset(); }

    void indicatorIsThePicture_data()
    {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("enabled");

        for (const char *kind : {"checkbox", "radio"}) {
            const QString picture = QStringLiteral("images/icon/btn_%1_").arg(QLatin1String(kind));
            QTest::addRow("%s", kind) << picture + QStringLiteral("normal") << false << true;
            QTest::addRow("%s, chosen", kind) << picture + QStringLiteral("pressed") << true << true;
            QTest::addRow("%s, disabled", kind) << picture + QStringLiteral("disable") << false << false;
        }
    }

    void indicatorIsThePicture()
    {
        QFETCH(QString, picture);
        QFETCH(bool, checked);
        QFETCH(bool, enabled);
        const SysUIData &skin = *SkinContext::getSkinData();
        std::unique_ptr<QAbstractButton> pButton;
        if (picture.contains(QLatin1String("radio"))) {
            pButton = button<QRadioButton>(skin.m_strRadioButtonStyle + skin.m_strRadioButtonCheckedStyle +
                                               skin.m_strRadioButtonDisabledStyle,
                                           checked, enabled);
        } else {
            pButton = button<QCheckBox>(skin.m_strCheckBoxStyle + skin.m_strCheckBoxCheckedStyle +
                                            skin.m_strCheckBoxDisabledStyle,
                                        checked, enabled);
        }
        pButton->move(200, 200);
        pButton->show();
        QVERIFY(QTest::qWaitForWindowExposed(pButton.get(), cPatienceMs));
        QVERIFY(holds(ComparedPicture::of(pButton.get()), shipped(picture, QRect(0, 0, 16, 16))));
    }

    void tickOfAMenuIsThePicture()
    {
        CMenuEx menu;
        menu.setMenuType(CMenuEx::CheckMenu);
        QAction *pEntry = menu.addAction(QStringLiteral("text"));
        pEntry->setCheckable(true);
        pEntry->setChecked(true);
        menu.popup(QPoint(200, 200));
        QVERIFY(QTest::qWaitForWindowExposed(&menu, cPatienceMs));
        QVERIFY(holds(ComparedPicture::of(&menu), shipped(cTick, QRect(0, 0, 15, 15))));
    }

    // The arrow in the middle of its left edge; the text stands to the right of it.
    void backButtonIsThePicture()
    {
        CVoiceConferenceWidget centre;
        auto *pBack = centre.findChild<QWidget *>(QStringLiteral("backBtn"));
        pBack->show();
        centre.move(200, 200);
        centre.show();
        QVERIFY(QTest::qWaitForWindowExposed(&centre, cPatienceMs));
        QVERIFY(holds(ComparedPicture::of(pBack), shipped(cBack, QRect(2, 4, 6, 12))));
    }

    // The handle stands in the middle.
    void volumeSliderIsThePicture()
    {
        CVoipWidget window;
        auto *pSlider = window.findChild<QSlider *>(QStringLiteral("m_pMicSlider"));
        pSlider->show();
        window.move(200, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        QVERIFY(holds(ComparedPicture::of(pSlider), shipped(cGroove, QRect(5, 0, 40, 24))));
    }

    void headIsAsSharpAsItsDrawing_data()
    {
        QTest::addColumn<QString>("uid");
        QTest::addColumn<QString>("drawing");

        QTest::newRow("default head") << "nobody"
                                      << "images/FriendDetail/defaultHead";
        QTest::newRow("system avatar") << "ann"
                                       << "SystemAvatar/3";
    }

    void headIsAsSharpAsItsDrawing()
    {
        QFETCH(QString, uid);
        QFETCH(QString, drawing);
        CVoipWidget window;
        window.setVoipCallInfo({uid}, CVoipWidget::Voice, true, false);
        window.move(200, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        // The square within the round head.
        const QRect middle = dense(QRect(16, 16, 68, 68));
        const QImage shown = ComparedPicture::of(window.findChild<QWidget *>(QStringLiteral("lblPhotoIcon")));
        const QImage drawn = drawnHead(drawing, 100 * density());
        QCOMPARE(shown.size(), drawn.size());
        const int iDiffering = ComparedPicture::differingPixels(shown.copy(middle), drawn.copy(middle));
        QVERIFY2(iDiffering <= middle.width() / 10, qPrintable(QString::number(iDiffering)));
    }

private:
    std::unique_ptr<ContactFixture> m_pContacts;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DensePictures, Widgets)

#include "tst_DensePictures.moc"
