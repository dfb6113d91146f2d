#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What the person has to know of a file: sentences that stay, and are said in the language that the client has when
/// they are read. GUI thread.
class FileReports
{
public:
    /// Adds the sentence that is the key `words` in the translation context `context`, both of static life, with a
    /// place for the file's path. It stands in the log, too.
    void add(const char *context, const char *words, const QString &strFile);
    void clear() { m_reports.clear(); }
    int size() const { return m_reports.size(); }
    bool isEmpty() const { return m_reports.isEmpty(); }

    /// All sentences, in the order in which they came.
    QStringList texts() const;

private:
    struct Report
    {
        const char *context;
        const char *words;
        QString file;

        QString text() const;
    };

    QList<Report> m_reports;
};
