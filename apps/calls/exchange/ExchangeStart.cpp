// How the keeper starts Kamailio, learns that it answers, and starts it anew.

#include "calls/exchange/ExchangeCertificates.h"
#include "calls/exchange/ExchangeConfiguration.h"
#include "calls/exchange/ExchangeFolder.h"
#include "calls/exchange/ExchangeKeeper.h"

#include <QDeadlineTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>
#include <QRandomGenerator>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QThread>

#include <algorithm>

namespace {

constexpr int cKnockPauseMs = 10;
// How long Kamailio may take to answer, on a machine that is busy with other work.
constexpr int cStartMs = 30000;
constexpr int cFirstPauseMs = 100;
constexpr int cLookPauseMs = 5000;
constexpr int cLongestPauseMs = 60000;
constexpr int cMostDoublings = 10;
// An exchange that ended sooner counts as one that cannot live, and is started anew with a pause.
constexpr int cShortLifeMs = 2000;
// Starts in a row that came to nothing, after which the clients are told.
constexpr int cMostFailures = 3;
constexpr int cSecretBytes = 32;
// Below stand those of the system.
constexpr int cFirstPort = 1024;
constexpr int cPortsTried = 50;
constexpr int cPortMs = 1000;

QByteArray lineOf(const QString &state, const QJsonObject &more = {})
{
    QJsonObject line = more;
    line.insert(QStringLiteral("state"), state);
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

int pauseAfter(int firstMs, int doublings)
{
    return qMin(firstMs << qMin(doublings, cMostDoublings), cLongestPauseMs);
}

bool isSecret(const QByteArray &text)
{
    return text.size() == 2 * cSecretBytes && QByteArray::fromHex(text).toHex() == text;
}

QByteArray newSecret()
{
    quint32 words[cSecretBytes / sizeof(quint32)];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char *>(words), sizeof(words)).toHex();
}

} // namespace

void ExchangeKeeper::start()
{
    const QString program = ExchangeChild::program(m_program);
    QString error;
    m_log.forgetError();
    if (program.isEmpty()) {
        fail(m_program.isEmpty() ? QStringLiteral("Kamailio is not there (Debian: kamailio and kamailio-tls-modules)")
                                 : QStringLiteral("%1 is no program").arg(m_program),
             cLookPauseMs);
        return;
    }
    choosePort();
    if (!makeFiles(&error)) {
        fail(error, cLookPauseMs);
        return;
    }
    m_child = std::make_unique<ExchangeChild>();
    m_child->setStandardInputFile(QProcess::nullDevice());
    m_child->setStandardOutputFile(QProcess::nullDevice());
    m_child->setWorkingDirectory(m_folder);
    connect(m_child.get(), &QProcess::readyReadStandardError, this,
            [this] { m_log.write(m_child->readAllStandardError()); });
    connect(m_child.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &ExchangeKeeper::childEnded);
    connect(m_child.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError problem) {
        if (problem == QProcess::FailedToStart) {
            childEnded();
        }
    });
    // Shared and private memory in MiB: enough for a hundred calls. What endRemains looks for comes first.
    m_child->start(program, {QStringLiteral("-f"), ExchangeFolder::path(m_folder, ExchangeFolder::cConfiguration),
                             QLatin1String(ExchangeChild::cStaysInFront), QStringLiteral("-E"), QStringLiteral("-m"),
                             QStringLiteral("32"), QStringLiteral("-M"), QStringLiteral("4"), QStringLiteral("-w"),
                             m_folder, QStringLiteral("-Y"), m_folder});
    m_patience.start(cStartMs);
    m_knockTimer.start(cKnockPauseMs);
    tellAll(lineOf(QStringLiteral("starting")));
}

/// The port of the last start where it is free, so that clients find the exchange where it was.
void ExchangeKeeper::choosePort()
{
    const QString file = ExchangeFolder::path(m_folder, ExchangeFolder::cPort);
    quint16 wanted = m_port != 0 ? m_port : ExchangeFolder::readPrivate(file).trimmed().toUShort();
    if (m_failures > 0 || wanted < cFirstPort) {
        wanted = 0;
    }
    // Who was just killed still holds it for a moment.
    const QDeadlineTimer patience(cPortMs);
    for (int i = 0; i < cPortsTried; ++i) {
        QTcpServer overIpv4;
        QTcpServer overIpv6;
        if (overIpv4.listen(QHostAddress::LocalHost, wanted)) {
            m_port = overIpv4.serverPort();
            m_alsoIpv6 = overIpv6.listen(QHostAddress::LocalHostIPv6, m_port);
            if (m_alsoIpv6 || overIpv6.serverError() != QAbstractSocket::AddressInUseError) {
                return;
            }
        }
        if (patience.hasExpired()) {
            wanted = 0;
        }
        QThread::msleep(wanted == 0 ? 0 : cPortMs / cPortsTried * 2);
    }
}

