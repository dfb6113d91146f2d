#include "common/LogUtils.h"

#include <QFile>
#include <QStringBuilder>

namespace {

QString fileText(const QString &strPath)
{
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

QString LogUtils::getFormattedLog(const QString &strTime, const QString &strLevel, const QString &strLocation,
                                  const QString &strMessage)
{
    return QLatin1Char('[') % strTime % QLatin1String("][") % strLevel % QLatin1String("][") % strLocation %
           QLatin1String("]: ") % strMessage % QLatin1Char('\n');
}

quint64 LogUtils::getEventSequenceByLog(const QString &strLog)
{
    const QString strHead = strLog.left(strLog.indexOf(QLatin1Char('"'), 1));
    bool bNumber = false;
    const quint64 iSequence = strHead.midRef(strHead.indexOf(QLatin1Char('-')) + 1).toULongLong(&bNumber);
    return bNumber ? iSequence : 1;
}

QString LogUtils::getLogTemplate()
{
    return fileText(QStringLiteral("Resources/CustomLog/LogTemplate.txt"));
}

QString LogUtils::getLogHeader()
{
    return fileText(QStringLiteral("Resources/CustomLog/LogHeader.txt"));
}

QString LogUtils::getLogByTemplate(const QString &str1, const QString &str2, const QString &str3, const QString &str4,
                                   const QString &str5, const QString &str6, const QString &str7,
                                   const QString &strException, const QString &str9)
{
    static const QString strTemplate = getLogTemplate();
    // Deliberately kept from call to call, so one thread at a time; only the client's other modules call this.
    static QString strLog;
    static QString strEscaped;
    strLog = strTemplate;
    strEscaped = strException;
    strEscaped.replace(QLatin1String("\""), QLatin1String("\"\""));
    strEscaped.replace(QLatin1String("\n"), QLatin1String("\\n"));
    if (!strLog.isEmpty()) {
        strLog = strLog.arg(str1, str2, str3, str4, str5, str6, str7, strEscaped, str9);
    }
    return strLog;
}
