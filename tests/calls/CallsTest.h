#pragma once

// What the tests of calls between people share: an exchange and a sound server, which all functions of a class use.
// Derive the test class from it.

#include "calls/peers/Person.h"
#include "calls/peers/TestExchange.h"
#include "calls/sound/SoundBox.h"

#include <QObject>
#include <QtTest>

class CallsTest : public QObject
{
    Q_OBJECT

protected:
    TestExchange m_exchange;
    SoundBox m_sound;

    /// One calls the other, and the call stands.
    static bool connectCall(Person &caller, Person &called) { return caller.reaches(called); }

private slots:
    void initTestCase()
    {
        QVERIFY(m_exchange.start());
        QVERIFY(m_sound.start({QStringLiteral("100"), QStringLiteral("200"), QStringLiteral("300")}));
    }
};
