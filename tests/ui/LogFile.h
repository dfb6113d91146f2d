#pragma once

// The real log file and its thread, so that a test can read what the code under test has logged. Make it before the
// first log statement of the program: the log facade takes file and thread once and for all.

#include "common/CLogManger.h"
#include "common/CLogThread.h"
#include "common/CommonFun.h"
#include "common/CustomLogger.h"
#include "model/CommonData.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

class LogFile
{
public:
    LogFile() : m_logger(QStringLiteral("test.log"))
    {
        m_data.setCustomLogger(&m_logger);
        m_data.setCustomLogThread(&m_thread);
        CommonFun::setCommonData(&m_data);
        CLogManger::instance();
        CommonFun::setCommonData(nullptr);
        m_thread.start();
    }
    ~LogFile()
    {
        m_thread.stop();
        // The writer leaves after one more record.
        LOG_DEBUG << "\n";
        m_thread.wait();
    }
    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;

    /// The records since the last call, each as "source: message".
    QStringList newRecords()
    {
        const QString strEnd = QStringLiteral("end of part %1").arg(++m_iPart);
        LOG_DEBUG << strEnd << "\n";
        QStringList records;
        const bool bWritten = QTest::qWaitFor([&] {
            CLogManger::instance()->flushLog();
            records = readRecords();
            return !records.isEmpty() && records.last().endsWith(strEnd);
        });
        if (!bWritten)
            return {QStringLiteral("the log file was not written")};
        const QStringList fresh = records.mid(m_iRead, records.size() - m_iRead - 1);
        m_iRead = records.size();
        return fresh;
    }

private:
    static QStringList readRecords()
    {
        static const QRegularExpression line(QStringLiteral("^\\[[^]]*\\]\\[DEBUG\\]\\[([^]:]*):\\d+\\]: (.*)$"),
                                             QRegularExpression::MultilineOption);
        QFile file(QStringLiteral("test.log"));
        QStringList records;
        if (!file.open(QIODevice::ReadOnly))
            return records;
        const QString strText = QString::fromUtf8(file.readAll());
        for (auto it = line.globalMatch(strText); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            records.append(match.captured(1) + QStringLiteral(": ") + match.captured(2));
        }
        return records;
    }

    CustomLogger m_logger;
    CLogThread m_thread;
    CommonData m_data;
    int m_iPart = 0;
    int m_iRead = 0;
};
