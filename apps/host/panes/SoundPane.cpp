#include "panes/SoundPane.h"

#include "ui_SoundPane.h"

#include "client/CallService.h"
#include "sound/SoundChoice.h"

#include <utility>

SoundPane::SoundPane(SoundChoice &choice, CallService &service, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::SoundPane>()), m_choice(choice), m_service(service)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    ui->boxMicrophone->showDevices(m_choice, SoundChoice::Microphone);
    ui->boxSpeaker->showDevices(m_choice, SoundChoice::Speaker);
    for (const DeviceBox *box : {ui->boxMicrophone, ui->boxSpeaker}) {
        connect(box, &DeviceBox::taken, this, &SoundPane::taken);
    }
    connect(&m_choice, &SoundChoice::changed, this, &SoundPane::follow);
    connect(&m_service, &CallService::changed, this, &SoundPane::showWords);
    connect(&m_meter, &SoundMeter::levelChanged, this, [this](int iLevel) {
        ui->barLevel->setValue(iLevel);
        // A level has come after all: the device was slow, not dead.
        if (std::exchange(m_bDeaf, false)) {
            showWords();
        }
    });
    connect(&m_meter, &SoundMeter::failed, this, [this] {
        m_bDeaf = true;
        ui->barLevel->setValue(0);
        m_choice.lookAgain();
        showWords();
    });
    connect(ui->btnTone, &QPushButton::clicked, this, [this] {
        m_tone.play(m_choice.isMissing(SoundChoice::Speaker) ? QString() : m_choice.chosen(SoundChoice::Speaker).name);
        sayTone(Playing);
    });
    connect(&m_tone, &SoundTone::ended, this, [this](bool bPlayed) { sayTone(bPlayed ? Played : Failed); });
    showWords();
}

SoundPane::~SoundPane() = default;

void SoundPane::follow()
{
    if (isVisible()) {
        listen();
    }
    // The last test tone was for the speaker before.
    if (m_toneState != Playing) {
        m_toneState = Unheard;
    }
    showWords();
}

void SoundPane::listen()
{
    const QString wanted =
        m_choice.isMissing(SoundChoice::Microphone) ? QString() : m_choice.chosen(SoundChoice::Microphone).name;
    // A microphone that could not be opened is tried again at each change.
    if (m_meter.isListening() && !m_bDeaf && wanted == m_strHeard) {
        return;
    }
    m_strHeard = wanted;
    m_bDeaf = false;
    ui->barLevel->setValue(0);
    m_meter.listen(wanted);
}

void SoundPane::showEvent(QShowEvent *event)
{
    m_choice.start();
    m_toneState = Unheard;
    follow();
    QWidget::showEvent(event);
}

void SoundPane::hideEvent(QHideEvent *event)
{
    m_meter.stop();
    m_tone.stop();
    ui->barLevel->setValue(0);
    QWidget::hideEvent(event);
}

void SoundPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showWords();
    }
    QWidget::changeEvent(event);
}

void SoundPane::sayTone(ToneState state)
{
    m_toneState = state;
    showWords();
}

void SoundPane::showWords()
{
    const QString server = serverWords();
    ui->lblServer->setText(server);
    ui->lblServer->setVisible(!server.isEmpty());
    ui->lblMicrophoneNote->setText(microphoneWords());
    ui->lblSpeakerNote->setText(speakerWords());
    ui->lblSoundNote->setText(forceWords());
}

QString SoundPane::serverWords() const
{
    switch (m_choice.devices().state()) {
    case SoundDevices::Silent:
        return tr("The sound server does not answer. What was chosen holds, and nothing can be tried.");
    case SoundDevices::Absent:
        return tr("There is no sound server, so there is nothing to choose from. As soon as one is there, its devices "
                  "are shown.");
    default:
        return QString();
    }
}

QString SoundPane::microphoneWords() const
{
    // The line above says already why nothing is heard.
    if (!serverWords().isEmpty()) {
        return QString();
    }
    if (m_choice.isMissing(SoundChoice::Microphone)) {
        return tr("The chosen microphone is not there. Until it is, calls take the desktop's, which the bar shows.");
    }
    return m_bDeaf ? tr("This microphone cannot be opened.") : tr("Speak: the bar shows what the microphone hears.");
}

QString SoundPane::speakerWords() const
{
    switch (m_toneState) {
    case Playing:
        return tr("A tone is being played.");
    case Failed:
        return tr("The tone could not be played.");
    case Played:
        return tr("The tone was played. If you have not heard it, choose another speaker, or turn this one up.");
    default:
        if (!serverWords().isEmpty()) {
            return QString();
        }
        return m_choice.isMissing(SoundChoice::Speaker)
                   ? tr("The chosen speaker is not there. Until it is, calls take the desktop's.")
                   : tr("The tone goes to the speaker above.");
    }
}

QString SoundPane::forceWords() const
{
    const qint64 process = m_service.process();
    if (process == 0 || !SoundChoice::isHeededBy(process)) {
        return tr("Takes effect when the call service starts the next time, at the latest when the client does.");
    }
    return tr("The call service was started with this choice.");
}
