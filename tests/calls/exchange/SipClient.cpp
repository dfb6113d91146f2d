#include "calls/exchange/SipClient.h"

#include "calls/exchange/EmbeddedExchange.h"

#include "fakes/Patience.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QUuid>

#include <utility>

namespace {

QByteArray md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

QByteArray unique()
{
    return QUuid::createUuid().toByteArray(QUuid::Id128);
}

/// The quoted parameter of this name.
QByteArray parameter(const QByteArray &header, const char *name)
{
    const QRegularExpression form(QStringLiteral("%1=\"([^\"]*)\"").arg(QLatin1String(name)));
    return form.match(QString::fromLatin1(header)).captured(1).toLatin1();
}

quint16 portOf(const QString &proxy)
{
    return quint16(QRegularExpression(QStringLiteral(":(\\d+);")).match(proxy).captured(1).toInt());
}

} // namespace

int SipMessage::code() const
{
    return firstLine.startsWith("SIP/2.0 ") ? firstLine.mid(8, 3).toInt() : 0;
}

QByteArray SipMessage::header(const char *name) const
{
    const QList<QByteArray> found = headersNamed(name);
    return found.isEmpty() ? QByteArray() : found.constFirst().mid(found.constFirst().indexOf(':') + 1).trimmed();
}

QList<QByteArray> SipMessage::headersNamed(const char *name) const
{
    QList<QByteArray> found;
    for (const QByteArray &line : headers) {
        if (line.left(line.indexOf(':')).trimmed().compare(name, Qt::CaseInsensitive) == 0) {
            found.append(line);
        }
    }
    return found;
}

SipClient::SipClient(const ExchangePlace &place, const QString &user, const QString &password)
    : m_socket(std::make_unique<QSslSocket>()), m_port(portOf(place.proxy)), m_domain(place.domain.toUtf8()),
      m_user(user.toUtf8()), m_password((password.isEmpty() ? place.passwordOf(user) : password).toUtf8()),
      m_signer(m_user)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates(QSslCertificate::fromPath(place.caFile, QSsl::Pem));
    m_socket->setSslConfiguration(configuration);
}

bool SipClient::connectToExchange()
{
    m_socket->connectToHostEncrypted(QStringLiteral("localhost"), m_port);
    return m_socket->waitForEncrypted(cPatienceMs);
}

void SipClient::disconnectFromExchange()
{
    m_socket->abort();
}

QByteArray SipClient::uriOf(const QByteArray &user) const
{
    return "sip:" + user + '@' + m_domain;
}

void SipClient::begin(const Wish &wish)
{
    const QByteArray callId = wish.callId.isEmpty() ? unique() : wish.callId;
    write(wish, callId, {});
    m_answer = {};
    const SipMessage first = next();
    if (wish.sign && (first.code() == 401 || first.code() == 407)) {
        write(wish, callId, signatureFor(wish, first));
    } else {
        m_answer = first;
    }
}

int SipClient::finish()
{
    SipMessage answered = std::exchange(m_answer, {});
    while (answered.code() < 200) {
        answered = next();
        if (answered.isEmpty()) {
            return 0;
        }
    }
    return answered.code();
}

int SipClient::request(const Wish &wish)
{
    begin(wish);
    return finish();
}

int SipClient::registerUser(int expires, const QByteArray &from)
{
    const QByteArray who = from.isEmpty() ? m_user : from;
    return request(
        {"REGISTER", "sip:" + m_domain, who, uriOf(who), "Expires: " + QByteArray::number(expires) + "\r\n"});
}

void SipClient::write(const Wish &wish, const QByteArray &callId, const QByteArray &signature)
{
    const QByteArray here = "127.0.0.1:" + QByteArray::number(m_socket->localPort());
    const QByteArray to = wish.to.startsWith('<') ? wish.to : '<' + (wish.to.isEmpty() ? wish.uri : wish.to) + '>';
    const QByteArray sequence = QByteArray::number(++m_sequence);
    m_socket->write(wish.method + ' ' + wish.uri + " SIP/2.0\r\nVia: SIP/2.0/TLS " + here + ";branch=z9hG4bK" +
                    unique() + ";rport\r\nFrom: <" + uriOf(wish.from.isEmpty() ? m_user : wish.from) +
                    ">;tag=" + m_user + "\r\nTo: " + to + "\r\nCall-ID: " + callId + "\r\nCSeq: " + sequence + ' ' +
                    wish.method + "\r\nContact: <sip:" + m_user + '@' + here +
                    ";transport=tls>\r\nMax-Forwards: 70\r\n" + wish.more + signature + "Content-Length: 0\r\n\r\n");
    m_socket->flush();
}

QByteArray SipClient::signatureFor(const Wish &wish, const SipMessage &challenge) const
{
    const bool byProxy = challenge.code() == 407;
    const QByteArray asked = challenge.header(byProxy ? "Proxy-Authenticate" : "WWW-Authenticate");
    const QByteArray realm = parameter(asked, "realm");
    const QByteArray nonce = parameter(asked, "nonce");
    const QByteArray response = md5(md5(m_signer + ':' + realm + ':' + m_password) + ':' + nonce +
                                    ":00000001:c:auth:" + md5(wish.method + ':' + wish.uri));
    return QByteArray(byProxy ? "Proxy-Authorization" : "Authorization") + ": Digest username=\"" + m_signer +
           "\", realm=\"" + realm + "\", nonce=\"" + nonce + "\", uri=\"" + wish.uri + "\", response=\"" + response +
           "\", algorithm=MD5, qop=auth, nc=00000001, cnonce=\"c\"\r\n";
}

SipMessage SipClient::next()
{
    const QDeadlineTimer deadline(cPatienceMs);
    int end = -1;
    while ((end = m_input.indexOf("\r\n\r\n")) < 0) {
        if (m_socket->bytesAvailable() == 0 && !m_socket->waitForReadyRead(int(deadline.remainingTime()))) {
            return {};
        }
        m_input += m_socket->readAll();
    }
    SipMessage message;
    const QList<QByteArray> lines = m_input.left(end).split('\n');
    for (const QByteArray &line : lines) {
        message.headers.append(line.trimmed());
    }
    message.firstLine = message.headers.takeFirst();
    m_input.remove(0, end + 4 + message.header("Content-Length").toInt());
    return message;
}

void SipClient::answer(const SipMessage &request, const QByteArray &status)
{
    QByteArray text = "SIP/2.0 " + status + "\r\n";
    for (const char *name : {"Via", "Record-Route", "From", "Call-ID", "CSeq"}) {
        for (const QByteArray &line : request.headersNamed(name)) {
            text += line + "\r\n";
        }
    }
    const QByteArray here = "127.0.0.1:" + QByteArray::number(m_socket->localPort());
    m_socket->write(text + "To: " + request.header("To") + ";tag=" + m_user + "\r\nContact: <sip:" + m_user + '@' +
                    here + ";transport=tls>\r\nContent-Length: 0\r\n\r\n");
    m_socket->flush();
}
