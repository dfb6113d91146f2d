#pragma once

// A SIP user agent of a few lines for tests: one TLS connection with a verified certificate, requests signed by digest,
// answers as they come. Main thread; everything is bounded by cPatienceMs.

#include <QByteArray>
#include <QList>
#include <QSslSocket>
#include <QString>

#include <memory>

struct ExchangePlace;

/// One message, as it came.
struct SipMessage
{
    QByteArray firstLine;
    QList<QByteArray> headers;

    bool isEmpty() const { return firstLine.isEmpty(); }

    /// Of an answer; 0 for a request.
    int code() const;

    /// The value of the first header of this name; empty when there is none.
    QByteArray header(const char *name) const;

    /// All headers of this name, whole.
    QList<QByteArray> headersNamed(const char *name) const;
};

class SipClient
{
public:
    /// Who signs in; an empty password is the one that the exchange gives this user.
    SipClient(const ExchangePlace &place, const QString &user, const QString &password = {});

    /// Signs by another name than the one in From, as a token's is.
    void signAs(const QByteArray &name) { m_signer = name; }

    /// Whether the connection stands and its certificate is the exchange's.
    bool connectToExchange();
    bool isConnected() const { return m_socket->state() == QAbstractSocket::ConnectedState; }
    void disconnectFromExchange();

    /// Its own end of the connection.
    quint16 localPort() const { return m_socket->localPort(); }

    /// What went wrong with the connection.
    QString error() const { return m_socket->errorString(); }

    /// What is asked of the exchange.
    struct Wish
    {
        QByteArray method;
        QByteArray uri;
        QByteArray from; ///< empty: the user
        QByteArray to;   ///< empty: the uri
        QByteArray more; ///< headers, each with its line end
        bool sign = true;
        QByteArray callId = {}; ///< empty: one of its own
    };

    /// Sends the request, and signs it once it is asked to.
    void begin(const Wish &wish);

    /// The final answer to it; 0 when none comes.
    int finish();

    /// Both.
    int request(const Wish &wish);

    /// The same for a registration; `from` other than the user is a lie.
    int registerUser(int expires = 60, const QByteArray &from = {});

    /// The same for a call to a user that nobody has to answer.
    int call(const QByteArray &user) { return request(callTo(user)); }
    Wish callTo(const QByteArray &user) const { return {"INVITE", uriOf(user), {}, {}, {}}; }

    /// The next message; empty when none comes.
    SipMessage next();

    /// Answers a request.
    void answer(const SipMessage &request, const QByteArray &status);

    /// The user of the domain.
    QByteArray uriOf(const QByteArray &user) const;
    QByteArray domain() const { return m_domain; }

private:
    void write(const Wish &wish, const QByteArray &callId, const QByteArray &signature);
    QByteArray signatureFor(const Wish &wish, const SipMessage &challenge) const;

    std::unique_ptr<QSslSocket> m_socket;
    const quint16 m_port;
    const QByteArray m_domain;
    const QByteArray m_user;
    const QByteArray m_password;
    QByteArray m_signer;
    QByteArray m_input;
    SipMessage m_answer; // to the last request, if it came before `finish`
    int m_sequence = 0;
};
