#pragma once

// Three machines on a network of their own, an exchange's and two desktops', where this one lets a test make network
// namespaces. They have no names, and go with the last process that stands in them. Main thread.

#include "calls/peers/ChildProgram.h"

#include <QString>
#include <QStringList>

#include <memory>

/// Where a program runs; by default here, on the loopback.
struct TestMachine
{
    /// The address, and the name that its certificate has.
    QString address = QStringLiteral("127.0.0.1");
    QString name = QStringLiteral("localhost");

    /// What stands before a program and its arguments to have it run there; empty for here.
    QStringList enter;
};

class TestNetwork
{
public:
    /// Not there yet: all machines are this one.
    TestNetwork();
    ~TestNetwork();

    /// Makes the machines. Whether this one allowed it.
    bool start();

    /// What it said when it did not.
    QString refusal() const { return QString::fromLocal8Bit(said("network.refused")).simplified(); }

    const TestMachine &exchange() const { return m_exchange; }
    const TestMachine &caller() const { return m_caller; }
    const TestMachine &called() const { return m_called; }

private:
    bool startBy(const QStringList &unshare, const QStringList &enter);
    static QByteArray said(const char *file);

    std::unique_ptr<ChildProgram> m_holder;
    TestMachine m_exchange;
    TestMachine m_caller;
    TestMachine m_called;
};
