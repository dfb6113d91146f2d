// The checker of call processes against the one for calls between people: what the ready scenarios tell happens here
// too, as far as somebody at the other end can bring it about.

#include "calls/CallsTest.h"

#include "fakes/Patience.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <functional>

/// What somebody else does meanwhile. Whether it could be done.
using Deed = std::function<bool(Person &other)>;
Q_DECLARE_METATYPE(Deed)

class tst_ReplayedScenarios : public CallsTest
{
    Q_OBJECT

private slots:
    void scenarioHappensAsRecorded_data()
    {
        QTest::addColumn<QString>("called"); // empty: as the checker does by itself
        QTest::addColumn<Deed>("deed");
        const Deed nothing = [](Person &) { return true; };
        const Deed accepts = [](Person &other) {
            return other.hears() == ringing() && (other.say("AcceptCall"), other.hears() == QLatin1String("18"));
        };
        QTest::newRow("call-busy") << QStringLiteral("code-486") << nothing;
        QTest::newRow("call-failed") << QStringLiteral("code-500") << nothing;
        QTest::newRow("call-rejected") << QString() << Deed([](Person &other) {
            return other.hears() == ringing() && (other.say("RejectCall"), true);
        });
        QTest::newRow("call-answered") << QString() << Deed([accepts](Person &other) {
            return accepts(other) && other.hears() == QLatin1String("8");
        });
        QTest::newRow("call-never-answered") << QString() << nothing;
        QTest::newRow("call-hung-up") << QString() << Deed([accepts](Person &other) {
            return accepts(other) && (other.say("HangUpCall"), true);
        });
        QTest::newRow("conference-refused") << QString() << nothing;
        QTest::newRow("incoming-accepted") << QString() << Deed([](Person &other) {
            return reaches(other) && other.hears() == QLatin1String("18") && (other.say("HangUpCall"), true);
        });
        QTest::newRow("incoming-rejected")
            << QString() << Deed([](Person &other) { return reaches(other) && other.hears() == QLatin1String("10"); });
        QTest::newRow("incoming-cancelled")
            << QString() << Deed([](Person &other) { return reaches(other) && (other.say("HangUpCall"), true); });
    }

    void scenarioHappensAsRecorded()
    {
        QFETCH(QString, called);
        QFETCH(Deed, deed);
        // Whom the checker calls, and who calls in the scenarios.
        Person other(m_exchange, QStringLiteral("30010001"));
        QVERIFY(other.arrive());
        Person user(m_exchange, cUser);
        QVERIFY(user.writeSettings());
        QProcess checker;
        checker.setProcessChannelMode(QProcess::MergedChannels);
        checker.start(QStringLiteral(VOIP_CALLCHECK),
                      {QStringLiteral("replay"), QStringLiteral("--patience"), QString::number(cPatienceMs / 1000),
                       QStringLiteral("--user"), cUser, QStringLiteral("--registration-file"), QStringLiteral("-"),
                       scenario(called), QStringLiteral("--"), QStringLiteral(VOIPSDK_PROGRAM),
                       QStringLiteral("--settings"), QFileInfo(user.settingsFile()).absoluteFilePath()});
        checker.write(TestExchange::secretOf(cUser).toUtf8() + '\n');
        QVERIFY(checker.waitForBytesWritten(cPatienceMs));
        const bool done = deed(other);
        QTRY_COMPARE_WITH_TIMEOUT(checker.state(), QProcess::NotRunning, 2 * cPatienceMs);
        const QByteArray said = checker.readAll();
        QVERIFY2(done && checker.exitCode() == 0 && said.contains("as recorded:"), said.constData());
    }

private:
    static const QString cUser;

    static QString ringing() { return QStringLiteral("0 ") + cUser; }

    /// Calls the checker's user until that one is registered, and it rings there.
    static bool reaches(Person &other)
    {
        const auto rings = [&] { return other.peer().trace().filter(QStringLiteral("it rings there")).size() > 0; };
        const QDeadlineTimer deadline(cPatienceMs);
        QString word = QStringLiteral("23");
        while (word == QLatin1String("23") && !deadline.hasExpired()) {
            other.say("CallUser", {cUser, false});
            word.clear();
            if (!QTest::qWaitFor([&] { return rings() || !(word = other.hasHeard()).isEmpty(); }, cPatienceMs)) {
                return false;
            }
        }
        return word.isEmpty();
    }

    /// The ready scenario of this row, with that user called.
    static QString scenario(const QString &called)
    {
        QFile ready(QStringLiteral(VOIP_SCENARIOS "/%1.scn").arg(QString::fromLatin1(QTest::currentDataTag())));
        QFile own(QStringLiteral("run.scn"));
        if (!ready.open(QIODevice::ReadOnly) || !own.open(QIODevice::WriteOnly)) {
            return {};
        }
        const QByteArray callee = called.isEmpty() ? QByteArray() : " param1=" + called.toUtf8();
        own.write(ready.readAll().replace("expect CallUser", "expect CallUser" + callee));
        return QFileInfo(own).absoluteFilePath();
    }
};

const QString tst_ReplayedScenarios::cUser = QStringLiteral("30010000");

#include "support/TestProgram.h"
VOIP_TEST(tst_ReplayedScenarios, Guiless)
#include "tst_ReplayedScenarios.moc"
