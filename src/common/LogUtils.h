#pragma once

// The line format of the log file, the texts of the levels, texts made from the log templates, and the separators that
// the client's other modules use. Any thread, but for getLogByTemplate. The constants live to the end of the process.

#include "common/text/LastingText.h"

/// Texts of the levels 1 to 6 as they stand in a log line.
inline const QString &strLOG_TRACE = lastingText(QStringLiteral("TRACE"));
inline const QString &strLOG_DEBUG = lastingText(QStringLiteral("DEBUG"));
inline const QString &strLOG_INFO = lastingText(QStringLiteral("INFO"));
inline const QString &strLOG_WARN = lastingText(QStringLiteral("WARN"));
inline const QString &strLOG_ERROR = lastingText(QStringLiteral("ERROR"));
inline const QString &strLOG_FATAL = lastingText(QStringLiteral("FATAL"));

/// Between the fields of an HTTP query.
inline const QString &strHTTP_SPACER = lastingText(QStringLiteral("&"));
/// Between fields.
inline const QString &strFIELD_SPACER = lastingText(QStringLiteral("|"));
/// Between data items.
inline const QString &strDATA_SPACER = lastingText(QStringLiteral("#@#"));
/// Between the entries of a map.
inline const QString &strMAP_DATA_SPACER = lastingText(QStringLiteral("#$#"));
/// The empty text.
inline const QString &STR_EMPTY = lastingText(QLatin1String(""));

namespace LogUtils {

/// One line of the log file, line feed included: "[time][level][location]: message". Texts are taken as they are.
QString getFormattedLog(const QString &strTime, const QString &strLevel, const QString &strLocation,
                        const QString &strMessage);

/// The number behind the first "-" of what stands left of the first double quote at index 1 or later, or the number
/// that all of it is when it has no "-"; 1 when there is none.
quint64 getEventSequenceByLog(const QString &strLog);

/// The content of "Resources/CustomLog/LogTemplate.txt" in the working directory; empty when it cannot be read.
QString getLogTemplate();

/// The content of "Resources/CustomLog/LogHeader.txt" in the working directory; empty when it cannot be read.
QString getLogHeader();

/// The log template, loaded at the first use, with its places %1 to %9 filled. In the eighth text, the message of an
/// exception, double quotes are doubled and line feeds become a backslash and "n". One thread at a time.
QString getLogByTemplate(const QString &str1, const QString &str2, const QString &str3, const QString &str4,
                         const QString &str5, const QString &str6, const QString &str7, const QString &strException,
                         const QString &str9);

} // namespace LogUtils
