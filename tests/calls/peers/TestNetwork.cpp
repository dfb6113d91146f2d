#include "calls/peers/TestNetwork.h"

#include "fakes/Patience.h"

#include <QFile>
#include <QTest>

TestNetwork::TestNetwork() = default;

TestNetwork::~TestNetwork()
{
    if (m_holder) {
        // The machines last as long as what holds them can be told something.
        m_holder->closeWriteChannel();
        m_holder->waitForFinished(cPatienceMs);
    }
}

bool TestNetwork::start()
{
    // As root at once, else as one who is root in a world of his own.
    return startBy({QStringLiteral("--net")}, {QStringLiteral("--net")}) ||
           startBy({QStringLiteral("--net"), QStringLiteral("--user"), QStringLiteral("--map-root-user")},
                   {QStringLiteral("--net"), QStringLiteral("--user"), QStringLiteral("--preserve-credentials")});
}

bool TestNetwork::startBy(const QStringList &unshare, const QStringList &enter)
{
    const QString file = QStringLiteral("network.machines");
    m_holder = std::make_unique<ChildProgram>(QStringLiteral("network.refused"));
    m_holder->setStandardInputFile(QString());
    m_holder->setStandardOutputFile(file, QIODevice::Truncate);
    const bool begun = m_holder->begin(QStringLiteral("unshare"),
                                       unshare + QStringList{QStringLiteral(CALLS_TEST_FOLDER "/peers/network")});
    const auto stands = [] { return said("network.machines").endsWith('\n'); };
    if (!begun ||
        !QTest::qWaitFor([&] { return stands() || m_holder->state() == QProcess::NotRunning; }, cPatienceMs) ||
        !stands()) {
        m_holder.reset();
        return false;
    }
    const QList<QByteArray> pids = said("network.machines").simplified().split(' ');
    int number = 0;
    for (TestMachine *machine : {&m_exchange, &m_caller, &m_called}) {
        machine->enter = QStringList{QStringLiteral("nsenter"), QStringLiteral("--target"),
                                     QString::fromLatin1(pids.value(number))} +
                         enter + QStringList{QStringLiteral("--")};
        machine->address = QStringLiteral("10.77.0.%1").arg(++number);
        machine->name = machine->address;
    }
    return true;
}

QByteArray TestNetwork::said(const char *file)
{
    QFile opened(QString::fromLatin1(file));
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}
