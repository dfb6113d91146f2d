#include "ui/RowWords.h"

#include "model/MemberRoles.h"
#include "ui/ConferenceTexts.h"

#include <QCoreApplication>
#include <QModelIndex>
#include <QStringList>

namespace {

QString words(const char *pSource)
{
    return QCoreApplication::translate("ConferenceRow", pSource);
}

QString joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

QString partOfLength(qint64 iNumber, const char *pSource)
{
    return iNumber > 0 ? words(pSource).arg(iNumber) : QString();
}

QString length(const QString &strCallTime)
{
    const qint64 iSeconds = ConferenceTexts::wholeSeconds(strCallTime);
    QStringList parts{partOfLength(iSeconds / 3600, QT_TRANSLATE_NOOP("ConferenceRow", "%1 h")),
                      partOfLength(iSeconds / 60 % 60, QT_TRANSLATE_NOOP("ConferenceRow", "%1 min")),
                      partOfLength(iSeconds % 60, QT_TRANSLATE_NOOP("ConferenceRow", "%1 s"))};
    parts.removeAll(QString());
    return parts.join(QLatin1Char(' '));
}

} // namespace

QString RowWords::ofMember(const QModelIndex &index)
{
    return joined(
        {index.data(ROLE_DISPLAY_NAME).toString(), conferenceStatusWords(index.data(ROLE_CALL_STATUS).toInt()),
         index.data(ROLE_MUTED).toBool() ? words(QT_TRANSLATE_NOOP("ConferenceRow", "muted")) : QString(),
         index.data(ROLE_IS_CREATOR).toBool() ? words(QT_TRANSLATE_NOOP("ConferenceRow", "created the conference"))
                                              : QString()});
}

QString RowWords::ofConference(const QString &strCreator, bool bConnected, const QString &strCallTime,
                               const QString &strCreatTime, bool bCreatedByMe)
{
    return joined({strCreator, bConnected ? length(strCallTime) : conferenceStatusWords(cNotReached), strCreatTime,
                   direction(bCreatedByMe)});
}

QString RowWords::direction(bool bCreatedByMe)
{
    return bCreatedByMe ? words(QT_TRANSLATE_NOOP("ConferenceRow", "called by you"))
                        : words(QT_TRANSLATE_NOOP("ConferenceRow", "called by another"));
}

QString RowWords::muteOrUnmute(bool bMuted)
{
    return bMuted ? words(QT_TRANSLATE_NOOP("ConferenceRow", "取消静音"))
                  : words(QT_TRANSLATE_NOOP("ConferenceRow", "静音"));
}

QString RowWords::removal()
{
    return words(QT_TRANSLATE_NOOP("ConferenceRow", "移出会议"));
}

QString RowWords::callAgain()
{
    return words(QT_TRANSLATE_NOOP("ConferenceRow", "再次呼叫"));
}
