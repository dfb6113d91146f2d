#include "tour/OtherClient.h"

#include "traffic/TraceFolder.h"

#include "wire/Commands.h"
#include "wire/Notifications.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcessEnvironment>

namespace {

constexpr int cLeaveMs = 5000;

} // namespace

OtherClient::OtherClient()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    m_strTrace = QFile::decodeName(qgetenv(TraceFolder::cVariable)) + QStringLiteral(".other");
    environment.insert(QLatin1String(TraceFolder::cVariable), m_strTrace);
    m_process.setProcessEnvironment(environment);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
}

OtherClient::~OtherClient()
{
    m_process.terminate();
    m_process.waitForFinished(cLeaveMs);
}

bool OtherClient::start(const QStringList &arguments)
{
    QFile::remove(m_strTrace);
    m_process.start(QCoreApplication::applicationFilePath(), arguments);
    return m_process.waitForStarted();
}

bool OtherClient::terminate()
{
    m_process.terminate();
    return true;
}

bool OtherClient::hasEnded(int iExitCode) const
{
    return m_process.state() == QProcess::NotRunning && m_process.exitStatus() == QProcess::NormalExit &&
           m_process.exitCode() == iExitCode;
}

bool OtherClient::hasTraced(const QByteArray &words) const
{
    QFile trace(m_strTrace);
    return trace.open(QIODevice::ReadOnly) && trace.readAll().contains(words);
}

bool OtherClient::hasRegistered(const QByteArray &uid) const
{
    const QByteArray quote("\"");
    return hasTraced(quote + Wire::cKeyParameter + "1\":\"" + uid) &&
           hasTraced(quote + Wire::cKeyResultCode + "\":" + QByteArray::number(static_cast<int>(Wire::Code::SdkFlag)));
}
