#pragma once

// The desktop's service of notifications, on whichever bus it is put, and what it was asked for. GUI thread.

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <utility>

class FakeDesktop : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notice
    {
        uint replaces;
        QString program;
        QString title;
        QString text;
        QStringList actions;
        QVariantMap hints;
        int expires;
    };

    static constexpr const char *cService = "org.freedesktop.Notifications";
    static constexpr const char *cPath = "/org/freedesktop/Notifications";

    QList<Notice> notices;
    QList<uint> closed;
    uint lastId = 0;
    /// Answers are kept until answer().
    bool isSlow = false;

    bool begin(QDBusConnection &bus)
    {
        return bus.registerObject(QLatin1String(cPath), this,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
               bus.registerService(QLatin1String(cService));
    }
    static void end(QDBusConnection &bus)
    {
        bus.unregisterService(QLatin1String(cService));
        bus.unregisterObject(QLatin1String(cPath));
    }
    void answer(QDBusConnection &bus)
    {
        for (const QDBusMessage &reply : std::exchange(m_answers, {})) {
            bus.send(reply);
        }
    }

public slots:
    uint Notify(const QString &strProgram, uint replaces, const QString &, const QString &strTitle,
                const QString &strText, const QStringList &actions, const QVariantMap &hints, int iExpires)
    {
        notices.append({replaces, strProgram, strTitle, strText, actions, hints, iExpires});
        const uint id = replaces != 0 ? replaces : ++lastId;
        if (isSlow) {
            setDelayedReply(true);
            m_answers.append(message().createReply(id));
        }
        return id;
    }
    void CloseNotification(uint id) { closed.append(id); }

signals:
    void ActionInvoked(uint id, const QString &strAction);
    void NotificationClosed(uint id, uint reason);

private:
    QList<QDBusMessage> m_answers;
};
