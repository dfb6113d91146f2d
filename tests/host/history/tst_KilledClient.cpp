#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "screen/ScreenKeys.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "traffic/TraceFolder.h"
#include "traffic/WireTrace.h"

#include "fakes/Patience.h"
#include "model/SystemSetData.h"

#include <QDir>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTableView>
#include <QTest>

#include <algorithm>

/// The built client, used by the keyboard and killed in mid-call: the next start shows the call.
class tst_KilledClient : public QObject
{
    Q_OBJECT

private slots:
    void callThatRanIsInTheListAfterTheNextStart_data()
    {
        QTest::addColumn<QString>("uid");
        QTest::addColumn<QString>("begun");
        QTest::addColumn<QStringList>("row");
        QTest::addColumn<QString>("notice");
        QTest::addColumn<QString>("missed");
        QTest::newRow("a call that is on") << QStringLiteral("30010001") << QStringLiteral("\"resultCode\":18")
                                           << QStringList{"李雷", "→ outgoing", "cut off", ""}
                                           << QStringLiteral("The call with 李雷 was cut off") << QString();
        QTest::newRow("one that rings") << QStringLiteral("30010007") << QStringLiteral("\"resultCode\":0}")
                                        << QStringList{"韩梅梅", "← incoming", "missed", ""}
                                        << QStringLiteral("Missed call from 韩梅梅") << QStringLiteral("1 missed");
    }

    void callThatRanIsInTheListAfterTheNextStart()
    {
        QFETCH(QString, uid);
        QFETCH(QString, begun);
        const QString trace = QDir::current().absoluteFilePath(uid + QStringLiteral(".txt"));
        QProcess demo;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(TraceFolder::cVariable), trace);
        demo.setProcessEnvironment(environment);
        demo.setProcessChannelMode(QProcess::ForwardedChannels);
        demo.start(QStringLiteral(VOIP_BIN_DIR "/kelvarim-demo"), QStringList());
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(trace, QStringLiteral("RegeditUser")), cPatienceMs);
        QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), {"search", "--sync", "--onlyvisible", "--name",
                                                               "KelvarIM", "windowactivate", "--sync"}),
                 0);
        // The keyboard stands in the search field: the first Return leads to who was found, the second calls.
        ScreenKeys keys;
        QVERIFY(keys.type(uid) && keys.enter() && keys.enter());
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(trace, begun), cPatienceMs);
        // What the trace says the client may still have to read; what it has read stands in its file.
        QTRY_VERIFY_WITH_TIMEOUT(isKept(), cPatienceMs);
        demo.kill();
        QVERIFY(demo.waitForFinished(cPatienceMs));
        CallProcess(trace).kill();

        ContactBook book(HostSession::loginDomain());
        HostSession session(book);
        QString error;
        QVERIFY(!session.start(QStringLiteral("/no/module.so"), &error));
        QCOMPARE(session.history().reports(), QStringList());
        MainWindow window(session, book);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window, cPatienceMs));
        const auto *table = window.findChild<QTableView *>(QStringLiteral("tableRecords"));
        QFETCH(QStringList, row);
        for (int column = 0; column < row.size(); ++column) {
            QCOMPARE(table->model()->index(0, column).data().toString(), row.at(column));
        }
        QVERIFY(table->model()->index(0, 4).data().toString().startsWith(QStringLiteral("Today ")));
        const QString notice = WindowProbe::text(&window, "lblCallNotice").section(QStringLiteral("  ·"), 0, 0);
        QTEST(notice, "notice");
        QTEST(WindowProbe::text(&window, "btnMissed"), "missed");
    }

private:
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_KilledClient, Widgets)
#include "tst_KilledClient.moc"
