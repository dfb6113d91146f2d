#include "calls/peers/AnsweringPeer.h"

#include <QFile>
#include <QUdpSocket>

namespace {

int freePort()
{
    QUdpSocket socket;
    socket.bind(QHostAddress::LocalHost);
    return socket.localPort();
}

} // namespace

AnsweringPeer::AnsweringPeer() : m_port(freePort()), m_sipp(QStringLiteral("sipp.log")) {}

bool AnsweringPeer::start(const QList<int> &statuses)
{
    QFile file(QStringLiteral("answers.xml"));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(scenario(statuses));
    file.close();
    return m_sipp.begin(QStringLiteral("sipp"),
                        {QStringLiteral("-sf"), file.fileName(), QStringLiteral("-i"), QStringLiteral("127.0.0.1"),
                         QStringLiteral("-p"), QString::number(m_port), QStringLiteral("-nostdin")});
}

QByteArray AnsweringPeer::scenario(const QList<int> &statuses)
{
    // sipp wants each status to stand in a message of its own.
    QByteArray looks;
    QByteArray branches;
    QByteArray answers;
    for (const int status : statuses) {
        const QByteArray code = QByteArray::number(status);
        looks += "<ereg regexp=\"INVITE sip:peer-" + code + "@\" search_in=\"msg\" assign_to=\"is" + code + "\"/>\n";
        branches += "<nop next=\"say" + code + "\" test=\"is" + code + "\"/>\n";
        answers += "<label id=\"say" + code + "\"/>\n" + answer(status);
    }
    return "<?xml version=\"1.0\"?>\n<scenario name=\"answers\">\n<recv request=\"INVITE\"><action>\n" + looks +
           "</action></recv>\n" + branches + answers +
           "<label id=\"refused\"/>\n<recv request=\"ACK\"/>\n<label id=\"end\"/>\n<nop/>\n</scenario>\n";
}

QByteArray AnsweringPeer::answer(int status)
{
    const QByteArray head = "<![CDATA[\n\nSIP/2.0 " + QByteArray::number(status) +
                            " Scripted\n[last_Via:]\n[last_Record-Route:]\n[last_From:]\n";
    const QByteArray tail = "[last_Call-ID:]\n[last_CSeq:]\n";
    const QByteArray tagged = head + "[last_To:];tag=[call_number]\n" + tail;
    if (status >= 300) {
        return "<send next=\"refused\">" + tagged + "Content-Length: 0\n\n]]></send>\n";
    }
    return "<send>" + tagged +
           "Contact: <sip:peer@[local_ip]:[local_port]>\nContent-Type: application/sdp\nContent-Length: [len]\n\n"
           "v=0\no=- 1 1 IN IP4 [local_ip]\ns=-\nc=IN IP4 [local_ip]\nt=0 0\nm=audio 40000 RTP/AVP 0\n"
           "\n]]></send>\n<recv request=\"ACK\"/>\n<recv request=\"BYE\"/>\n<send next=\"end\">" +
           head + "[last_To:]\n" + tail + "Content-Length: 0\n\n]]></send>\n";
}
