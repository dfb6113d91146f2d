// The call window's parts: the form and its look, what its controls are connected to, the volume sliders, the video and
// its snapshot.
//
// Nothing shows a slider or starts its timer; the wiring is complete all the same, and the clicks on the two buttons
// hide the sliders.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "common/pictures/IconGlyphs.h"
#include "common/pictures/PictureNames.h"
#include "common/system/DpiScale.h"
#include "ui/CallWindowStyle.h"
#include "ui/EdgeDrag.h"
#include "widgets/MyRubberBand.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPixmap>
#include <QSlider>
#include <QStandardPaths>

namespace {

constexpr QSize cSliderSize(50, 152);
constexpr int cHighestVolume = 10;
constexpr int cFirstVolume = 5;

const char *boolText(bool bValue)
{
    return bValue ? "true" : "false";
}

/// A timer that is a member is found by name like the parts of the form.
void giveName(QTimer &timer, QObject *pOwner, const QString &strName)
{
    timer.setParent(pOwner);
    timer.setObjectName(strName);
}

} // namespace

CVoipWidget::CVoipWidget(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::CVoipWidget>())
{
    setUpForm();
    m_pMicSlider = newVolumeSlider();
    m_pMicSlider->setObjectName(QStringLiteral("m_pMicSlider"));
    m_pSpeakerSlider = newVolumeSlider();
    m_pSpeakerSlider->setObjectName(QStringLiteral("m_pSpeakerSlider"));
    giveName(m_micSliderTimer, this, QStringLiteral("m_micSliderTimer"));
    giveName(m_speakerSliderTimer, this, QStringLiteral("m_speakerSliderTimer"));
    giveName(m_callTimeTimer, this, QStringLiteral("m_callTimeTimer"));
    applyCallWindowStyle(this);
    ui->currentPlayTimeLabel->hide();
    ui->currentPlayTimeLabel->clear();
    connectControls();
    setStyleSheet(QString::fromUtf8(cSliderStyleSheet));
    SetMicButton(m_bMicMute);
    SetSpeakerButton(m_bSpeakerMute);
    SetCameraButton(m_bCameraEnable);
    setMuteAllButton(m_bMuteAll);
    setUpKeys();
    ADAPT_DPI_WIDGET(this);
}

CVoipWidget::~CVoipWidget()
{
    if (m_pRubberBand != nullptr) {
        m_pRubberBand->deleteLater();
    }
    m_pRubberBand = nullptr;
}

void CVoipWidget::setUpForm()
{
    ui->setupUi(this);
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
    installEventFilter(this);
    setFixedHeight(cWindowSize.height());
    setFixedWidth(cWindowSize.width());
    ui->btnClose->setIconFont(IconGlyph::text(IconGlyph::Close), CIconButtonEx::SmallGlyph, CIconButtonEx::RedStyle);
    ui->btnClose->setToolTip(tr("close"));
    ui->btnMuteAll->setIconFont(IconGlyph::text(IconGlyph::SpeakerOff), CIconButtonEx::LargeGlyph,
                                CIconButtonEx::HoverStyle);
    for (CIconButtonEx *pButton : {ui->btnMic, ui->btnSpeaker, ui->btnCamera, ui->btnChangeWindow}) {
        pButton->installEventFilter(this);
    }
    // The window comes up while the user types elsewhere: no blank or return may press what ends the call.
    for (PushButtonEx *pButton : {ui->btnCancelCall, ui->HangUp}) {
        pButton->findChild<QAbstractButton *>()->setFocusPolicy(Qt::NoFocus);
    }
    // Deliberate: no call shows these two; what they do is reached by code only.
    ui->btnCamera->hide();
    ui->btnChangeWindow->hide();
}

void CVoipWidget::connectControls()
{
    connect(ui->HangUp, SIGNAL(clicked()), this, SLOT(slot_HangUpCall()));
    connect(ui->btnClose, SIGNAL(clicked()), this, SLOT(slot_close()));
    connect(ui->btnMic, SIGNAL(clicked()), this, SLOT(slot_MicButtonClicked()));
    connect(ui->btnSpeaker, SIGNAL(clicked()), this, SLOT(slot_SpeakerButtonClicked()));
    connect(ui->btnCamera, SIGNAL(clicked()), this, SLOT(slot_CameraButtonClicked()));
    connect(ui->btnChangeWindow, SIGNAL(clicked()), this, SLOT(slot_WindowChangeButtonClicked()));
    connect(m_pMicSlider, SIGNAL(valueChanged(int)), this, SLOT(slot_MicVolumChanged(int)));
    connect(m_pSpeakerSlider, SIGNAL(valueChanged(int)), this, SLOT(slot_SpeakerVolumChanged(int)));
    connect(&m_micSliderTimer, SIGNAL(timeout()), this, SLOT(slot_MicSilderHide()));
    connect(&m_speakerSliderTimer, SIGNAL(timeout()), this, SLOT(slot_SpeakerSilderHide()));
    connect(&m_callTimeTimer, SIGNAL(timeout()), this, SLOT(slot_RefreshTime()));
    connect(ui->btnCancelCall, SIGNAL(clicked()), this, SLOT(slot_CancelVoipCall()));
    connectConferenceControls();
}

