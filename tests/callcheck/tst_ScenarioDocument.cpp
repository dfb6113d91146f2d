// docs/scenario-language.md beside the language and the ready scenarios.

#include "callcheck/CommandUse.h"
#include "callprocess/Scenario.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

/// The first cells of all table rows that begin with a word in code.
QStringList firstCells()
{
    QFile file(QStringLiteral(VOIP_DOCUMENTS "/scenario-language.md"));
    QStringList cells;
    if (file.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
        for (const QString &line : lines) {
            if (line.startsWith("| `")) {
                cells.append(line.section('|', 1, 1).trimmed());
            }
        }
    }
    return cells;
}

QStringList namesOf(const QString &filter)
{
    QStringList names = firstCells().filter(filter);
    for (QString &name : names) {
        name.remove('`');
    }
    return names;
}

} // namespace

class tst_ScenarioDocument : public QObject
{
    Q_OBJECT

private slots:
    void everyReadyScenarioIsListedAndEveryListedOneIsThere()
    {
        const QDir folder(QStringLiteral(VOIPSDK_SCENARIOS));
        QStringList listed = namesOf(QStringLiteral(".scn`"));
        listed.sort();
        QStringList there = folder.entryList(QDir::Files);
        there.sort();
        QCOMPARE(listed, there);
        QVERIFY(listed.size() >= 20);
    }

    void everyReadyScenarioIgnoresWhatTheUserMayMoveAtAnyTime()
    {
        const QFileInfoList files = QDir(QStringLiteral(VOIPSDK_SCENARIOS)).entryInfoList(QDir::Files);
        for (const QFileInfo &info : files) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            QString error;
            const std::optional<Scenario> scenario = Scenario::parse(info.fileName(), file.readAll(), &error);
            QVERIFY2(scenario, qPrintable(error));
            QStringList ignored;
            for (const Statement &statement : scenario->statements) {
                ignored += statement.kind == StatementKind::Ignore ? statement.commands : QStringList();
            }
            for (const CommandUse::Row &row : CommandUse::cRows) {
                const bool bWhenever = row.moment == CommandUse::Moment::Whenever;
                QVERIFY2(!bWhenever || ignored.contains(QLatin1String(Wire::nameOf(row.command))),
                         qPrintable(info.fileName() + QLatin1Char(' ') + QLatin1String(Wire::nameOf(row.command))));
            }
        }
    }

    void everyStatementHasItsRow()
    {
        const QStringList cells = firstCells();
        for (const StatementRow &row : cStatements) {
            const QRegularExpression begin(QStringLiteral("`%1[ `]").arg(QLatin1String(row.word)));
            QVERIFY2(!cells.filter(begin).isEmpty(), row.word);
        }
    }

    void exampleIsAScenario()
    {
        QFile file(QStringLiteral(VOIP_DOCUMENTS "/scenario-language.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray example;
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("    ")) {
                example += line.mid(4) + '\n';
            }
        }
        QString error;
        const std::optional<Scenario> scenario = Scenario::parse("example", example, &error);
        QVERIFY2(scenario, qPrintable(error));
        QVERIFY(scenario->statements.size() > 5);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ScenarioDocument, Guiless)
#include "tst_ScenarioDocument.moc"
