#include "model/Jid.h"

#include "FuzzTargets.h"

#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/UserIds.h"

#include <QList>

namespace {

constexpr std::size_t cLongestPart = 1023;

void requireSound(const Jid &jid)
{
    requirePromise(jid.node().size() <= cLongestPart && jid.domain().size() <= cLongestPart &&
                       jid.resource().size() <= cLongestPart,
                   "no part is longer than 1023 bytes");
    requirePromise(jid == jid && jid.Compare(jid) == 0 && jid.BareEquals(jid), "a jid equals itself");
    requirePromise(jid.Str().empty() == !jid.IsValid(), "a valid jid has a text");
    requirePromise(jid.BareJid().IsBare(), "without its resource a jid is bare");
    requirePromise(!(jid.IsFull() && jid.IsBare()), "no jid is full and bare");
}

void requireOrder(const Jid &left, const Jid &right)
{
    const int order = left.Compare(right);
    const int back = right.Compare(left);
    requirePromise((order < 0) == (back > 0) && (order == 0) == (back == 0), "the order has two sides");
    requirePromise((order == 0) == (left == right), "equal jids are those without an order");
}

void askUserIds(const QString &text, const QString &other)
{
    UserIds::getJidByUid(text);
    UserIds::getUidByJid(text);
    const QString session = UserIds::getSessionIdByChatJid(text);
    UserIds::getChatJidBySessionId(session);
    UserIds::getChatJidBySessionId(text);
    UserIds::isMucJid(text);
    UserIds::isMucSession(text);
    UserIds::isAgentSession(text);
    UserIds::isAgentSystemSession(text);
    UserIds::isAgentId(text);
    UserIds::isChannelId(text);
    UserIds::getChannelIdBySessionId(text);
    UserIds::getSessionIdByChannelId(text);
    UserIds::getSessionIdByUserAndChannel(text, other);
    UserIds::getCSUserIdBySessionId(text);
    UserIds::isVideoChat(text);
}

} // namespace

void FuzzTargets::jid(const QByteArray &input)
{
    static CommonData s_context;
    static LoginData s_login;
    s_login.m_strUid = QStringLiteral("me");
    s_login.m_strDomain = QStringLiteral("kelvar.im");
    s_context.setLoginData(&s_login);
    const GivenContext given(s_context);

    const Jid whole(input.toStdString());
    requireSound(whole);
    const QList<QByteArray> parts = input.split('\n');
    const Jid built(parts.value(0).toStdString(), parts.value(1).toStdString(), parts.value(2).toStdString());
    requireSound(built);
    requireOrder(whole, built);
    askUserIds(QString::fromUtf8(parts.value(0)), QString::fromUtf8(parts.value(1)));
}
