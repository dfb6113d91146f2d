// The life of the exchange that the call processes of one user start for themselves: when it comes, what it outlives,
// what brings it back, and that nothing of it stays. Processes are real and are really killed.

#include "calls/exchange/ExchangeTest.h"
#include "calls/exchange/SipClient.h"

#include "fakes/Patience.h"

#include <QLocalServer>
#include <QTcpServer>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// What the link says, be it a path or not.
QByteArray linkOf(const QString &link)
{
    char target[256] = {};
    const ssize_t size = ::readlink(qPrintable(link), target, sizeof(target));
    return QByteArray(target, int(qMax<ssize_t>(0, size)));
}

} // namespace

class tst_EmbeddedExchange : public ExchangeTest
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    void comesWithTheFirstAndGoesWithTheLast()
    {
        QElapsedTimer clock;
        clock.start();
        auto first = joined();
        QVERIFY(first);
        qInfo("ready after %lld ms", clock.elapsed());
        const qint64 server = firstServer();
        QVERIFY(server > 0);
        const auto second = member();
        QVERIFY(second && says(*second, "ready " + first->place().proxy.toUtf8()));
        first.reset();
        // Who is still in has it as it was.
        const auto third = joined();
        QVERIFY(third);
        QCOMPARE(firstServer(), server);
        QCOMPARE(keepers().size(), 1);
        second->kill();
        QVERIFY(second->waitForFinished(cPatienceMs));
        QCOMPARE(firstServer(), server);
    }

    void goesWithTheLastThatIsKilled()
    {
        const auto only = member();
        QVERIFY(only && says(*only, "ready"));
        QVERIFY(firstServer() > 0);
        only->kill();
        QVERIFY(only->waitForFinished(cPatienceMs));
        QVERIFY(isAllGone());
        QVERIFY(!QFile::exists(file("keeper")));
        QVERIFY2(!QFile::exists(file("kamailio.cfg")), "the secret stands in a file that nobody needs");
    }

    void outlivesTheOneThatStartedIt()
    {
        const auto starter = member();
        QVERIFY(starter && says(*starter, "ready"));
        const auto exchange = joined();
        QVERIFY(exchange);
        SipClient user(exchange->place(), "30010001");
        QVERIFY(user.connectToExchange());
        QCOMPARE(user.registerUser(), 200);
        const qint64 server = firstServer();
        starter->kill();
        QVERIFY(starter->waitForFinished(cPatienceMs));
        QCOMPARE(user.registerUser(), 200);
        QCOMPARE(firstServer(), server);
        QVERIFY(exchange->isReady());
    }

    void manyAtOnceStartOne()
    {
        std::array<Member, 6> members;
        for (auto &each : members) {
            each = member();
            QVERIFY(each);
        }
        for (const auto &each : members) {
            QVERIFY(says(*each, "ready"));
        }
        QTRY_COMPARE_WITH_TIMEOUT(keepers().size(), 1, cPatienceMs);
        const QList<qint64> all = servers();
        const qint64 group = ::getpgid(pid_t(firstServer()));
        for (const qint64 pid : all) {
            QCOMPARE(qint64(::getpgid(pid_t(pid))), group);
        }
    }

    void comesAnewWhenItIsKilled_data()
    {
        QTest::addColumn<bool>("keeper");
        QTest::addColumn<bool>("server");
        QTest::newRow("Kamailio's first process") << false << true;
        QTest::newRow("the keeper") << true << false;
        QTest::newRow("both") << true << true;
    }

    void comesAnewWhenItIsKilled()
    {
        QFETCH(bool, keeper);
        QFETCH(bool, server);
        const auto exchange = joined();
        QVERIFY(exchange);
        const auto other = member();
        QVERIFY(other && says(*other, "ready"));
        const ExchangePlace before = exchange->place();
        SipClient user(before, "30010001");
        QVERIFY(user.connectToExchange());
        QCOMPARE(user.registerUser(), 200);
        const QList<qint64> all = servers();
        const qint64 first = firstServer();
        QSignalSpy lost(exchange.get(), &EmbeddedExchange::lost);
        QSignalSpy ready(exchange.get(), &EmbeddedExchange::ready);
        QElapsedTimer clock;
        clock.start();
        if (keeper) {
            killAndWait(keepers().value(0));
        }
        if (server) {
            killAndWait(first);
        }
        QTRY_COMPARE_WITH_TIMEOUT(ready.size(), 1, cPatienceMs);
        qInfo("ready again after %lld ms", clock.elapsed());
        QCOMPARE(lost.size(), 1);
        QVERIFY(says(*other, "lost") && says(*other, "ready"));
        // Who registers again finds it where it was, with the secret that it had.
        QCOMPARE(exchange->place().proxy, before.proxy);
        QCOMPARE(exchange->place().secret, before.secret);
        SipClient again(before, "30010001");
        QVERIFY2(again.connectToExchange(), qPrintable(again.error()));
        QCOMPARE(again.registerUser(), 200);
        qInfo("registered again after %lld ms", clock.elapsed());
        QCOMPARE(keepers().size(), 1);
        const QList<qint64> now = servers();
        for (const qint64 pid : all) {
            QVERIFY2(!now.contains(pid), "a process of the killed exchange still runs");
        }
    }

    void anotherOnesPortIsLeftAlone()
    {
        QVERIFY(joined());
        QVERIFY(isAllGone());
        const quint16 last = bytesOf(file("port")).toUShort();
        QTcpServer taken;
        QVERIFY(taken.listen(QHostAddress::LocalHost, last));
        const auto exchange = joined();
        QVERIFY(exchange);
        QVERIFY(exchange->place().proxy != QStringLiteral("sip:localhost:%1;transport=tls").arg(last));
        SipClient user(exchange->place(), "30010001");
        QVERIFY(user.connectToExchange());
        QCOMPARE(user.registerUser(), 200);
    }

    void theLastPortIsTakenAgain()
    {
        auto exchange = joined();
        QVERIFY(exchange);
        const QString proxy = exchange->place().proxy;
        exchange.reset();
        QVERIFY(isAllGone());
        exchange = joined();
        QVERIFY(exchange);
        QCOMPARE(exchange->place().proxy, proxy);
    }

    void anotherKamailioIsLeftAlone()
    {
        QTcpServer free;
        QVERIFY(free.listen(QHostAddress::LocalHost, 0));
        const QByteArray port = QByteArray::number(free.serverPort());
        free.close();
        const QString configuration = folder() + "-other.cfg";
        QVERIFY(
            write(configuration, "disable_tcp=yes\nlisten=udp:127.0.0.1:" + port +
                                     "\nloadmodule \"sl.so\"\nrequest_route { sl_send_reply(\"200\", \"OK\"); }\n"));
        QProcess other;
        other.start("/usr/sbin/kamailio", {"-f", configuration, "-DD", "-E", "-m", "8", "-M", "4"});
        QVERIFY(other.waitForStarted(cPatienceMs));
        for (int i = 0; i < 2; ++i) {
            QVERIFY(joined());
            QVERIFY(isAllGone());
        }
        QCOMPARE(other.state(), QProcess::Running);
        other.terminate();
        QVERIFY(other.waitForFinished(cPatienceMs));
    }

    void saysWhatIsMissingAndComesOnceItIsThere()
    {
        const QString program = folder() + "-kamailio";
        const auto exchange = this->exchange(program);
        QSignalSpy failed(exchange.get(), &EmbeddedExchange::failed);
        exchange->join();
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, cPatienceMs);
        QCOMPARE(failed.at(0).at(0).toString(), program + " is no program");
        QVERIFY(!exchange->isReady());
        QVERIFY(QFile::link("/usr/sbin/kamailio", program));
        QTRY_VERIFY_WITH_TIMEOUT(exchange->isReady(), cPatienceMs);
        QCOMPARE(failed.size(), 1);
    }

    void saysWhatKamailioSaid()
    {
        const QString program = folder() + "-broken";
        // Another number each time, as that of its process is.
        QVERIFY(write(program, "#!/bin/sh\necho \" 0($$) ERROR: the reason\" >&2\nexit 1\n", 0700));
        const auto exchange = this->exchange(program);
        QSignalSpy failed(exchange.get(), &EmbeddedExchange::failed);
        exchange->join();
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, cPatienceMs);
        QCOMPARE(failed.at(0).at(0).toString(), QString("ERROR: the reason"));
        // It has been tried once more by then, for the same reason.
        QTRY_VERIFY_WITH_TIMEOUT(bytesOf(file("exchange.log")).count("the reason") > 3, cPatienceMs);
        QTest::qWait(100);
        QCOMPARE(failed.size(), 1);
    }

    void saysThatItsKeeperIsMissing()
    {
        EmbeddedExchange exchange(folder(), {}, "/nowhere/kelvarim-exchange");
        QSignalSpy failed(&exchange, &EmbeddedExchange::failed);
        exchange.join();
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, cPatienceMs);
        QCOMPARE(failed.at(0).at(0).toString(), QString("/nowhere/kelvarim-exchange cannot be started"));
    }

    void keeperThatCannotLiveIsStartedWithGrowingPausesAndToldOnce()
    {
        QVERIFY(QDir().mkdir(folder()));
        QCOMPARE(::chmod(qPrintable(folder()), 0700), 0);
        const QString starts = folder() + "-starts";
        const QString keeper = folder() + "-keeper";
        QVERIFY(write(keeper, "#!/bin/sh\necho >>" + starts.toUtf8() + "\n", 0700));
        const auto started = [&] { return bytesOf(starts).size(); };
        // Its socket is this test's, which lets each one in and goes.
        int seen = 0;
        std::unique_ptr<QLocalServer> socket;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            if (started() > seen) {
                seen = started();
                socket = std::make_unique<QLocalServer>();
                QVERIFY(socket->listen(file("keeper")));
            } else if (socket && socket->hasPendingConnections()) {
                socket.reset();
            }
        });
        look.start(1);
        EmbeddedExchange exchange(folder(), {}, keeper);
        QSignalSpy failed(&exchange, &EmbeddedExchange::failed);
        QElapsedTimer clock;
        clock.start();
        exchange.join();
        // The second comes at once, those behind it after 250, 500, 1000 and 2000 ms, or a twentieth sooner: the timer
        // is a coarse one.
        QTRY_COMPARE_WITH_TIMEOUT(started(), 6, cPatienceMs);
        QVERIFY2(clock.elapsed() >= 3750 * 19 / 20, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(failed.size(), 1);
        QCOMPARE(failed.at(0).at(0).toString(), keeper + " does not keep the exchange in " + folder());
    }

    void keeperThatCannotKeepSaysWhyInItsLog_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("lock") << QByteArray("lock");
        QTest::newRow("socket") << QByteArray("keeper");
    }

    void keeperThatCannotKeepSaysWhyInItsLog()
    {
        QFETCH(QByteArray, name);
        QVERIFY(QDir().mkpath(file(name) + "/inside"));
        QCOMPARE(::chmod(qPrintable(folder()), 0700), 0);
        QProcess keeper;
        keeper.start(VOIP_KEEPER, {"--folder", folder()});
        QVERIFY(keeper.waitForFinished(cPatienceMs));
        QCOMPARE(keeper.exitCode(), 1);
        const QString told = file(name) + ": Is a directory\n";
        QCOMPARE(QString::fromUtf8(keeper.readAllStandardError()), "kelvarim-exchange: " + told);
        QCOMPARE(QString::fromUtf8(bytesOf(file("exchange.log"))), told);
    }

    void whoLooksAtTheConfigurationIsNoRestOfAnExchange()
    {
        QVERIFY(QDir().mkdir(folder()));
        QVERIFY(write(file("kamailio.cfg"), "of a keeper that was killed\n"));
        QProcess reader;
        reader.start("/usr/bin/tail", {"-f", file("kamailio.cfg")});
        QVERIFY(reader.waitForStarted(cPatienceMs));
        const bool came = joined() != nullptr;
        const QProcess::ProcessState state = reader.state();
        reader.kill();
        QVERIFY(reader.waitForFinished(cPatienceMs));
        QVERIFY(came);
        QCOMPARE(state, QProcess::Running);
    }

    void noSecretIsSeenFromOutside()
    {
        const auto exchange = joined();
        QVERIFY(exchange);
        SipClient user(exchange->place(), "30010001");
        QVERIFY(user.connectToExchange());
        QCOMPARE(user.registerUser(), 200);
        SipClient wrong(exchange->place(), "30010001", "guessed-and-wrong");
        QVERIFY(wrong.connectToExchange());
        QCOMPARE(wrong.registerUser(), 403);
        const QByteArray secret = exchange->place().secret;
        const QByteArray password = exchange->place().passwordOf("30010001").toUtf8();
        QCOMPARE(secret.size(), 64);
        QByteArray seen = bytesOf(file("exchange.log"));
        for (const qint64 pid : keepers() + servers()) {
            seen += bytesOf(QString("/proc/%1/cmdline").arg(pid)) + bytesOf(QString("/proc/%1/environ").arg(pid));
        }
        QVERIFY(!seen.isEmpty());
        QVERIFY(!seen.contains(secret) && !seen.contains(password) && !seen.contains("guessed-and-wrong"));
        for (const QFileInfo &each : QDir(folder()).entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)) {
            struct stat status = {};
            QCOMPARE(::stat(qPrintable(each.filePath()), &status), 0);
            QVERIFY2((status.st_mode & 0077) == 0, qPrintable(each.filePath()));
        }
    }

    void listensOnTheLoopbackAlone()
    {
        const auto exchange = joined();
        QVERIFY(exchange);
        QSet<QByteArray> sockets;
        for (const qint64 pid : servers()) {
            const QDir descriptors(QString("/proc/%1/fd").arg(pid));
            for (const QString &each : descriptors.entryList(QDir::Files | QDir::System)) {
                const QByteArray target = linkOf(descriptors.filePath(each));
                if (target.startsWith("socket:[")) {
                    sockets.insert(target.mid(8).chopped(1));
                }
            }
        }
        int listening = 0;
        for (const char *table : {"tcp", "tcp6", "udp", "udp6"}) {
            const QList<QByteArray> rows = bytesOf(QString("/proc/net/") + table).split('\n');
            for (const QByteArray &row : rows) {
                const QList<QByteArray> words = row.simplified().split(' ');
                const bool listens = words.value(3) == "0A" || QByteArray(table).startsWith("udp");
                if (listens && sockets.contains(words.value(9))) {
                    ++listening;
                    QVERIFY2(words.at(1).startsWith("0100007F:") ||
                                 words.at(1).startsWith("00000000000000000000000001000000:"),
                             row);
                }
            }
        }
        QVERIFY(listening > 0);
    }

    void nothingThatTheStarterHadOpenStaysOpen()
    {
        QTcpServer device;
        QVERIFY(device.listen(QHostAddress::LocalHost, 0));
        // Without the mark that programs which are started do not get it.
        const int copy = ::dup(int(device.socketDescriptor()));
        const auto exchange = joined();
        QVERIFY(exchange);
        const QByteArray own = linkOf(QString("/proc/self/fd/%1").arg(copy));
        QVERIFY2(own.startsWith("socket:["), own);
        for (const qint64 pid : keepers() + servers()) {
            const QDir descriptors(QString("/proc/%1/fd").arg(pid));
            const QStringList all = descriptors.entryList(QDir::Files | QDir::System);
            QVERIFY(!all.isEmpty());
            for (const QString &each : all) {
                QVERIFY2(linkOf(descriptors.filePath(each)) != own,
                         "a connection of the starter's is open in the exchange");
            }
        }
        ::close(copy);
    }

    void whatTheKeeperHasOpenIsItsOwn()
    {
        // Kamailio itself closes what it is given.
        const QString program = folder() + "-kamailio";
        const QString open = folder() + "-open";
        QVERIFY(write(program, "#!/bin/sh\nls -l /proc/$$/fd >" + open.toUtf8() + "\nexec /usr/sbin/kamailio \"$@\"\n",
                      0700));
        const auto exchange = this->exchange(program);
        exchange->join();
        QTRY_VERIFY_WITH_TIMEOUT(exchange->isReady(), cPatienceMs);
        const QByteArray all = bytesOf(open);
        QVERIFY2(all.contains(" 2 -> pipe:") && !all.contains(folder().toUtf8() + '/') && !all.contains("socket:"),
                 all);
    }

    void needsNoRoot()
    {
        if (::geteuid() != 0) {
            QVERIFY(joined());
            return;
        }
        const QString place = QString("/tmp/kx-%1").arg(::getpid());
        QVERIFY(QDir().mkdir(place));
        QCOMPARE(::chown(qPrintable(place), 65534, 65534), 0);
        QProcess member;
        member.start("/usr/bin/setpriv", {"--reuid", "65534", "--regid", "65534", "--clear-groups", VOIP_MEMBER,
                                          place + "/x", VOIP_KEEPER});
        const bool ready = member.waitForStarted(cPatienceMs) && says(member, "ready");
        struct stat status = {};
        ::stat(qPrintable(place + "/x/secret"), &status);
        member.kill();
        member.waitForFinished(cPatienceMs);
        const bool gone = isAllGoneOf(place + "/x");
        QVERIFY(QDir(place).removeRecursively());
        QVERIFY(ready && gone);
        QCOMPARE(status.st_uid, uid_t(65534));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EmbeddedExchange, Guiless)
#include "tst_EmbeddedExchange.moc"
