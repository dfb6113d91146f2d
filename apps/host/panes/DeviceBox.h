#pragma once

#include "sound/SoundChoice.h"

#include <QComboBox>

/// The microphones or the speakers to choose from: "as the desktop has it" first, then what is there, and what is
/// chosen and not there. It follows the choice and changes it. GUI thread; the choice must outlive it.
class DeviceBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DeviceBox(QWidget *parent = nullptr);

    /// Shows the devices of that kind from now on.
    void showDevices(SoundChoice &choice, SoundChoice::Role role);

signals:
    /// The user has chosen a device; whether it could be written, and is in force.
    void taken(bool bKept);

protected:
    /// Draws the arrow, which a form's style sheet cannot.
    void paintEvent(QPaintEvent *event) override;

    /// Says everything anew when the language changes.
    void changeEvent(QEvent *event) override;

    /// Only the open list is turned by the wheel: a page that is scrolled must not choose another device.
    void wheelEvent(QWheelEvent *event) override;

private:
    void fill();
    void take(int iRow);
    QString desktopWords() const;

    SoundChoice *m_pChoice = nullptr;
    SoundChoice::Role m_role = SoundChoice::Microphone;
};
