#pragma once

// The object that the host gets when it loads the plug-in: Qt's loader creates it once, with no parent, and it lives as
// long as the library is loaded. It keeps nothing: what it is given goes to the mailbox and to the shared context.
// Creating it starts no process, opens no socket and shows no window. GUI thread only.

#include "plugin/PluginInterface.h"

#include <QObject>

/// The plug-in's root object.
class VoipManagePlugin : public QObject, public PluginInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KELVARIM_PLUGIN_IID)
    Q_INTERFACES(PluginInterface)

public:
    /// Does nothing but construct the QObject.
    explicit VoipManagePlugin(QObject *parent = nullptr);

    /// "FileManagePlugin".
    QString getPluginName() override;

    /// Ignores its argument and returns 0.
    qint64 getWindowHandle(QWidget *parent) override;

    /// The mailbox, VoipManageMessageProcess::instance(). Not owned by the caller.
    QObject *getReceiveEventHandle() override;

    /// Takes the object that all outbound events are delivered to from now on. Not owned; null means none.
    void setSendEventHandle(QObject *handle) override;

    /// The plug-in's id.
    QString getPluginId() override;

    /// Ignores its arguments and returns true: events reach the plug-in by the receiver's id, not by subscription.
    bool attachplugin(const QString &from, EMsgId msgId, const QString &to) override;

    /// Ignores its arguments and returns true.
    bool disattachplugin(const QString &from, EMsgId msgId, const QString &to) override;

    /// Ignores its arguments and returns an empty list.
    QStringList getRecListByMsgId(const QString &id, EMsgId msgId) override;

    /// Takes the shared client context for all common code. Not owned; null means none.
    void setCommonData(CommonData *data) override;
};
