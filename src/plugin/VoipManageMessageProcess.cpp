#include "plugin/VoipManageMessageProcess.h"

#include "common/CLogManger.h"
#include "plugin/BaseEvent.h"
#include "plugin/HostCommands.h"
#include "plugin/PluginIds.h"

#include <QCoreApplication>
#include <QDebug>

VoipManageMessageProcess *VoipManageMessageProcess::m_pInstance = nullptr;

VoipManageMessageProcess *VoipManageMessageProcess::instance()
{
    if (m_pInstance == nullptr) {
        m_pInstance = new VoipManageMessageProcess;
    }
    return m_pInstance;
}

qint64 VoipManageMessageProcess::getWindowHandle(QWidget *)
{
    return 0;
}

void VoipManageMessageProcess::setSendEvent(QObject *handle)
{
    m_pSendHandle = handle;
}

void VoipManageMessageProcess::customEvent(QEvent *event)
{
    if (event == nullptr) {
        LOG_WARN << "temp is null"
                 << "\n";
        return;
    }
    auto *command = static_cast<BaseEvent *>(event);
    if (command->receiverId != voipPluginId() && !command->receiverId.isEmpty()) {
        return;
    }
    if (const HostCommand *row = findHostCommand(command->msgId)) {
        row->run(*command);
        return;
    }
    qDebug().noquote().nospace() << static_cast<qint32>(command->msgId) << " " << tr("enternothandle");
}

void VoipManageMessageProcess::sendCommand(BaseEvent *event)
{
    if (event == nullptr) {
        return;
    }
    if (m_pSendHandle.isNull()) {
        if (event->bAsync) {
            delete event;
        }
        return;
    }
    if (event->bAsync) {
        QCoreApplication::postEvent(m_pSendHandle, event);
    } else {
        QCoreApplication::sendEvent(m_pSendHandle, event);
    }
}
