#pragma once

// What every plug-in of the host implements. The host loads a plug-in with QPluginLoader and casts its root object to
// this interface by the id "kelvarim/1.0". All operations run on the GUI thread. The order of the virtual operations,
// destructor first, is a binary contract with the host and must not change.

#include "plugin/EMsgId.h"

#include <QObject>
#include <QString>
#include <QStringList>

class CommonData;
class QWidget;

/// The host's view of a plug-in.
class PluginInterface
{
public:
    virtual ~PluginInterface() = default;

    /// The plug-in's name as the host shows or records it.
    virtual QString getPluginName() = 0;

    /// A native handle of the plug-in's window inside `parent`; 0 when it has none.
    virtual qint64 getWindowHandle(QWidget *parent) = 0;

    /// The object that the host delivers its events to. Owned by the plug-in, the same one on each call.
    virtual QObject *getReceiveEventHandle() = 0;

    /// Takes the object that the plug-in delivers its events to. It stays owned by the host; null means none.
    virtual void setSendEventHandle(QObject *handle) = 0;

    /// The id by which events address the plug-in, a GUID text in braces.
    virtual QString getPluginId() = 0;

    /// Subscribes `to` to the command `msgId` of `from`. Returns false when refused.
    virtual bool attachplugin(const QString &from, EMsgId msgId, const QString &to) = 0;

    /// Takes a subscription back. Returns false when refused.
    virtual bool disattachplugin(const QString &from, EMsgId msgId, const QString &to) = 0;

    /// The ids of the subscribers to the command `msgId` of `id`.
    virtual QStringList getRecListByMsgId(const QString &id, EMsgId msgId) = 0;

    /// Takes the shared client context. It stays owned by the host.
    virtual void setCommonData(CommonData *data) = 0;
};

/// The id under which the host asks for the interface.
#define KELVARIM_PLUGIN_IID "kelvarim/1.0"

Q_DECLARE_INTERFACE(PluginInterface, KELVARIM_PLUGIN_IID)
