#pragma once

// A screen reader's side of an accessibility bus that is started for the test: what it reads, it reads by calls of
// D-Bus alone. GUI thread.

#include "fakes/Patience.h"
#include "host/desktop/SessionBus.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <memory>

/// The reader, the bus and the application that is read. Made before any other application.
class BusReader
{
public:
    /// What a part can be, by AT-SPI's numbers.
    enum State
    {
        Enabled = 8,
        Focusable = 11,
        Focused = 12,
        Showing = 25
    };

    /// A part on the bus.
    struct Part
    {
        QString service;
        QString path;
        QString parent; ///< the path of the part that holds it
        QString role;
        QString name;
        quint64 states = 0;

        bool is(State state) const { return (states >> state & 1U) != 0; }
    };

    ~BusReader()
    {
        m_pBus.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("reader"));
    }
    BusReader() = default;
    BusReader(const BusReader &) = delete;
    BusReader &operator=(const BusReader &) = delete;

    /// Starts bus, application and reader; returns when the application is on the bus, false where it does not come.
    bool start()
    {
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        if (!m_session.start()) {
            return false;
        }
        // The question starts the accessibility bus, as a screen reader's does.
        const QString strAddress = ask(QDBusConnection::sessionBus(), QStringLiteral("org.a11y.Bus"),
                                       QStringLiteral("/org/a11y/bus"), "org.a11y.Bus", "GetAddress")
                                       .value(0)
                                       .toString();
        if (!QTest::qWaitFor([] { return QAccessible::isActive(); }, cPatienceMs)) {
            return false;
        }
        m_pBus = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(strAddress, QStringLiteral("reader")));
        return m_pBus->isConnected() && QTest::qWaitFor([this] { return applications().size() == 1; }, cPatienceMs);
    }

    /// The applications on the bus.
    QList<Part> applications() const
    {
        return childrenOf(QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/accessible/root"));
    }

    /// All parts of all windows of the only application on the bus.
    QList<Part> everything() const
    {
        QList<Part> found;
        for (const Part &application : applications()) {
            readBelow(application, false, found);
        }
        return found;
    }

    /// What a window shows, read from the application down; empty where the application has no such window.
    QList<Part> shownIn(QWidget &window) const
    {
        QList<Part> found;
        for (const Part &application : applications()) {
            for (const Part &top : childrenOf(application.service, application.path)) {
                if (top.path == pathOf(window)) {
                    readBelow(top, true, found);
                }
            }
        }
        return found;
    }

    /// The part as it is now.
    Part read(Part part) const
    {
        // All three questions are on their way before the first answer.
        const QDBusPendingCall role = send(*m_pBus, part.service, part.path, cAccessible, "GetRoleName");
        const QDBusPendingCall name = send(*m_pBus, part.service, part.path, "org.freedesktop.DBus.Properties", "Get",
                                           {QLatin1String(cAccessible), QStringLiteral("Name")});
        const QDBusPendingCall states = send(*m_pBus, part.service, part.path, cAccessible, "GetState");
        part.role = answerOf(role).value(0).toString();
        part.name = answerOf(name).value(0).value<QDBusVariant>().variant().toString();
        const auto halves = qdbus_cast<QList<uint>>(answerOf(states).value(0));
        part.states = quint64(halves.value(0)) | quint64(halves.value(1)) << 32U;
        return part;
    }

    /// Does the first of what can be done with a part.
    void press(const Part &part) const
    {
        ask(*m_pBus, part.service, part.path, "org.a11y.atspi.Action", "DoAction", {0});
    }

    /// Where a part of this process stands on the bus.
    static QString pathOf(QWidget &widget)
    {
        return QStringLiteral("/org/a11y/atspi/accessible/%1")
            .arg(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
    }

private:
    static constexpr const char *cAccessible = "org.a11y.atspi.Accessible";

    static QDBusPendingCall send(const QDBusConnection &bus, const QString &strService, const QString &strPath,
                                 const char *pInterface, const char *pMethod, const QVariantList &arguments = {})
    {
        QDBusMessage question =
            QDBusMessage::createMethodCall(strService, strPath, QLatin1String(pInterface), QLatin1String(pMethod));
        question.setArguments(arguments);
        return bus.asyncCall(question, cPatienceMs);
    }

    /// What a method answers. Qt's own side of the bus answers from the event loop, so that runs meanwhile.
    static QVariantList answerOf(const QDBusPendingCall &sent)
    {
        const QDBusPendingCallWatcher call(sent);
        QEventLoop loop;
        QObject::connect(&call, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        if (!call.isFinished()) {
            loop.exec();
        }
        return call.isError() ? QVariantList{call.error().message()} : call.reply().arguments();
    }
    static QVariantList ask(const QDBusConnection &bus, const QString &strService, const QString &strPath,
                            const char *pInterface, const char *pMethod, const QVariantList &arguments = {})
    {
        return answerOf(send(bus, strService, strPath, pInterface, pMethod, arguments));
    }
    QList<Part> childrenOf(const QString &strService, const QString &strPath) const
    {
        QList<Part> parts;
        const QVariantList answer = ask(*m_pBus, strService, strPath, cAccessible, "GetChildren");
        if (answer.isEmpty() || !answer.first().canConvert<QDBusArgument>()) {
            return parts;
        }
        const auto list = answer.first().value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            Part part;
            QDBusObjectPath path;
            list.beginStructure();
            list >> part.service >> path;
            list.endStructure();
            part.path = path.path();
            part.parent = strPath;
            parts.append(part);
        }
        list.endArray();
        return parts;
    }
    void readBelow(const Part &top, bool bShown, QList<Part> &found) const
    {
        for (const Part &child : childrenOf(top.service, top.path)) {
            const Part part = read(child);
            if (!bShown || part.is(Showing)) {
                found.append(part);
                readBelow(part, bShown, found);
            }
        }
    }

    SessionBus m_session;
    std::unique_ptr<QDBusConnection> m_pBus;
};
