// The call window's volume: two sliders and what their values become.
//
// Nothing shows a slider or starts its timer; the wiring is complete all the same, and the clicks on the two buttons
// hide the sliders.

#include "ui/VoipWidget.h"

#include <QDebug>
#include <QSlider>

namespace {

constexpr QSize cSliderSize(50, 152);
constexpr int cHighestVolume = 10;
constexpr int cFirstVolume = 5;

} // namespace

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
