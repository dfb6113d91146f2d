// Two people without a server: each front becomes the call process that his calls.ini names, and both meet at the
// exchange that the first of them has started.

#include "calls/exchange/ExchangeTest.h"
#include "calls/peers/Person.h"
#include "calls/sound/SoundBox.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

class tst_OwnExchange : public ExchangeTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_sound.start({QStringLiteral("100"), QStringLiteral("200")})); }
    void init()
    {
        begin();
        m_caller = std::make_unique<Person>(folder(), QStringLiteral("100"));
        m_called = std::make_unique<Person>(folder(), QStringLiteral("200"));
    }
    void cleanup()
    {
        m_caller.reset();
        m_called.reset();
        end();
    }

    void theProcessHasTheNameOfTheFront()
    {
        QVERIFY(m_caller->arrive());
        const qint64 pid = m_caller->peer().process().processId();
        QCOMPARE(bytesOf(QStringLiteral("/proc/%1/comm").arg(pid)), QByteArray("VoipSDK\n"));
        QVERIFY(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(pid)).endsWith("/kelvarim-calls"));
    }

    void callOutlivesTheExchange()
    {
        QVERIFY(m_caller->arrive() && m_called->arrive());
        QVERIFY(m_sound.speak(m_caller->id(), cCallersHz) && m_sound.speak(m_called->id(), cCalledsHz));
        listen();
        QVERIFY(m_caller->reaches(*m_called));
        QTRY_VERIFY_WITH_TIMEOUT(bothHearEachOther(), cPatienceMs);

        killAndWait(firstServer());
        for (const auto &person : {m_caller.get(), m_called.get()}) {
            QCOMPARE(person->hears(), QStringLiteral("17 false"));
            QCOMPARE(person->hears(), QStringLiteral("17 true"));
        }
        listen();
        QTRY_VERIFY_WITH_TIMEOUT(bothHearEachOther(), cPatienceMs);
        m_caller->say("HangUpCall");
        QCOMPARE(m_called->hears(), QStringLiteral("8"));
        QVERIFY(m_called->reaches(*m_caller));
    }

    void echoTellsTheLossOnce()
    {
        const QString trace = QDir::current().absoluteFilePath(QStringLiteral("echo.trace"));
        const auto told = [&trace](const char *text) { return bytesOf(trace).count(text); };
        QVERIFY(write(QStringLiteral("echo.ini"), "[exchange]\nfolder = " + folder().toUtf8() + "\n"));
        ChildProgram echo;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("VOIPSDK_EXCHANGE_FOLDER"));
        echo.setProcessEnvironment(environment);
        QVERIFY(echo.begin(QStringLiteral(VOIPSDK_PROGRAM),
                           {QStringLiteral("--settings"), QStringLiteral("echo.ini"), QStringLiteral("--echo"),
                            QStringLiteral("echo"), QStringLiteral("--trace"), trace}));
        for (int losses = 0; losses < 3; ++losses) {
            QTRY_COMPARE_WITH_TIMEOUT(told("the echo is registered"), losses + 1, cPatienceMs);
            QCOMPARE(told("the echo is not registered: "), losses);
            QCOMPARE(bytesOf(trace).count('\n'), 2 * losses + 2);
            killAndWait(firstServer());
        }
        echo.finish();
    }

    void missingKamailioIsToldAndComesLater()
    {
        const QString program = m_box.filePath(QStringLiteral("kamailio"));
        m_caller->set(QStringLiteral("exchange/program"), program);
        QVERIFY(m_caller->start());
        m_caller->signIn(QStringLiteral("any"));
        QCOMPARE(m_caller->hears(), QStringLiteral("17 false"));
        // Said again, answered again.
        m_caller->signIn(QStringLiteral("any"));
        QCOMPARE(m_caller->hears(), QStringLiteral("17 false"));
        QVERIFY2(!m_caller->remarks().filter(QStringLiteral("is no program")).isEmpty(),
                 qPrintable(m_caller->remarks().join('\n')));
        QVERIFY(QFile::link(QStandardPaths::findExecutable(QStringLiteral("kamailio"), {QStringLiteral("/usr/sbin")}),
                            program));
        QCOMPARE(m_caller->hears(), QStringLiteral("17 true"));
    }

private:
    static constexpr int cCallersHz = 440;
    static constexpr int cCalledsHz = 660;
    static constexpr double cLoud = 2000;
    static constexpr double cSilence = 120;

    /// From now on, what was heard before is forgotten.
    void listen() { QVERIFY(m_sound.listen(m_caller->id()) && m_sound.listen(m_called->id())); }

    bool bothHearEachOther() const
    {
        const auto hears = [this](const Person &person, int hertz) { return m_sound.heard(person.id(), hertz); };
        return hears(*m_caller, cCalledsHz) > cLoud && hears(*m_called, cCallersHz) > cLoud &&
               hears(*m_caller, cCallersHz) < cSilence && hears(*m_called, cCalledsHz) < cSilence;
    }

    QTemporaryDir m_box;
    SoundBox m_sound;
    std::unique_ptr<Person> m_caller;
    std::unique_ptr<Person> m_called;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_OwnExchange, Guiless)
#include "tst_OwnExchange.moc"
