#include "flow/HostProcess.h"

#include "fakes/Patience.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <QtTest>

namespace {

QString program(const QString &strName)
{
    return QCoreApplication::applicationDirPath() + '/' + strName;
}

/// Why the row is not the whole record of a conference of host_child; empty when it is.
QString faultOf(const QStringList &row, bool bMayLackCall)
{
    static const QRegularExpression s_id(QStringLiteral("^\\d{13}$"));
    const bool connected = row.at(5) == QLatin1String("1");
    const bool named = s_id.match(row.at(0)).hasMatch();
    const bool timed = QDateTime::fromString(row.at(2), QStringLiteral("yyyy-MM-dd hh:mm:ss")).isValid();
    const bool heardOf = named && timed && connected;
    const bool whole =
        (heardOf || (bMayLackCall && (named || row.at(0).isEmpty()) && (timed || row.at(2).isEmpty()))) &&
        row.at(1) == QLatin1String("30010000") && row.at(3).toInt() >= 0 && !row.at(3).isEmpty() &&
        row.at(4) == QLatin1String("30010001,30010006,30010000,");
    return whole ? QString() : QStringLiteral("not whole: ") + row.join('|');
}

} // namespace

HostWorld::HostWorld()
{
    // Hosts and call process find each other by the temporary directory.
    qputenv("TMPDIR", QFile::encodeName(m_folder.path()));
    m_callProcess.start(program(QStringLiteral("VoipSDK/Contents/MacOS/VoipSDK")),
                        {"--speed", "1000", "--trace", filePath("trace")});
    if (!QTest::qWaitFor([this] { return trace().contains("listening at"); }, cPatienceMs)) {
        qFatal("the call process does not listen");
    }
}

HostWorld::~HostWorld()
{
    m_callProcess.kill();
    m_callProcess.waitForFinished(cPatienceMs);
}

std::unique_ptr<QProcess> HostWorld::startHost(int iPatienceMs) const
{
    auto host = std::make_unique<QProcess>();
    host->setWorkingDirectory(m_folder.path());
    host->setStandardErrorFile(QProcess::nullDevice());
    host->start(program(QStringLiteral("host_child")), {m_folder.path(), QString::number(iPatienceMs)});
    return host;
}

QByteArray HostWorld::trace() const
{
    QFile file(filePath(QStringLiteral("trace")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QStringList> HostWorld::ask(const QString &strStatement) const
{
    const QString name = QStringLiteral("asking");
    QList<QStringList> rows;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(filePath(QStringLiteral("30010000/localData.db")));
        QSqlQuery query(db.open() ? db : QSqlDatabase());
        query.exec(strStatement);
        while (query.next()) {
            QStringList row;
            for (int column = 0; column < query.record().count() && !query.value(column).isNull(); ++column) {
                row.append(query.value(column).toString());
            }
            rows.append(row);
        }
    }
    QSqlDatabase::removeDatabase(name);
    return rows;
}

QStringList HostWorld::records() const
{
    QStringList ids;
    const QList<QStringList> rows = ask(QStringLiteral("SELECT ConfID FROM voipConferenceInfo"));
    for (const QStringList &row : rows) {
        ids.append(row.value(0));
    }
    return ids;
}

QStringList HostWorld::created() const
{
    static const QRegularExpression s_created(QStringLiteral("> .*confId\\D+(\\d{13}).*\"resultCode\":20"));
    QStringList ids;
    auto match = s_created.globalMatch(QString::fromUtf8(trace()));
    while (match.hasNext()) {
        ids.append(match.next().captured(1));
    }
    return ids;
}

QString HostWorld::fault(bool bMayLackCall) const
{
    const QList<QStringList> verdict = ask(QStringLiteral("PRAGMA integrity_check"));
    if (verdict != QList<QStringList>{{QStringLiteral("ok")}}) {
        return QStringLiteral("integrity check: ") + verdict.value(0).value(0);
    }
    const QList<QStringList> rows = ask(QStringLiteral(
        "SELECT ConfID,CreatUserID,CreatTime,CallTime,MemberList,IsConnect FROM voipConferenceInfo ORDER BY ConfID"));
    QStringList ids;
    for (const QStringList &row : rows) {
        if (row.size() != 6) {
            return QStringLiteral("a column without a value: ") + row.join('|');
        }
        QString strFault = faultOf(row, bMayLackCall);
        if (!strFault.isEmpty()) {
            return strFault;
        }
        if (!row.at(0).isEmpty() && ids.contains(row.at(0))) {
            return QStringLiteral("twice: ") + row.at(0);
        }
        ids.append(row.at(0));
    }
    return {};
}

bool readLines(QProcess &host, const QByteArray &word, int iLines, QList<QByteArray> *pSaid)
{
    while (iLines > 0 && (host.canReadLine() || host.waitForReadyRead(cPatienceMs))) {
        for (; iLines > 0 && host.canReadLine();) {
            pSaid->append(host.readLine().trimmed());
            iLines -= pSaid->constLast().startsWith(word) ? 1 : 0;
        }
    }
    return iLines == 0;
}

void readRest(QProcess &host, QList<QByteArray> *pSaid)
{
    while (host.canReadLine()) {
        pSaid->append(host.readLine().trimmed());
    }
}
