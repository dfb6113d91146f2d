#include "client/FileReports.h"

#include "common/CLogManger.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

QString FileReports::Report::text() const
{
    return QCoreApplication::translate(context, words).arg(file);
}

void FileReports::add(const char *context, const char *words, const QString &strFile)
{
    m_reports.append({context, words, strFile});
    LOG_WARN << m_reports.constLast().text() << "\n";
}

QStringList FileReports::texts() const
{
    QStringList all;
    std::transform(m_reports.begin(), m_reports.end(), std::back_inserter(all),
                   [](const Report &report) { return report.text(); });
    return all;
}
