#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "history/CallEntry.h"
#include "screen/ScreenKeys.h"
#include "traffic/TraceFolder.h"
#include "traffic/WireTrace.h"

#include "fakes/Patience.h"
#include "host/panes/BusReader.h"
#include "model/SystemSetData.h"

#include <QDir>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

#include <algorithm>

namespace {

constexpr int cMostReturns = 20;

} // namespace

/// The built client, used by the keyboard and killed in mid-call: the next start shows the call. What that shows is
/// read on the accessibility bus, from another process.
class tst_KilledClient : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_reader.start()); }

    void callThatRanIsInTheListAfterTheNextStart_data()
    {
        QTest::addColumn<QString>("uid");
        QTest::addColumn<QString>("begun");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("notice");
        QTest::addColumn<bool>("missed");
        QTest::newRow("a call that is on") << QStringLiteral("30010001") << QStringLiteral("\"resultCode\":18")
                                           << QStringLiteral("李雷, outgoing, cut off, Today ")
                                           << QStringLiteral("The call with 李雷 was cut off  ·") << false;
        QTest::newRow("one that rings") << QStringLiteral("30010007") << QStringLiteral("\"resultCode\":0}")
                                        << QStringLiteral("韩梅梅, incoming, missed, Today ")
                                        << QStringLiteral("Missed call from 韩梅梅  ·") << true;
    }

    void callThatRanIsInTheListAfterTheNextStart()
    {
        QFETCH(QString, uid);
        QFETCH(QString, begun);
        const QString trace = QDir::current().absoluteFilePath(uid + QStringLiteral(".txt"));
        QProcess demo;
        start(demo, trace);
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(trace, QStringLiteral("RegeditUser")), cPatienceMs);
        QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), {"search", "--sync", "--onlyvisible", "--name",
                                                               "KelvarIM", "windowactivate", "--sync"}),
                 0);
        QVERIFY(call(uid, trace));
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(trace, begun), cPatienceMs);
        // What the trace says the client may still have to read; what it has read stands in its file.
        QTRY_VERIFY_WITH_TIMEOUT(isKept(), cPatienceMs);
        demo.kill();
        QVERIFY(demo.waitForFinished(cPatienceMs));
        CallProcess(trace).kill();

        QProcess next;
        const QString nextTrace = trace + QStringLiteral(".next");
        start(next, nextTrace);
        QFETCH(QString, row);
        QFETCH(QString, notice);
        // A look takes its time, which counts.
        QVERIFY(QTest::qWaitFor([&] { return shows(QStringLiteral("cell"), row); }, cPatienceMs));
        QVERIFY(QTest::qWaitFor([&] { return shows(QStringLiteral("label"), notice); }, cPatienceMs));
        QFETCH(bool, missed);
        QCOMPARE(shows(QStringLiteral("push button"), QStringLiteral("1 missed")), missed);
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(nextTrace, QStringLiteral("RegeditUser")), cPatienceMs);
        next.terminate();
        QVERIFY(next.waitForFinished(cPatienceMs));
        QCOMPARE(next.exitCode(), 130);
    }

private:
    static void start(QProcess &demo, const QString &strTrace)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(TraceFolder::cVariable), strTrace);
        demo.setProcessEnvironment(environment);
        demo.setProcessChannelMode(QProcess::ForwardedChannels);
        demo.start(QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo"), QStringList());
    }
    /// Types the id and calls; false where the client does not.
    static bool call(const QString &strUid, const QString &strTrace)
    {
        // The keyboard stands in the search field: the first Return leads to who was found, the second calls, once the
        // client has noticed that it is connected; until then a Return does nothing.
        ScreenKeys keys;
        bool able = keys.type(strUid) && keys.enter();
        bool called = false;
        for (int i = 0; i < cMostReturns && able && !called; ++i) {
            able = keys.enter();
            called = QTest::qWaitFor([&] { return isTraced(strTrace, QStringLiteral("CallUser")); },
                                     cPatienceMs / cMostReturns);
        }
        return called;
    }
    /// Whether a client on the bus shows a part of that role whose name begins so.
    bool shows(const QString &strRole, const QString &strBegin) const
    {
        const QList<BusReader::Part> parts = m_reader.everything();
        return std::any_of(parts.begin(), parts.end(), [&](const BusReader::Part &part) {
            return part.is(BusReader::Showing) && part.role == strRole && part.name.startsWith(strBegin);
        });
    }
    static bool isTraced(const QString &strFile, const QString &strText)
    {
        const QList<WireLine> lines = WireTrace(strFile).readNew();
        return std::any_of(lines.begin(), lines.end(),
                           [&](const WireLine &line) { return line.text.contains(strText); });
    }
    /// Whether the user's file has a newest call that is not over.
    static bool isKept()
    {
        SystemSetData settings;
        settings.initCommonData();
        settings.initData(QLatin1String(ContactBook::cOwnId));
        bool kept = false;
        const QString name = QStringLiteral("look");
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
            db.setDatabaseName(settings.m_strUserFolder + QStringLiteral("/callHistory.db"));
            QSqlQuery query(db.open() ? db : QSqlDatabase());
            query.exec(QStringLiteral("SELECT outcome FROM calls ORDER BY id DESC LIMIT 1"));
            const int outcome = query.next() ? query.value(0).toInt() : -1;
            kept = outcome == outcomeRunning || outcome == outcomeRunningIn;
        }
        QSqlDatabase::removeDatabase(name);
        return kept;
    }

    BusReader m_reader;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_KilledClient, Appless)
#include "tst_KilledClient.moc"
