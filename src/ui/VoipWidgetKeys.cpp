// The call window by keys, and what a screen reader calls its parts.
//
// The window comes up while the user types elsewhere, so it takes the focus for itself: no blank or return presses
// anything before Tab has chosen it, and what ends the call is no stop of Tab but has keys that nobody types by chance.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "widgets/FocusRing.h"

#include <QShortcut>
#include <QShowEvent>
#include <QSlider>
#include <QToolTip>

namespace {

const QKeySequence cMuteMicKeys(QStringLiteral("Ctrl+M"));
const QKeySequence cMuteSpeakerKeys(QStringLiteral("Ctrl+Shift+M"));
const QKeySequence cMuteAllKeys(QStringLiteral("Ctrl+Shift+A"));
const QKeySequence cSpeakerUpKeys(QStringLiteral("Ctrl+Up"));
const QKeySequence cSpeakerDownKeys(QStringLiteral("Ctrl+Down"));
const QKeySequence cMicUpKeys(QStringLiteral("Ctrl+Shift+Up"));
const QKeySequence cMicDownKeys(QStringLiteral("Ctrl+Shift+Down"));
const QKeySequence cEndKeys(QStringLiteral("Ctrl+E"));
const QKeySequence cCloseKeys(QStringLiteral("Ctrl+W"));

} // namespace

void CVoipWidget::setUpKeys()
{
    for (CIconButtonEx *pButton : {ui->btnMic, ui->btnSpeaker, ui->btnCamera, ui->btnChangeWindow}) {
        pButton->setKeyFocus(true);
    }
    // What is on tells its name, so a screen reader is to call none of them a check box.
    for (CIconButtonEx *pButton :
         {ui->btnClose, ui->btnMic, ui->btnSpeaker, ui->btnCamera, ui->btnChangeWindow, ui->btnMuteAll}) {
        pButton->setCheckable(false);
    }
    new FocusRing(ui->btnAddMember, ui->btnAddMember);
    ui->btnMic->setShortcut(cMuteMicKeys);
    ui->btnSpeaker->setShortcut(cMuteSpeakerKeys);
    ui->btnMuteAll->setShortcut(cMuteAllKeys);
    ui->btnClose->setShortcut(cCloseKeys);
    ui->HangUp->setShortcut(cEndKeys);
    ui->btnCancelCall->setShortcut(cEndKeys);

    const auto changeByKeys = [this](const QKeySequence &keys, QSlider *pSlider, CIconButtonEx *pButton, int iSteps) {
        // Of the calling page, so that they hold as long as that is shown.
        auto *pKeys = new QShortcut(keys, ui->callingControlPage);
        connect(pKeys, &QShortcut::activated, this, [=] {
            pSlider->setValue(pSlider->value() + iSteps);
            // No slider shows; the tip tells where it stands.
            QToolTip::showText(
                pButton->mapToGlobal(QPoint()),
                tr("%1: %2 of %3").arg(pSlider->accessibleName()).arg(pSlider->value()).arg(pSlider->maximum()),
                pButton);
        });
    };
    changeByKeys(cSpeakerUpKeys, m_pSpeakerSlider, ui->btnSpeaker, 1);
    changeByKeys(cSpeakerDownKeys, m_pSpeakerSlider, ui->btnSpeaker, -1);
    changeByKeys(cMicUpKeys, m_pMicSlider, ui->btnMic, 1);
    changeByKeys(cMicDownKeys, m_pMicSlider, ui->btnMic, -1);
    nameParts();
}

void CVoipWidget::nameParts()
{
    ui->btnCamera->setAccessibleName(m_bCameraEnable ? tr("Switch the camera off") : tr("Switch the camera on"));
    ui->btnChangeWindow->setAccessibleName(m_bFullScreen ? tr("restore") : tr("fullscreen"));
    ui->btnMuteAll->setAccessibleName(m_bMuteAll ? tr("Unmute all members") : tr("Mute all members"));
    m_pMicSlider->setAccessibleName(tr("Microphone volume"));
    m_pSpeakerSlider->setAccessibleName(tr("Speaker volume"));
}

void CVoipWidget::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        setFocus();
    }
    QWidget::showEvent(event);
}
