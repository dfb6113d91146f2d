#include "FuzzTargets.h"

#include "common/CommonFun.h"
#include "model/CommonData.h"
#include "model/Jid.h"
#include "model/LoginData.h"

#include <QList>

namespace {

constexpr std::size_t kLongestPart = 1023;

void requireSound(const Jid &jid)
{
    requirePromise(jid.node().size() <= kLongestPart && jid.domain().size() <= kLongestPart &&
                       jid.resource().size() <= kLongestPart,
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
    CommonFun::getJidByUid(text);
    CommonFun::getUidByJid(text);
    const QString session = CommonFun::getSessionIdByChatJid(text);
    CommonFun::getChatJidBySessionId(session);
    CommonFun::getChatJidBySessionId(text);
    CommonFun::isMucJid(text);
    CommonFun::isMucSession(text);
    CommonFun::isAgentSession(text);
    CommonFun::isAgentSystemSession(text);
    CommonFun::isAgentId(text);
    CommonFun::isChannelId(text);
    CommonFun::getChannelIdBySessionId(text);
    CommonFun::getSessionIdByChannelId(text);
    CommonFun::getSessionIdByUserAndChannel(text, other);
    CommonFun::getCSUserIdBySessionId(text);
    CommonFun::isVideoChat(text);
}

} // namespace

void FuzzTargets::jid(const QByteArray &input)
{
    static CommonData s_context;
    static LoginData s_login;
    s_login.m_strUid = QStringLiteral("me");
    s_login.m_strDomain = QStringLiteral("kelvar.im");
    s_context.setLoginData(&s_login);
    CommonFun::setCommonData(&s_context);

    const Jid whole(input.toStdString());
    requireSound(whole);
    const QList<QByteArray> parts = input.split('\n');
    const Jid built(parts.value(0).toStdString(), parts.value(1).toStdString(), parts.value(2).toStdString());
    requireSound(built);
    requireOrder(whole, built);
    askUserIds(QString::fromUtf8(parts.value(0)), QString::fromUtf8(parts.value(1)));
}
