#pragma once

#include "sound/SoundMeter.h"
#include "sound/SoundTone.h"

#include <QWidget>

#include <memory>

class CallService;
class SoundChoice;

namespace Ui {
class SoundPane;
}

/// The settings of microphone and speaker, chosen and tried: while the page is shown a bar moves with the microphone,
/// and a button plays a tone. It says which choice is in force and which one waits for the next call process. A sound
/// server that does not answer holds nothing up, and is told. GUI thread; choice and service must outlive it.
class SoundPane : public QWidget
{
    Q_OBJECT

public:
    SoundPane(SoundChoice &choice, CallService &service, QWidget *parent = nullptr);
    ~SoundPane() override;

signals:
    /// The user has chosen a device; whether the user's settings could be written.
    void taken(bool bKept);

protected:
    /// Begins to listen to the microphone.
    void showEvent(QShowEvent *event) override;

    /// Lets the microphone go.
    void hideEvent(QHideEvent *event) override;

    /// Says everything anew when the language changes.
    void changeEvent(QEvent *event) override;

private:
    enum ToneState
    {
        Unheard,
        Playing,
        Played,
        Failed
    };

    void follow();
    void listen();
    void showWords();
    void sayTone(ToneState state);
    QString serverWords() const;
    QString microphoneWords() const;
    QString speakerWords() const;
    QString forceWords() const;

    std::unique_ptr<Ui::SoundPane> ui;
    SoundChoice &m_choice;
    CallService &m_service;
    SoundMeter m_meter;
    SoundTone m_tone;
    QString m_strHeard; // the device that is listened to
    bool m_bDeaf = false;
    ToneState m_toneState = Unheard;
};
