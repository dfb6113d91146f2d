#include "calls/peers/ScriptedPeer.h"

#include "fakes/Patience.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QRegularExpression>

namespace {

QByteArray md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

QByteArray valueIn(const QByteArray &challenge, const char *name)
{
    const QRegularExpression value(QStringLiteral("%1=\"([^\"]*)\"").arg(QLatin1String(name)));
    return value.match(QString::fromUtf8(challenge)).captured(1).toUtf8();
}

int statusOf(const QByteArray &answer)
{
    return answer.mid(int(qstrlen("SIP/2.0 ")), 3).toInt();
}

} // namespace

ScriptedPeer::ScriptedPeer(const TestExchange &exchange, QString id)
    : m_exchange(exchange), m_id(std::move(id)), m_fromUser(m_id), m_fromDomain(TestExchange::domain()),
      m_number(QRandomGenerator::global()->bounded(1, 1000000000))
{
    m_socket.setPeerVerifyMode(QSslSocket::VerifyNone);
}

bool ScriptedPeer::connect()
{
    m_socket.connectToHostEncrypted(QStringLiteral("127.0.0.1"), static_cast<quint16>(m_exchange.port()));
    return m_socket.waitForEncrypted(cPatienceMs);
}

void ScriptedPeer::setFrom(const QString &user, const QString &domain)
{
    m_fromUser = user;
    m_fromDomain = domain;
}

int ScriptedPeer::request(const QString &method, const QString &to, const QByteArray &contentType,
                          const QByteArray &body)
{
    const QByteArray type = "Content-Type: " + contentType + "\r\n";
    m_socket.write(message(method, to, type, body));
    QByteArray answer = nextAnswer();
    if (statusOf(answer) == 401 || statusOf(answer) == 407) {
        const QString uri = QStringLiteral("sip:%1@%2").arg(to, TestExchange::domain());
        const QByteArray name = statusOf(answer) == 401 ? "Authorization: " : "Proxy-Authorization: ";
        m_socket.write(message(method, to, type + name + signature(answer, method, uri) + "\r\n", body));
        answer = nextAnswer();
    }
    return statusOf(answer);
}

QByteArray ScriptedPeer::message(const QString &method, const QString &to, const QByteArray &more,
                                 const QByteArray &body)
{
    ++m_number;
    const QString head = QStringLiteral("%1 sip:%2@%3 SIP/2.0\r\n"
                                        "Via: SIP/2.0/TLS 127.0.0.1:%4;branch=z9hG4bK%5;rport\r\n"
                                        "From: <sip:%6@%7>;tag=scripted\r\nTo: <sip:%2@%3>\r\n"
                                        "Call-ID: scripted-%5\r\nCSeq: %5 %1\r\nMax-Forwards: 70\r\n"
                                        "Contact: <sip:%8@127.0.0.1:%4;transport=tls>\r\nContent-Length: %9\r\n")
                             .arg(method, to, TestExchange::domain())
                             .arg(m_socket.localPort())
                             .arg(m_number)
                             .arg(m_fromUser, m_fromDomain, m_id)
                             .arg(body.size());
    return head.toUtf8() + more + "\r\n" + body;
}

QByteArray ScriptedPeer::signature(const QByteArray &challenge, const QString &method, const QString &uri) const
{
    const QByteArray realm = valueIn(challenge, "realm");
    const QByteArray nonce = valueIn(challenge, "nonce");
    const QByteArray user = m_id.toUtf8();
    const QByteArray secret = md5(user + ':' + realm + ':' + TestExchange::secretOf(m_id).toUtf8());
    const QByteArray response = md5(secret + ':' + nonce + ':' + md5(method.toUtf8() + ':' + uri.toUtf8()));
    return "Digest username=\"" + user + "\", realm=\"" + realm + "\", nonce=\"" + nonce + "\", uri=\"" + uri.toUtf8() +
           "\", response=\"" + response + "\", algorithm=MD5";
}

QByteArray ScriptedPeer::nextAnswer()
{
    for (;;) {
        const int end = m_input.indexOf("\r\n\r\n");
        if (end >= 0) {
            QByteArray answer = m_input.left(end);
            const QRegularExpression length(QStringLiteral("Content-Length: *(\\d+)"));
            m_input.remove(0, end + 4 + length.match(QString::fromUtf8(answer)).captured(1).toInt());
            if (statusOf(answer) >= 200) {
                return answer;
            }
        } else if (m_socket.waitForReadyRead(cPatienceMs)) {
            m_input += m_socket.readAll();
        } else {
            return {};
        }
    }
}
