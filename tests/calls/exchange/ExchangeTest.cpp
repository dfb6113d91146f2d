#include "calls/exchange/ExchangeTest.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>
#include <sys/stat.h>

namespace {

/// Processes whose first argument is this option with this value.
QList<qint64> runningWith(const QByteArray &option, const QString &value)
{
    QList<qint64> found;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(entry));
        const QList<QByteArray> arguments =
            file.open(QIODevice::ReadOnly) ? file.readAll().split('\0') : QList<QByteArray>();
        if (arguments.value(1) == option && arguments.value(2) == QFile::encodeName(value)) {
            found.append(entry.toLongLong());
        }
    }
    return found;
}

} // namespace

QByteArray ExchangeTest::bytesOf(const QString &file)
{
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

bool ExchangeTest::write(const QString &file, const QByteArray &bytes, int mode)
{
    QFile opened(file);
    return opened.open(QIODevice::WriteOnly) && opened.write(bytes) == bytes.size() && opened.flush() &&
           ::fchmod(opened.handle(), mode_t(mode)) == 0;
}

void ExchangeTest::begin()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void ExchangeTest::end()
{
    const bool gone = isAllGone();
    for (const qint64 pid : keepers() + servers()) {
        ::kill(pid_t(pid), SIGKILL);
    }
    QVERIFY2(gone, "something of the exchange still runs");
}

std::unique_ptr<EmbeddedExchange> ExchangeTest::exchange(const QString &kamailio) const
{
    return std::make_unique<EmbeddedExchange>(folder(), kamailio, QStringLiteral(VOIP_KEEPER));
}

std::unique_ptr<EmbeddedExchange> ExchangeTest::joined() const
{
    std::unique_ptr<EmbeddedExchange> made = exchange();
    made->join();
    return QTest::qWaitFor([&] { return made->isReady(); }, cPatienceMs) ? std::move(made) : nullptr;
}

void ExchangeTest::Killed::operator()(QProcess *process) const
{
    process->kill();
    process->waitForFinished(cPatienceMs);
    delete process;
}

ExchangeTest::Member ExchangeTest::member() const
{
    Member made(new QProcess);
    made->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    made->start(QStringLiteral(VOIP_MEMBER), {folder(), QStringLiteral(VOIP_KEEPER)});
    return made->waitForStarted(cPatienceMs) ? std::move(made) : nullptr;
}

bool ExchangeTest::says(QProcess &member, const QByteArray &begin)
{
    return QTest::qWaitFor(
        [&] {
            while (member.canReadLine()) {
                if (member.readLine().startsWith(begin)) {
                    return true;
                }
            }
            return false;
        },
        cPatienceMs);
}

QList<qint64> ExchangeTest::keepersOf(const QString &folder)
{
    return runningWith("--folder", folder);
}

QList<qint64> ExchangeTest::serversOf(const QString &folder)
{
    return runningWith("-f", folder + QLatin1String("/kamailio.cfg"));
}

qint64 ExchangeTest::firstServer() const
{
    for (const qint64 pid : servers()) {
        const QByteArray status = bytesOf(QStringLiteral("/proc/%1/stat").arg(pid));
        // Its process group has its own number.
        if (status.mid(status.lastIndexOf(')') + 2).split(' ').value(2).toLongLong() == pid) {
            return pid;
        }
    }
    return 0;
}

bool ExchangeTest::isAllGoneOf(const QString &folder)
{
    return QTest::qWaitFor([&] { return keepersOf(folder).isEmpty() && serversOf(folder).isEmpty(); }, cPatienceMs);
}

void ExchangeTest::killAndWait(qint64 pid)
{
    QVERIFY(pid > 0);
    QCOMPARE(::kill(pid_t(pid), SIGKILL), 0);
}