void CVoipWidget::connectConferenceControls()
{
    connect(ui->btnAddMember, SIGNAL(clicked()), this, SLOT(slot_AddConferenceMember()));
    connect(ui->btnMuteAll, SIGNAL(clicked()), this, SLOT(slot_MuteAll()));
    connect(ui->listView, SIGNAL(signal_RemoveUser(QString)), this, SLOT(slot_RemoveConferenceMember(QString)));
    connect(ui->listView, SIGNAL(signal_MuteUser(QString, bool)), this, SLOT(slot_MuteConferenceMember(QString, bool)));
    connect(ui->listView, SIGNAL(signal_ReInviteConfUser(QString)), this, SLOT(slot_ReInviteConfUser(QString)));
}

QSlider *CVoipWidget::newVolumeSlider()
{
    auto *pSlider = new QSlider(Qt::Vertical, this);
    pSlider->setMouseTracking(false);
    pSlider->resize(cSliderSize);
    pSlider->setRange(0, cHighestVolume);
    pSlider->setValue(cFirstVolume);
    pSlider->hide();
    pSlider->installEventFilter(this);
    return pSlider;
}

void CVoipWidget::SetVoipMicVolume(qlonglong iVolume)
{
    m_iMicVolume = static_cast<int>(iVolume);
    SetMicVolume(iVolume);
}

void CVoipWidget::SetVoipSpeakerVolume(qlonglong iVolume)
{
    m_iSpeakerVolume = static_cast<int>(iVolume);
    SetSpeakerVolume(iVolume);
}

void CVoipWidget::SetMicVolume(qlonglong iVolume)
{
    qDebug().noquote().nospace() << "SetMicVolume = " << iVolume;
    emit signal_SetMicVolume(iVolume);
}

void CVoipWidget::SetSpeakerVolume(qlonglong iVolume)
{
    qDebug().noquote().nospace() << "SetSpeakerVolume = " << iVolume;
    emit signal_SetSpeakerVolume(iVolume);
}

void CVoipWidget::slot_MicVolumChanged(int iVolum)
{
    m_iMicVolume = iVolum;
    SetMicVolume(iVolum);
}

void CVoipWidget::slot_SpeakerVolumChanged(int iVolum)
{
    m_iSpeakerVolume = iVolum;
    SetSpeakerVolume(iVolum);
}

void CVoipWidget::slot_MicSilderHide()
{
    m_micSliderTimer.stop();
    m_pMicSlider->hide();
}

void CVoipWidget::slot_SpeakerSilderHide()
{
    m_speakerSliderTimer.stop();
    m_pSpeakerSlider->hide();
}

void CVoipWidget::SetMicEnable(bool bEnable)
{
    qDebug().noquote().nospace() << "SetMicEnable = " << boolText(bEnable);
    emit signal_SetMicEnable(bEnable);
}

void CVoipWidget::SetSpeakerEnable(bool bEnable)
{
    // Deliberate: the microphone's words.
    qDebug().noquote().nospace() << "SetMicEnable = " << boolText(bEnable);
    emit signal_SetSpeakerEnable(bEnable);
}

void CVoipWidget::SetCamreraEnable(bool bEnable)
{
    qDebug().noquote().nospace() << "SetCamreraEnable = " << boolText(bEnable);
    emit signal_SetCameraEnable(bEnable);
}

QWidget *CVoipWidget::getWebEngineView() const
{
    return nullptr;
}

void CVoipWidget::addVoipWidget(QWidget *pWidget)
{
    if (pWidget != nullptr) {
        ui->WebViewLayout->addWidget(pWidget);
    }
}

void CVoipWidget::savePicture()
{
    // Deliberate: the place in the parent, not the widget's own rectangle.
    const QPixmap picture = ui->playFramWidget->grab(ui->playFramWidget->geometry());
    const QString strDefault =
        QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + QLatin1Char('/') + tr("tarvoPhoto") +
        QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmsszzz")) + QStringLiteral(".jpg");
    const QString strPath = QFileDialog::getSaveFileName(nullptr, tr("savepic"), strDefault,
                                                         PictureNames::getPicSaveSuffixes(QStringLiteral(".jpg")));
    if (strPath.isEmpty()) {
        return;
    }
    const QFileInfo file(strPath);
    if (file.exists()) {
        file.absoluteDir().remove(file.fileName());
    }
    picture.save(strPath);
}
