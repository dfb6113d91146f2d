#pragma once

// Kamailio as a child: a process group of its own, which ends with this process however that ends, and whose every
// process is ended when the first one has gone. Main thread.

#include <QProcess>

class ExchangeChild : public QProcess
{
    Q_OBJECT

public:
    explicit ExchangeChild(QObject *parent = nullptr);

    /// Ends the group.
    ~ExchangeChild() override;

    /// Ends every process of the group at once. Nothing is lost by that: what the exchange knows is in its memory
    /// alone.
    void endGroup();

    /// Kamailio's option behind that of its configuration: it does not leave the process that was started.
    static constexpr const char *cStaysInFront = "-DD";

    /// Ends what a keeper or a first process that was killed has left, the processes of this user that run with this
    /// configuration, and waits until they have let go of their port: some seconds at most.
    static void endRemains(const QString &configuration);

    /// Where Kamailio is: `set` where that is not empty, else the first one of PATH and of the system's folders for
    /// such programs. Empty where there is none.
    static QString program(const QString &set);

protected:
    void setupChildProcess() override;

private:
    qint64 m_group = 0;
};
