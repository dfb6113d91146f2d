#pragma once

// Somebody with a telephone: a running kelvarim-calls with a client at its socket. Main thread.

#include "calls/peers/TestExchange.h"

#include "callprocess/CallProcess.h"

class Person
{
public:
    /// Known by this id, with the devices of this name, at this exchange, which outlives the person.
    Person(const TestExchange &exchange, QString id);

    /// The same at the exchange of one's own that keeps its files in this folder. Whoever is started is the front, with
    /// a calls.ini.
    Person(const QString &exchangeFolder, QString id);

    /// Settings of his own, before the start: "section/key", value.
    void set(const QString &key, const QString &value) { m_settings[key] = value; }

    /// Writes them to his file. Whether it could be.
    bool writeSettings() const;
    QString settingsFile() const { return m_id + QStringLiteral(".ini"); }

    /// Starts his call process and connects; not registered yet.
    bool start();

    /// Both, and registers him.
    bool arrive();

    /// Signs in with a registration value.
    void signIn(const QString &registrationValue);

    const QString &id() const { return m_id; }
    CallProcess &peer() { return m_peer; }
    void say(const char *command, const QJsonArray &parameters = {})
    {
        m_peer.command(QString::fromLatin1(command), parameters);
    }
    void call(const Person &other) { say("CallUser", {other.id(), false}); }

    /// Calls, the other one accepts, and the call stands.
    bool reaches(Person &other);

    /// The next notification that is no remark, as "code content".
    QString hears();

    /// The next one that has come already; empty: there is none.
    QString hasHeard();

    /// Waits for that notification; what comes before it is forgotten. Whether it comes.
    bool hearsAtLast(const QString &word);

    /// The remarks that came so far.
    const QStringList &remarks() const { return m_remarks; }

private:
    void setSound();
    bool isRemark(const QString &notification);

    QString m_id;
    QMap<QString, QString> m_settings;
    QStringList m_remarks;
    bool m_byFront = false;
    CallProcess m_peer;
};
