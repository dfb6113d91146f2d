#include "calls/peers/Desktop.h"

#include "fakes/Patience.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>
#include <QTest>
#include <QUuid>

#include <array>
#include <unistd.h>

Desktop::Desktop(const TestExchange &exchange, const TestMachine &machine, const QString &id)
    : m_person(exchange, id), m_machine(machine),
      m_folder(QDir::current().absoluteFilePath(QUuid::createUuid().toString(QUuid::WithoutBraces))),
      m_trace(m_folder + QStringLiteral("/wire.trace"))
{
    m_person.set(QStringLiteral("process/kind"), QStringLiteral("calls"));
    QDir().mkpath(m_folder);
    for (const char *name : {"home", "tmp"}) {
        QDir(m_folder).mkdir(QLatin1String(name));
        QFile::setPermissions(file(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}

Desktop::~Desktop()
{
    quit();
}

bool Desktop::start()
{
    if (!m_person.writeSettings()) {
        return false;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"VOIPSDK_KIND", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        environment.remove(QString::fromLatin1(name));
    }
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("HOME"), file("home"));
    environment.insert(QStringLiteral("TMPDIR"), file("tmp"));
    environment.insert(QStringLiteral("VOIPSDK_CALLS_INI"), QFileInfo(m_person.settingsFile()).absoluteFilePath());
    // Whoever outlives a client that was killed does not do so for long.
    environment.insert(QStringLiteral("VOIPSDK_IDLE_SECONDS"), QStringLiteral("60"));
    m_client = std::make_unique<ChildProgram>(file("log"));
    m_client->setStandardInputFile(QString());
    m_client->setStandardOutputFile(file("said"));
    m_client->setWorkingDirectory(m_folder);
    m_client->setProcessEnvironment(environment);
    if (!m_client->beginOn(m_machine.enter, QStringLiteral(CALLS_DESKTOP), {id()})) {
        return false;
    }
    tell(TestExchange::secretOf(id()));
    tell(QStringLiteral("online"));
    return QTest::qWaitFor([this] { return isRegistered(); }, cPatienceMs);
}

bool Desktop::quit()
{
    if (!m_client) {
        return true;
    }
    m_client->closeWriteChannel();
    const bool ended = m_client->waitForFinished(cPatienceMs) && m_client->exitStatus() == QProcess::NormalExit &&
                       m_client->exitCode() == 0;
    m_client.reset();
    return QTest::qWaitFor([this] { return network().isEmpty(); }, cPatienceMs) && ended;
}

void Desktop::tell(const QString &order)
{
    m_client->write(order.toUtf8() + '\n');
}

bool Desktop::says(const QString &line)
{
    return QTest::qWaitFor(
        [&] {
            const QByteArray wanted = line.toUtf8() + '\n';
            const int at = said().indexOf(wanted, m_heard);
            m_heard = at < 0 ? m_heard : at + wanted.size();
            return at >= 0;
        },
        cPatienceMs);
}

QByteArray Desktop::said() const
{
    QFile opened(file("said"));
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

QByteArray Desktop::network() const
{
    return networkOf(QByteArray::number(m_trace.processId()));
}

QByteArray Desktop::networkOf(const QByteArray &process)
{
    const QByteArray link = "/proc/" + process + "/ns/net";
    std::array<char, 64> name{};
    const ssize_t length = ::readlink(link.constData(), name.data(), name.size());
    return QByteArray(name.data(), qMax(0, int(length)));
}

bool Desktop::isRegistered() const
{
    for (const QByteArray &line : m_trace.texts('>')) {
        const QJsonObject notification = QJsonDocument::fromJson(line).object();
        if (notification.value(QStringLiteral("resultCode")).toInt() == 17 &&
            notification.value(QStringLiteral("content")).toString() == QLatin1String("true")) {
            return true;
        }
    }
    return false;
}
