#include "calls/exchange/EmbeddedExchange.h"

#include "calls/exchange/ExchangeConfiguration.h"
#include "calls/exchange/ExchangeFolder.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <utility>

namespace {

constexpr int cFirstLookMs = 10;
constexpr int cLongestLookMs = 500;
// A keeper that has not opened its socket by now is taken for one that could not.
constexpr int cKeeperMs = 15000;
// One that was killed is followed at once; one that was joined for less than this cannot live, and is with a pause.
constexpr int cShortLifeMs = 2000;
constexpr int cFirstPauseMs = 250;
constexpr int cLongestPauseMs = 60000;
constexpr int cMostDoublings = 8;
constexpr int cLivesUntilTold = 3;

/// How long to wait behind so many keepers in a row that could not live.
int pauseAfter(int shortLives)
{
    return shortLives <= 1 ? 0 : qMin(cFirstPauseMs << qMin(shortLives - 2, cMostDoublings), cLongestPauseMs);
}

} // namespace

QString ExchangePlace::passwordOf(const QString &user) const
{
    const QByteArray text = secret + ':' + user.toUtf8() + ':' + secret;
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

EmbeddedExchange::EmbeddedExchange(QString folder, QString kamailio, QString keeper, QObject *parent)
    : QObject(parent), m_set(std::move(folder)), m_kamailio(std::move(kamailio)), m_keeper(std::move(keeper))
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &EmbeddedExchange::connectToKeeper);
    connect(&m_socket, &QLocalSocket::readyRead, this, &EmbeddedExchange::readLines);
    connect(&m_socket, &QLocalSocket::connected, this, [this] {
        m_started.invalidate();
        m_joinedSince.start();
    });
    connect(&m_socket, &QLocalSocket::disconnected, this, &EmbeddedExchange::loseKeeper);
    connect(&m_socket, &QLocalSocket::errorOccurred, this, [this](QLocalSocket::LocalSocketError error) {
        // An end of the connection is told once more as such.
        if (error != QLocalSocket::PeerClosedError) {
            startKeeper();
        }
    });
}

EmbeddedExchange::~EmbeddedExchange()
{
    m_socket.disconnect(this);
}

void EmbeddedExchange::join()
{
    if (!std::exchange(m_joined, true)) {
        connectToKeeper();
    }
}

void EmbeddedExchange::connectToKeeper()
{
    QString error;
    m_folder = ExchangeFolder::take(m_set, &error);
    if (m_folder.isEmpty()) {
        complain(error);
        m_retry.start(cKeeperMs);
        return;
    }
    m_socket.connectToServer(ExchangeFolder::path(m_folder, ExchangeFolder::cKeeper));
}

void EmbeddedExchange::loseKeeper()
{
    lose();
    m_shortLives = m_joinedSince.elapsed() < cShortLifeMs ? m_shortLives + 1 : 0;
    if (m_shortLives >= cLivesUntilTold) {
        complainOfKeeper();
    }
    m_retry.start(pauseAfter(m_shortLives));
}

/// Nobody keeps the exchange: this one starts a keeper, and joins it as soon as it is there.
void EmbeddedExchange::startKeeper()
{
    if (!m_started.isValid() || m_started.elapsed() >= m_patienceMs) {
        QProcess keeper;
        keeper.setProgram(m_keeper);
        keeper.setArguments({QStringLiteral("--folder"), m_folder, QStringLiteral("--kamailio"), m_kamailio});
        keeper.setWorkingDirectory(QStringLiteral("/"));
        keeper.setStandardInputFile(QProcess::nullDevice());
        keeper.setStandardOutputFile(QProcess::nullDevice());
        keeper.setStandardErrorFile(QProcess::nullDevice());
        if (!keeper.startDetached()) {
            complain(QStringLiteral("%1 cannot be started").arg(m_keeper));
        } else if (m_started.isValid()) {
            complainOfKeeper();
        }
        // In vain, so far.
        m_patienceMs = m_started.isValid() ? qMin(2 * m_patienceMs, cLongestPauseMs) : cKeeperMs;
        m_lookMs = cFirstLookMs;
        m_started.start();
    }
    m_retry.start(m_lookMs);
    m_lookMs = qMin(m_lookMs + m_lookMs / 2, cLongestLookMs);
}

void EmbeddedExchange::readLines()
{
    while (m_socket.canReadLine()) {
        take(m_socket.readLine());
    }
}

void EmbeddedExchange::take(const QByteArray &line)
{
    const QJsonObject said = QJsonDocument::fromJson(line).object();
    const QString state = said.value(QStringLiteral("state")).toString();
    if (state == QLatin1String("ready")) {
        takeReady(quint16(said.value(QStringLiteral("port")).toInt()));
        return;
    }
    lose();
    if (state == QLatin1String("failed")) {
        complain(said.value(QStringLiteral("reason")).toString());
    }
}

void EmbeddedExchange::takeReady(quint16 port)
{
    m_place.proxy = QStringLiteral("sip:localhost:%1;transport=tls").arg(port);
    m_place.caFile = ExchangeFolder::path(m_folder, ExchangeFolder::cAuthority);
    m_place.domain = ExchangeConfiguration::domain();
    m_place.secret = ExchangeFolder::readPrivate(ExchangeFolder::path(m_folder, ExchangeFolder::cSecret));
    m_reason.clear();
    m_ready = true;
    emit ready();
}

void EmbeddedExchange::lose()
{
    if (std::exchange(m_ready, false)) {
        emit lost();
    }
}

void EmbeddedExchange::complainOfKeeper()
{
    complain(QStringLiteral("%1 does not keep the exchange in %2").arg(m_keeper, m_folder));
}

void EmbeddedExchange::complain(const QString &reason)
{
    if (std::exchange(m_reason, reason) != reason) {
        emit failed(reason);
    }
}
