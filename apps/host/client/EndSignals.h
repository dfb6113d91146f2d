#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Turns the system's requests to end (SIGINT, SIGTERM, SIGHUP) into a Qt signal on the GUI thread, so that a client
/// that is ended from the terminal still takes leave of its plug-in. One object, for the life of the program.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;
    Q_DISABLE_COPY(EndSignals)

    /// Whether one of the signals has come. Nobody ends an event loop that has not begun, so a program looks before it
    /// begins its own.
    bool isEndRequested() const { return m_bRequested; }

signals:
    /// One of the signals has come.
    void endRequested();

private:
    void read();

    QSocketNotifier m_notifier;
    bool m_bRequested = false;
};
