#pragma once

// A session bus of the test's own, and the application that finds it. Made before any other application. GUI thread.

#include "fakes/Patience.h"

#include <QApplication>
#include <QByteArray>
#include <QProcess>
#include <QString>

#include <memory>

class SessionBus
{
public:
    SessionBus() = default;
    ~SessionBus()
    {
        m_pApplication.reset();
        m_daemon.terminate();
        m_daemon.waitForFinished(cPatienceMs);
    }
    SessionBus(const SessionBus &) = delete;
    SessionBus &operator=(const SessionBus &) = delete;

    /// Starts the bus and makes the application; false where the bus does not come.
    bool start()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address=1"});
        if (!m_daemon.waitForReadyRead(cPatienceMs)) {
            return false;
        }
        m_address = m_daemon.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address);
        m_pApplication = std::make_unique<QApplication>(m_iArguments, m_arguments);
        return true;
    }

    /// Where others reach the bus; empty before it is started.
    QString address() const { return QString::fromLatin1(m_address); }

    /// The bus's process; 0 before it is started.
    qint64 process() const { return m_daemon.processId(); }

private:
    int m_iArguments = 1;
    char m_name[5] = "test";
    char *m_arguments[2] = {m_name, nullptr};
    QByteArray m_address;
    QProcess m_daemon;
    std::unique_ptr<QApplication> m_pApplication;
};
