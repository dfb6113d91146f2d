#pragma once

// The plug-in's mailbox. The host delivers its events to it; it checks that an event is meant for this plug-in and runs
// the command's row of the table in HostCommands.h. In the other direction it delivers the plug-in's own events to the
// object that the host gave. GUI thread only; one object for the life of the process, created on first use.

#include <QObject>
#include <QPointer>

class BaseEvent;
class QWidget;

/// Inbound commands and outbound delivery.
class VoipManageMessageProcess : public QObject
{
    Q_OBJECT

public:
    /// The one mailbox. Created on the first call with no parent; nobody deletes it.
    static VoipManageMessageProcess *instance();

    /// Ignores its argument and returns 0: the plug-in has no window inside the host's.
    qint64 getWindowHandle(QWidget *parent);

    /// Takes the object that outbound events are delivered to, not owned. With null, or once the object is gone,
    /// outbound events are dropped.
    void setSendEvent(QObject *handle);

    /// Runs the command of `event`, which must be a BaseEvent: its type is not tested. A null event is logged; an event
    /// for another plug-in is dropped silently; an unknown command writes one debug message.
    void customEvent(QEvent *event) override;

    /// Delivers `event` to the send handle. With `bAsync` it is posted and no longer the caller's, and deleted when
    /// there is no handle; otherwise the receiver has handled it on return and it stays the caller's. Null is ignored.
    void sendCommand(BaseEvent *event);

private:
    VoipManageMessageProcess() = default;

    static VoipManageMessageProcess *m_pInstance;
    QPointer<QObject> m_pSendHandle;
};
