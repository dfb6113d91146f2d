#pragma once

// What the tests of the exchange share: a folder of its own, processes that join, and a look at what runs there. Derive
// the test class from it.

#include "calls/exchange/EmbeddedExchange.h"

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

class ExchangeTest : public QObject
{
protected:
    /// Begins with a folder of its own.
    void begin();

    /// Waits until nothing of the exchange runs any more, or fails.
    void end();

    /// Where the exchange keeps its files; not there at first.
    QString folder() const { return m_folder->filePath(QStringLiteral("x")); }
    QString file(const char *name) const { return folder() + '/' + QLatin1String(name); }
    static QByteArray bytesOf(const QString &file);
    static bool write(const QString &file, const QByteArray &bytes, int mode = 0600);

    /// This process as one that will join.
    std::unique_ptr<EmbeddedExchange> exchange(const QString &kamailio = {}) const;

    /// The same, joined; null when the exchange does not come.
    std::unique_ptr<EmbeddedExchange> joined() const;

    /// Another process that joins, and is killed with its object.
    struct Killed
    {
        void operator()(QProcess *process) const;
    };
    using Member = std::unique_ptr<QProcess, Killed>;
    Member member() const;

    /// Whether the member says a line that begins so; what it says before it is forgotten.
    static bool says(QProcess &member, const QByteArray &begin);

    /// Process ids of this folder's keeper; of all processes of its Kamailio; of Kamailio's first.
    QList<qint64> keepers() const { return keepersOf(folder()); }
    QList<qint64> servers() const { return serversOf(folder()); }
    qint64 firstServer() const;

    /// Whether nothing runs any more for this folder, or for that one, within the patience.
    bool isAllGone() const { return isAllGoneOf(folder()); }
    static bool isAllGoneOf(const QString &folder);
    static void killAndWait(qint64 pid);

private:
    static QList<qint64> keepersOf(const QString &folder);
    static QList<qint64> serversOf(const QString &folder);

    std::unique_ptr<QTemporaryDir> m_folder;
};
