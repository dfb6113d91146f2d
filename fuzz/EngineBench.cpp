#include "EngineBench.h"

#include "FuzzTargets.h"

#include "model/SharedContext.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConferenceListView.h"
#include "ui/VoiceConferenceWidget.h"
#include "ui/VoipWidget.h"

#include <QCoreApplication>

#include <cstring>

/// The engine's end of the channel: reads what is put in, takes whole lines.
class MemorySocket : public QLocalSocket
{
public:
    explicit MemorySocket(QObject *parent) : QLocalSocket(parent) { setOpenMode(ReadWrite | Unbuffered); }

    void put(const QByteArray &bytes) { m_pending += bytes; }
    qint64 bytesAvailable() const override { return m_pending.size(); }

protected:
    qint64 readData(char *data, qint64 most) override
    {
        const int size = int(qMin(most, qint64(m_pending.size())));
        std::memcpy(data, m_pending.constData(), size_t(size));
        m_pending.remove(0, size);
        return size;
    }

    qint64 writeData(const char *data, qint64 size) override
    {
        const QByteArray line(data, int(size));
        requirePromise(line.indexOf('\n') == line.size() - 1, "the engine writes one whole line at a time");
        return size;
    }

private:
    QByteArray m_pending;
};

EngineBench &EngineBench::instance()
{
    static auto *s_pBench = new EngineBench;
    return *s_pBench;
}

EngineBench::EngineBench()
{
    m_login.m_strUid = QStringLiteral("me");
    m_login.m_strDomain = QStringLiteral("kelvar.im");
    m_login.m_strRegValue = QStringLiteral("ticket");
    // Nobody listens, and an engine that rings keeps a sound device busy.
    m_settings.m_strCloseVoice = QStringLiteral("1");
    m_context.setLoginData(&m_login);
    m_context.setSystemSetData(&m_settings);
    SharedContext::setCommonData(&m_context);
    VoipManageMessageProcess::instance()->setSendEvent(&host);
    manager = std::make_unique<VoipManageProbe>();
    manager->use();
    m_pWindow = manager->m_pVoipWidget;
    reset();
}

void EngineBench::openChannel()
{
    if (m_pSocket && m_pSocket == manager->m_pVoipSocket) {
        return;
    }
    delete manager->m_pVoipSocket;
    m_pSocket = new MemorySocket(manager.get());
    manager->m_pVoipSocket = m_pSocket;
}

void EngineBench::begin(bool withWindow)
{
    SharedContext::setCommonData(&m_context);
    manager->m_pVoipWidget = withWindow ? m_pWindow : nullptr;
}

void EngineBench::receive(const QByteArray &bytes)
{
    if (bytes.isEmpty() || !m_pSocket || m_pSocket != manager->m_pVoipSocket) {
        return;
    }
    m_pSocket->put(bytes);
    manager->slot_VoipSDKDataRecevie();
}

void EngineBench::deliverPosted()
{
    QCoreApplication::sendPostedEvents();
}

bool EngineBench::isWindowTouched() const
{
    if (!manager->m_pVoipWidget) {
        return false;
    }
    return manager->isExistCall() || manager->m_callData.bIsConnected || m_pWindow->isVisible() ||
           m_pWindow->findChild<CConferenceListView *>()->model()->rowCount() > 0;
}

void EngineBench::reset()
{
    if (isWindowTouched()) {
        m_pWindow->close();
    }
    manager->callFinished(CallData::FinishCanceled);
    requirePromise(!manager->isExistCall(), "a finished call leaves nothing behind");
    requirePromise(!manager->m_inviteTimer.isActive() && !manager->m_recevieTimer.isActive(),
                   "a finished call has no limit running");
    manager->m_callData = CallData();
    manager->m_strUserId = m_login.m_strUid;
    manager->m_strNickName = QStringLiteral("Me");
    manager->m_strRegValue = m_login.m_strRegValue;
    if (manager->m_pVoiceConfWidget) {
        manager->m_pVoiceConfWidget->close();
    }

    deliverPosted();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    openChannel();
    manager->m_bSocketConnected = true;
    manager->m_nReconnectCount = 0;
    manager->m_reconnectTimer.stop();

    // The plug-in leaves the events of these two requests to their receiver.
    for (const int kept : {MSG_CLOSE_AV_MSGBOX, MSG_CLOSE_SIGN_LIST}) {
        const QList<ReceivedEvent> events = host.received(kept);
        for (const ReceivedEvent &event : events) {
            delete event.event;
        }
    }
    host.events.clear();
    host.friendJids.clear();
    host.membersToAdd.clear();
    host.rawAnswers.clear();
    host.bAnswers = true;
    boxes.whileOpen = nullptr;
    boxes.texts.clear();
    boxes.titles.clear();
}
