#pragma once

// Two who call each other, with a telephone of ours or with baresip: what both can do, by the same names. Main thread;
// every operation says whether it was seen to be done.

#include "calls/peers/Baresip.h"
#include "calls/peers/Person.h"
#include "calls/sound/SoundBox.h"

/// Both of them, with telephones of one make.
template <class Somebody>
class TelephonePair
{
public:
    bool arrive() { return m_caller.start() && m_called.start() && m_caller.signIn() && m_called.signIn(); }

    /// Of the one who is called.
    qint64 processId() { return m_called.processId(); }

protected:
    TelephonePair(const TestExchange &exchange, const char *caller, const char *called)
        : m_caller(exchange, QLatin1String(caller)), m_called(exchange, QLatin1String(called))
    {
    }

    Somebody m_caller;
    Somebody m_called;
};

/// With the settings that hold by default, but for server and devices.
class OurPerson
{
public:
    OurPerson(const TestExchange &exchange, const QString &id) : m_person(exchange, id)
    {
        m_person.set(QStringLiteral("sound/echo-cancelling"), QStringLiteral("yes"));
        m_person.set(QStringLiteral("sound/noise-handling"), QStringLiteral("yes"));
    }

    /// Until the process reads commands.
    bool start() { return m_person.start() && m_person.peer().waitTrace(QStringLiteral("= connected")); }
    bool signIn()
    {
        m_person.signIn(TestExchange::secretOf(m_person.id()));
        return m_person.hearsAtLast(QStringLiteral("17 true"));
    }
    bool hears(const char *word) { return m_person.hearsAtLast(QLatin1String(word)); }
    Person &person() { return m_person; }
    qint64 processId() { return m_person.peer().process().processId(); }

private:
    Person m_person;
};

class OurPair : public TelephonePair<OurPerson>
{
public:
    static constexpr const char *cCaller = "100";
    static constexpr const char *cCalled = "200";

    explicit OurPair(const TestExchange &exchange) : TelephonePair(exchange, cCaller, cCalled) {}

    bool call()
    {
        m_caller.person().call(m_called.person());
        return m_called.person().hearsAtLast(QStringLiteral("0 ") + QLatin1String(cCaller));
    }
    bool answer()
    {
        m_called.person().say("AcceptCall");
        return m_called.hears("18") && m_caller.hears("18");
    }
    bool hangUp()
    {
        m_caller.person().say("HangUpCall");
        return m_called.hears("8");
    }
};

class BaresipPerson : public Baresip
{
public:
    BaresipPerson(const TestExchange &exchange, const QString &id) : Baresip(exchange, id, true)
    {
        useDevices(SoundBox::microphoneOf(id), SoundBox::speakerOf(id));
        waitToAnswer();
    }

    bool start() { return startSignedOff(); }
    bool signIn() { return Baresip::signIn() && reports("REGISTER_OK"); }
};

class BaresipPair : public TelephonePair<BaresipPerson>
{
public:
    static constexpr const char *cCaller = "300";
    static constexpr const char *cCalled = "400";

    explicit BaresipPair(const TestExchange &exchange) : TelephonePair(exchange, cCaller, cCalled) {}

    bool call() { return m_caller.call(QLatin1String(cCalled)) && m_called.reports("CALL_INCOMING"); }
    bool answer()
    {
        return m_called.accept() && m_called.reports("CALL_ESTABLISHED") && m_caller.reports("CALL_ESTABLISHED");
    }
    bool hangUp() { return m_caller.hangUp() && m_called.reports("CALL_CLOSED") && m_caller.reports("CALL_CLOSED"); }
};
