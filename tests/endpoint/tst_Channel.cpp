// What the call process's end of the socket makes of a client that goes.

#include "endpoint/Channel.h"
#include "endpoint/Trace.h"
#include "fakes/Patience.h"

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

class tst_Channel : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_channel = std::make_unique<Channel>(m_strPath, m_trace);
        QString error;
        QCOMPARE(m_channel->listen(&error), Channel::Listen::Listening);
        m_client = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray path = QFile::encodeName(m_strPath);
        QVERIFY(path.size() < int(sizeof address.sun_path));
        std::copy(path.begin(), path.end(), address.sun_path);
        QCOMPARE(::connect(m_client, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        QTRY_VERIFY_WITH_TIMEOUT(m_channel->hasClient(), cPatienceMs);
    }

    void cleanup()
    {
        closeClient();
        m_channel.reset();
    }

    // The client of a process on a busy machine may be gone by the time it is answered.
    void wordsBeforeAnAnswerThatNobodyTakesAreHeard()
    {
        QStringList heard;
        connect(m_channel.get(), &Channel::lineReceived, this, [&](const QByteArray &line) {
            heard << QString::fromUtf8(line);
            if (line == "first") {
                send("last\n");
                closeClient();
                m_channel->write("answer\n");
            }
        });
        QSignalSpy gone(m_channel.get(), &Channel::clientGone);
        send("first\nsecond\n");
        QTRY_COMPARE_WITH_TIMEOUT(heard.size(), 3, cPatienceMs);
        QCOMPARE(heard, (QStringList{QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("last")}));
        QCOMPARE(gone.count(), 1);
        QVERIFY(!m_channel->hasClient());
        QVERIFY(!m_channel->write("nobody is there\n"));
    }

    void lastWordsAreHeardBeforeTheClientIsGone()
    {
        QStringList order;
        connect(m_channel.get(), &Channel::lineReceived, this, [&](const QByteArray &line) {
            order << QString::fromUtf8(line);
            m_channel->write("answer\n");
        });
        connect(m_channel.get(), &Channel::clientGone, this, [&] { order << QStringLiteral("gone"); });
        send("last\n");
        closeClient();
        QTRY_COMPARE_WITH_TIMEOUT(order.size(), 2, cPatienceMs);
        QCOMPARE(order, (QStringList{QStringLiteral("last"), QStringLiteral("gone")}));
    }

    void clientsProcessIsKnownToItsSuccessor()
    {
        QCOMPARE(m_channel->clientProcess(), QCoreApplication::applicationPid());
        closeClient();
        QTRY_VERIFY_WITH_TIMEOUT(!m_channel->hasClient(), cPatienceMs);
        QCOMPARE(m_channel->clientProcess(), QCoreApplication::applicationPid());
    }

private:
    void send(const QByteArray &bytes) const
    {
        QCOMPARE(::send(m_client, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL), ssize_t(bytes.size()));
    }

    void closeClient()
    {
        if (m_client >= 0) {
            ::close(std::exchange(m_client, -1));
        }
    }

    const QString m_strPath = QDir::current().absoluteFilePath(QStringLiteral("channel"));
    Trace m_trace;
    std::unique_ptr<Channel> m_channel;
    int m_client = -1;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Channel, Guiless)
#include "tst_Channel.moc"
