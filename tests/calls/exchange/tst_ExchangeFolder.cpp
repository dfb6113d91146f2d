// The folder of the exchange: who may look into it, and how what is damaged in it is made anew.

#include "calls/exchange/ExchangeCertificates.h"
#include "calls/exchange/ExchangeFolder.h"
#include "calls/exchange/ExchangeLog.h"
#include "calls/exchange/ExchangeTest.h"
#include "calls/exchange/SipClient.h"

#include "fakes/Patience.h"

#include <QtTest>

#include <sys/stat.h>

class tst_ExchangeFolder : public ExchangeTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    void whatIsDamagedIsMadeAnew_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("mode");
        for (const char *name : {"ca.pem", "certificate.pem", "key.pem", "secret", "port"}) {
            QTest::addRow("%s empty", name) << QByteArray(name) << QByteArray() << 0600;
            QTest::addRow("%s garbage", name) << QByteArray(name) << QByteArray("\x00\xff -----BEGIN \n\"", 16) << 0600;
            QTest::addRow("%s for all to read", name) << QByteArray(name) << QByteArray("0") << 0644;
        }
        QTest::newRow("secret of another length") << QByteArray("secret") << QByteArray("abcdef") << 0600;
        QTest::newRow("secret with a quote") << QByteArray("secret") << QByteArray(64, '"') << 0600;
        QTest::newRow("port of the system") << QByteArray("port") << QByteArray("1") << 0600;
        QTest::newRow("configuration") << QByteArray("kamailio.cfg") << QByteArray("garbage") << 0600;
        QTest::newRow("socket") << QByteArray("keeper") << QByteArray("a file") << 0600;
        QTest::newRow("log") << QByteArray("exchange.log") << QByteArray(300 * 1024, 'x') << 0600;
    }

    void whatIsDamagedIsMadeAnew()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, bytes);
        QFETCH(int, mode);
        makeUsedFolder();
        QVERIFY(write(file(name), bytes, mode));
        const auto exchange = joined();
        QVERIFY(exchange);
        SipClient user(exchange->place(), "30010001");
        QVERIFY2(user.connectToExchange(), qPrintable(user.error()));
        QCOMPARE(user.registerUser(), 200);
        QVERIFY(bytesOf(file(name)) != bytes);
    }

    void whatIsGoodIsKept()
    {
        QVERIFY(joined());
        QVERIFY(isAllGone());
        const QByteArray authority = bytesOf(file("ca.pem"));
        const QByteArray secret = bytesOf(file("secret"));
        QVERIFY(joined());
        QCOMPARE(bytesOf(file("ca.pem")), authority);
        QCOMPARE(bytesOf(file("secret")), secret);
    }

    void whatIsDamagedWhileItRunsIsMendedForTheNext_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("secret") << QByteArray("secret");
        QTest::newRow("authority") << QByteArray("ca.pem");
    }

    void whatIsDamagedWhileItRunsIsMendedForTheNext()
    {
        QFETCH(QByteArray, name);
        const auto first = joined();
        QVERIFY(first);
        QVERIFY(QFile::remove(file(name)));
        const auto second = joined();
        QVERIFY(second);
        QCOMPARE(second->place().secret, first->place().secret);
        SipClient user(second->place(), "30010001");
        QVERIFY2(user.connectToExchange(), qPrintable(user.error()));
        QCOMPARE(user.registerUser(), 200);
    }

    void aFolderThatWentIsMadeAnew()
    {
        const auto exchange = joined();
        QVERIFY(exchange);
        const qint64 before = firstServer();
        QSignalSpy ready(exchange.get(), &EmbeddedExchange::ready);
        QVERIFY(QDir(folder()).removeRecursively());
        QTRY_COMPARE_WITH_TIMEOUT(ready.size(), 1, cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(keepers().size(), 1, cPatienceMs);
        QVERIFY(!servers().contains(before));
        SipClient user(exchange->place(), "30010001");
        QVERIFY2(user.connectToExchange(), qPrintable(user.error()));
        QCOMPARE(user.registerUser(), 200);
    }

    void anOpenFolderIsClosed()
    {
        QVERIFY(QDir().mkdir(folder()));
        QCOMPARE(::chmod(qPrintable(folder()), 0755), 0);
        const auto exchange = joined();
        QVERIFY(exchange);
        struct stat status = {};
        QCOMPARE(::stat(qPrintable(folder()), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0700U);
    }

    void whatIsNoFolderOfOnesOwnIsRefused_data()
    {
        QTest::addColumn<QString>("set");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a file") << "%1-file"
                                << "it is no folder";
        QTest::newRow("a link") << "%1-link"
                                << "it is no folder";
        QTest::newRow("nowhere") << "%1/none/x"
                                 << "No such file or directory";
        QTest::newRow("too long") << "%1" + QString(100, 'x') << "its path is too long";
        QTest::newRow("quotes") << "%1\"x"
                                << "its path is none that Kamailio can read";
        QTest::newRow("part of a path") << "x"
                                        << "its path is none that Kamailio can read";
    }

    void whatIsNoFolderOfOnesOwnIsRefused()
    {
        QFETCH(QString, set);
        QFETCH(QString, reason);
        set.replace("%1", folder());
        QVERIFY(write(folder() + "-file", "x"));
        QVERIFY(QFile::link(QDir::tempPath(), folder() + "-link"));
        EmbeddedExchange exchange(set, {}, VOIP_KEEPER);
        QSignalSpy failed(&exchange, &EmbeddedExchange::failed);
        exchange.join();
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, cPatienceMs);
        QCOMPARE(failed.at(0).at(0).toString(), QString("the exchange has no folder, %1: %2").arg(set, reason));
    }

    void theLongestPathThatIsTakenHasRoomForTheSocket()
    {
        QString set = folder() + QString(100, 'x');
        QString error;
        while (ExchangeFolder::take(set, &error).isEmpty()) {
            QVERIFY2(error.endsWith(": its path is too long") && set.size() > folder().size(), qPrintable(error));
            set.chop(1);
        }
        {
            EmbeddedExchange exchange(set, {}, VOIP_KEEPER);
            exchange.join();
            QVERIFY(QTest::qWaitFor([&] { return exchange.isReady(); }, cPatienceMs));
        }
        QVERIFY(isAllGoneOf(set));
    }

    void itStandsInTheRunTimeFolder()
    {
        QVERIFY(QDir().mkdir(folder()));
        QCOMPARE(::chmod(qPrintable(folder()), 0700), 0);
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder()));
        QString error;
        const QString found = ExchangeFolder::take({}, &error);
        before.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", before);
        QCOMPARE(found, folder() + "/kelvarim-exchange");
    }

    void certificatesAreGoodOnceMade()
    {
        QVERIFY(QDir().mkdir(folder()));
        QString error;
        QVERIFY(!ExchangeCertificates::areGood(folder()));
        QVERIFY2(ExchangeCertificates::make(folder(), &error), qPrintable(error));
        QVERIFY(ExchangeCertificates::areGood(folder()));
        const QByteArray key = bytesOf(file("key.pem"));
        QVERIFY(ExchangeCertificates::make(folder(), &error));
        QVERIFY(bytesOf(file("key.pem")) != key);
        // The key of another certificate.
        QVERIFY(write(file("key.pem"), key));
        QVERIFY(!ExchangeCertificates::areGood(folder()));
    }

    void theLogStaysWithinItsLimit()
    {
        ExchangeLog log(folder() + "-log", 4096);
        for (int i = 0; i < 100; ++i) {
            log.write(QByteArray(499, 'a') + '\n');
        }
        const qint64 size = QFileInfo(folder() + "-log").size();
        QVERIFY(size > 0 && size <= 4096);
        log.write(" 0(9) CRITICAL: the la");
        QVERIFY(log.lastError().isEmpty());
        log.write("st\nmore\n");
        QCOMPARE(log.lastError(), QByteArray("CRITICAL: the last"));
        log.forgetError();
        QCOMPARE(log.lastError(), QByteArray());
    }

    void aFullLogBeginsAnewAndKeepsTheOneBefore()
    {
        QVERIFY(write(folder() + "-log", QByteArray(4090, 'a')));
        ExchangeLog log(folder() + "-log", 4096);
        log.write("begins anew\n");
        QCOMPARE(bytesOf(folder() + "-log"), QByteArray("begins anew\n"));
        QCOMPARE(bytesOf(folder() + "-log.1").size(), 4090);
    }

private:
    /// The folder as an exchange has left it, which is started for the first one alone.
    void makeUsedFolder()
    {
        if (m_left.isEmpty()) {
            QVERIFY(joined());
            QVERIFY(isAllGone());
            for (const QString &name : QDir(folder()).entryList(QDir::Files)) {
                m_left.insert(name, bytesOf(folder() + '/' + name));
            }
            return;
        }
        QVERIFY(QDir().mkdir(folder()));
        for (auto left = m_left.cbegin(); left != m_left.cend(); ++left) {
            QVERIFY(write(folder() + '/' + left.key(), left.value()));
        }
    }

    QMap<QString, QByteArray> m_left;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ExchangeFolder, Guiless)
#include "tst_ExchangeFolder.moc"
