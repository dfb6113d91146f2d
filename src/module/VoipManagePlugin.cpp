#include "plugin/VoipManagePlugin.h"

#include "model/SharedContext.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"

VoipManagePlugin::VoipManagePlugin(QObject *parent) : QObject(parent) {}

QString VoipManagePlugin::getPluginName()
{
    // Deliberately not the class's name: the host sees this text, whatever it does with it.
    return QStringLiteral("FileManagePlugin");
}

qint64 VoipManagePlugin::getWindowHandle(QWidget *parent)
{
    return VoipManageMessageProcess::instance()->getWindowHandle(parent);
}

QObject *VoipManagePlugin::getReceiveEventHandle()
{
    return VoipManageMessageProcess::instance();
}

void VoipManagePlugin::setSendEventHandle(QObject *handle)
{
    VoipManageMessageProcess::instance()->setSendEvent(handle);
}

QString VoipManagePlugin::getPluginId()
{
    return voipPluginId();
}

bool VoipManagePlugin::attachplugin(const QString &, EMsgId, const QString &)
{
    return true;
}

bool VoipManagePlugin::disattachplugin(const QString &, EMsgId, const QString &)
{
    return true;
}

QStringList VoipManagePlugin::getRecListByMsgId(const QString &, EMsgId)
{
    return {};
}

void VoipManagePlugin::setCommonData(CommonData *data)
{
    SharedContext::setCommonData(data);
}
