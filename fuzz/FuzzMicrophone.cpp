// A machine with one microphone that delivers nothing, so that calls can be placed where there is no sound server.

#include <QAudioSystemPlugin>

class FuzzMicrophone : public QAudioSystemPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QAudioSystemFactoryInterface_iid FILE "FuzzMicrophone.json")

public:
    QList<QByteArray> availableDevices(QAudio::Mode mode) const override
    {
        return mode == QAudio::AudioInput ? QList<QByteArray>{"microphone"} : QList<QByteArray>();
    }
    QAbstractAudioInput *createInput(const QByteArray &) override { return nullptr; }
    QAbstractAudioOutput *createOutput(const QByteArray &) override { return nullptr; }
    QAbstractAudioDeviceInfo *createDeviceInfo(const QByteArray &, QAudio::Mode) override { return nullptr; }
};

#include "FuzzMicrophone.moc"
