#include "fakes/LogCapture.h"
#include "passport/PassportLoginServer.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

namespace {

// Shows the fields that no operation tells of.
class KeeperProbe : public CPassportLoginServer
{
public:
    using CPassportLoginServer::m_arrKeeperFlags;
    using CPassportLoginServer::m_arrKeeperTimers;
    using CPassportLoginServer::m_bIsPassportKeeplived;
    using CPassportLoginServer::m_iKeeperCount;
    using CPassportLoginServer::m_iKeeperState;
    using CPassportLoginServer::m_strKeeperText1;
    using CPassportLoginServer::m_strKeeperText2;
};

} // namespace

class tst_PassportLoginServer : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_log.take(); }

    void aNewKeeperHoldsNothing()
    {
        const KeeperProbe keeper;
        QVERIFY(keeper.GetPassportTGCCookie().isEmpty());
        QVERIFY(keeper.GetPassportRemCookie().isEmpty());
        QVERIFY(keeper.GetAuthIDByPassport().isEmpty());
        QCOMPARE(keeper.m_iKeeperState, 1);
        QCOMPARE(keeper.m_iKeeperCount, qint64(0));
        QVERIFY(keeper.m_strKeeperText1.isEmpty() && keeper.m_strKeeperText2.isEmpty());
        QCOMPARE(int(keeper.m_arrKeeperTimers.size()), 3);
        for (const QTimer &timer : keeper.m_arrKeeperTimers) {
            QVERIFY(!timer.isActive());
            QVERIFY(!timer.parent());
        }
        // Ten flags and the one that has a name.
        QCOMPARE(int(keeper.m_arrKeeperFlags.size()), 10);
        QVERIFY(!keeper.m_bIsPassportKeeplived);
        for (const bool bFlag : keeper.m_arrKeeperFlags) {
            QVERIFY(!bFlag);
        }
    }

    void signalsStandInTheirOrder()
    {
        const QMetaObject &meta = CPassportLoginServer::staticMetaObject;
        QStringList listName;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            listName.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(listName, QStringList({"signal_RemCookieChanged(QString)", "signal_UserOverdue()"}));
    }

    void eachCookieIsStoredByItself()
    {
        CPassportLoginServer keeper;
        keeper.SetPassportTGCCookie("tgc");
        keeper.SetPassportRemCookie("rem");
        keeper.SetPassportAuthIDCookie("auth");
        QCOMPARE(keeper.GetPassportTGCCookie(), QString("tgc"));
        QCOMPARE(keeper.GetPassportRemCookie(), QString("rem"));
        QCOMPARE(keeper.GetAuthIDByPassport(), QString("auth"));
        keeper.SetPassportTGCCookie("new");
        QCOMPARE(keeper.GetPassportTGCCookie(), QString("new"));
    }

    void anEmptyCookieLeavesTheStoredOne()
    {
        CPassportLoginServer keeper;
        keeper.SetPassportTGCCookie("tgc");
        keeper.SetPassportRemCookie("rem");
        keeper.SetPassportAuthIDCookie("auth");
        keeper.SetPassportTGCCookie("");
        keeper.SetPassportRemCookie("");
        keeper.SetPassportAuthIDCookie(QString());
        QCOMPARE(keeper.GetPassportTGCCookie(), QString("tgc"));
        QCOMPARE(keeper.GetPassportRemCookie(), QString("rem"));
        QCOMPARE(keeper.GetAuthIDByPassport(), QString("auth"));
    }

    void storingTheRememberCookieEmitsNothing()
    {
        CPassportLoginServer keeper;
        const QSignalSpy changed(&keeper, SIGNAL(signal_RemCookieChanged(QString)));
        QVERIFY(changed.isValid());
        keeper.SetPassportRemCookie("rem");
        QCOMPARE(changed.count(), 0);
    }

    void aManualRefreshLogsTheCookiesAndDoesNothingElse_data()
    {
        QTest::addColumn<QString>("tgc");
        QTest::addColumn<QString>("rem");
        QTest::addColumn<QString>("auth");
        QTest::addColumn<QString>("text");
        QTest::newRow("no cookies") << ""
                                    << ""
                                    << ""
                                    << "ManualRefreshAuthID authid =, TGC = ,ids_r = ";
        QTest::newRow("three cookies") << "T-1"
                                       << "R-1"
                                       << "A-1"
                                       << "ManualRefreshAuthID authid =A-1, TGC = T-1,ids_r = R-1";
    }

    void aManualRefreshLogsTheCookiesAndDoesNothingElse()
    {
        QFETCH(QString, tgc);
        QFETCH(QString, rem);
        QFETCH(QString, auth);
        QFETCH(QString, text);
        CPassportLoginServer keeper;
        const QSignalSpy changed(&keeper, SIGNAL(signal_RemCookieChanged(QString)));
        const QSignalSpy overdue(&keeper, SIGNAL(signal_UserOverdue()));
        keeper.SetPassportTGCCookie(tgc);
        keeper.SetPassportRemCookie(rem);
        keeper.SetPassportAuthIDCookie(auth);

        QTest::ignoreMessage(QtDebugMsg, "CPassportLoginServer::ManualRefreshAuthID return direct.");
        keeper.ManualRefreshAuthID();

        const QStringList listRecord = m_log.take();
        QCOMPARE(listRecord.size(), 2);
        QVERIFY2(listRecord.at(0).contains("[DEBUG]") && listRecord.at(0).endsWith("]: " + text),
                 qPrintable(listRecord.at(0)));
        QVERIFY2(listRecord.at(1).contains("[DEBUG]") &&
                     listRecord.at(1).endsWith("]: CPassportLoginServer::ManualRefreshAuthID return direct."),
                 qPrintable(listRecord.at(1)));
        QCOMPARE(keeper.GetPassportTGCCookie(), tgc);
        QCOMPARE(keeper.GetPassportRemCookie(), rem);
        QCOMPARE(keeper.GetAuthIDByPassport(), auth);
        QCOMPARE(changed.count() + overdue.count(), 0);
    }

    void userOverdueOnlyLogs()
    {
        CPassportLoginServer keeper;
        const QSignalSpy overdue(&keeper, SIGNAL(signal_UserOverdue()));
        keeper.UserOverdue();
        const QStringList listRecord = m_log.take();
        QCOMPARE(listRecord.size(), 1);
        QVERIFY2(listRecord.at(0).contains("[DEBUG]") &&
                     listRecord.at(0).endsWith("]: CPassportLoginServer::UserOverdue return direct."),
                 qPrintable(listRecord.at(0)));
        QCOMPARE(overdue.count(), 0);
    }

    void onlyAnExpiredCookieTellsTheClientAndTheCookiesStay()
    {
        CPassportLoginServer keeper;
        const QSignalSpy overdue(&keeper, SIGNAL(signal_UserOverdue()));
        keeper.SetPassportTGCCookie("tgc");
        keeper.UserCookieExpire();
        QCOMPARE(overdue.count(), 1);
        QCOMPARE(keeper.GetPassportTGCCookie(), QString("tgc"));
    }

    void nothingKeepsTheSessionAlive()
    {
        CPassportLoginServer keeper;
        QVERIFY(!keeper.IsPassportKeeplived());
        keeper.SetPassportTGCCookie("tgc");
        keeper.SetPassportAuthIDCookie("auth");
        QTest::ignoreMessage(QtDebugMsg, "CPassportLoginServer::ManualRefreshAuthID return direct.");
        keeper.ManualRefreshAuthID();
        keeper.UserOverdue();
        keeper.UserCookieExpire();
        QVERIFY(!keeper.IsPassportKeeplived());
    }

private:
    LogCapture m_log;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PassportLoginServer, Guiless)
#include "tst_PassportLoginServer.moc"