/// Makes what is missing or damaged. The secret stays what it was since this keeper began.
bool ExchangeKeeper::makeFiles(QString *error)
{
    if (!ExchangeCertificates::areGood(m_folder) && !ExchangeCertificates::make(m_folder, error)) {
        return false;
    }
    for (const char *name : {ExchangeFolder::cAuthority, ExchangeFolder::cCertificate, ExchangeFolder::cKey}) {
        m_files[QLatin1String(name)] = ExchangeFolder::readPrivate(ExchangeFolder::path(m_folder, name));
    }
    QByteArray &secret = m_files[QLatin1String(ExchangeFolder::cSecret)];
    if (secret.isEmpty()) {
        const QByteArray kept = ExchangeFolder::readPrivate(ExchangeFolder::path(m_folder, ExchangeFolder::cSecret));
        secret = isSecret(kept) ? kept : newSecret();
    }
    const ExchangeConfiguration configuration{m_folder, secret, m_port, m_alsoIpv6};
    m_files[QLatin1String(ExchangeFolder::cConfiguration)] = configuration.text();
    if (!mendFiles()) {
        *error = QStringLiteral("the exchange's files cannot be written to %1").arg(m_folder);
        return false;
    }
    return true;
}

/// Writes the files that are not as they were made.
bool ExchangeKeeper::mendFiles() const
{
    bool written = true;
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        const QString place = ExchangeFolder::path(m_folder, file.key().latin1());
        written =
            written && (ExchangeFolder::readPrivate(place) == *file || ExchangeFolder::writePrivate(place, *file));
    }
    return written;
}

/// What is missing may come: it is tried again after the pause.
void ExchangeKeeper::fail(const QString &reason, int pauseMs)
{
    tellAll(lineOf(QStringLiteral("failed"), {{QStringLiteral("reason"), reason}}));
    m_startTimer.start(pauseMs);
}

void ExchangeKeeper::childEnded()
{
    m_log.write(m_child->readAllStandardError());
    m_child->endGroup();
    ExchangeChild::endRemains(ExchangeFolder::path(m_folder, ExchangeFolder::cConfiguration));
    m_child->disconnect(this);
    m_child.release()->deleteLater();
    endKnock();
    m_patience.stop();
    m_failures = m_readySince.isValid() ? 0 : m_failures + 1;
    m_shortLives = m_readySince.isValid() && m_readySince.elapsed() >= cShortLifeMs ? 0 : m_shortLives + 1;
    m_readySince.invalidate();
    tryAgain();
}

void ExchangeKeeper::tryAgain()
{
    if (m_failures >= cMostFailures) {
        const QByteArray said = m_log.lastError();
        fail(said.isEmpty() ? QStringLiteral("Kamailio does not answer") : QString::fromUtf8(said),
             pauseAfter(cLookPauseMs, m_failures - cMostFailures));
        return;
    }
    // One that was killed comes back at once; one that dies time and again does not keep the machine busy.
    m_startTimer.start(m_shortLives <= 1 ? 0 : pauseAfter(cFirstPauseMs, m_shortLives));
    tellAll(lineOf(QStringLiteral("starting")));
}

void ExchangeKeeper::knock()
{
    m_knock = std::make_unique<QSslSocket>();
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates(
        QSslCertificate::fromPath(ExchangeFolder::path(m_folder, ExchangeFolder::cAuthority), QSsl::Pem));
    m_knock->setSslConfiguration(configuration);
    m_knock->setProxy(QNetworkProxy::NoProxy);
    connect(m_knock.get(), &QSslSocket::encrypted, this, &ExchangeKeeper::answered);
    connect(m_knock.get(), &QSslSocket::errorOccurred, this, [this] {
        endKnock();
        m_knockTimer.start(cKnockPauseMs);
    });
    m_knock->connectToHostEncrypted(QStringLiteral("127.0.0.1"), m_port, QStringLiteral("localhost"));
}

void ExchangeKeeper::endKnock()
{
    m_knockTimer.stop();
    if (m_knock) {
        m_knock->disconnect(this);
        m_knock.release()->deleteLater();
    }
}

void ExchangeKeeper::answered()
{
    endKnock();
    m_patience.stop();
    m_readySince.start();
    ExchangeFolder::writePrivate(ExchangeFolder::path(m_folder, ExchangeFolder::cPort), QByteArray::number(m_port));
    tellAll(lineOf(QStringLiteral("ready"), {{QStringLiteral("port"), m_port}}));
}
