// The call window's construction: the form, the look of its parts, and what its controls are connected to.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "common/DpiScale.h"
#include "common/IconGlyphs.h"
#include "ui/CallWindowStyle.h"
#include "ui/EdgeDrag.h"
#include "widgets/MyRubberBand.h"

#include <QSlider>

namespace {

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
    ADAPT_DPI_WIDGET(this);
}

CVoipWidget::~CVoipWidget()
{
    if (m_pRubberBand != nullptr)
        m_pRubberBand->deleteLater();
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
    ui->btnClose->setIconFont(IconGlyph::text(IconGlyph::Close), 8, 3);
    ui->btnClose->setToolTip(tr("close"));
    ui->btnMuteAll->setIconFont(IconGlyph::text(IconGlyph::SpeakerOff), 16, 0);
    for (CIconButtonEx *pButton : {ui->btnMic, ui->btnSpeaker, ui->btnCamera, ui->btnChangeWindow})
        pButton->installEventFilter(this);
    // The window comes up while the user types elsewhere: no blank or return may press what ends the call.
    for (PushButtonEx *pButton : {ui->btnCancelCall, ui->HangUp})
        pButton->findChild<QAbstractButton *>()->setFocusPolicy(Qt::NoFocus);
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
