// The table of the settings beside what tells of them: the document, the sample and the manual page.

#include "calls/settings/CallsSettings.h"
#include "calls/settings/SettingValue.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString textOf(const char *place)
{
    QFile file(QStringLiteral(VOIP_SOURCE "/") + QLatin1String(place));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString marked(const char *text)
{
    return *text == '\0' ? QString() : QStringLiteral("`%1`").arg(QLatin1String(text));
}

} // namespace

class tst_CallsDocuments : public QObject
{
    Q_OBJECT

private slots:
    void theDocumentTellsEachSettingInItsOrder()
    {
        QStringList told;
        for (const QString &line : textOf("docs/real-calls.md").split('\n')) {
            const QStringList cells = line.split(" | ");
            if (cells.size() == 5 && cells.at(0).contains('/') && cells.at(0).startsWith("| `")) {
                told << QStringList{cells.at(0).mid(2), cells.at(2).trimmed(), cells.at(3).trimmed(),
                                    cells.at(4).chopped(2)}
                            .join('|');
            }
        }
        QStringList rows;
        for (const CallsSettings::Row &row : CallsSettings::rows()) {
            rows << QStringList{QStringLiteral("`%1/%2`").arg(row.section, row.key), marked(row.byDefault),
                                marked(row.variable), QString::fromUtf8(row.meaning)}
                        .join('|');
        }
        QCOMPARE(told, rows);
    }

    void theDocumentTellsWhatMayStandThere()
    {
        const QString text = textOf("docs/real-calls.md");
        for (const CallsSettings::Row &row : CallsSettings::rows()) {
            const QString begin = QStringLiteral("| `%1/%2` | ").arg(row.section, row.key);
            const QString may = text.mid(text.indexOf(begin) + begin.size()).section(" | ", 0, 0);
            for (const std::string &word : parts(row.allowed, "|")) {
                QVERIFY2(may.contains(QString::fromStdString(word)), row.key);
            }
        }
    }

    void theSampleHasEachSettingAsItIsWithout()
    {
        QStringList keys;
        QString section;
        QByteArray said;
        for (const QString &line : textOf("apps/calls/settings/calls.ini").split('\n')) {
            if (line.startsWith('[')) {
                section = line.mid(1).chopped(1);
                said += line.toUtf8() + '\n';
            } else if (line.startsWith('#') && !line.startsWith("# ")) {
                keys << section + '/' + line.mid(1).trimmed();
                said += line.mid(1).toUtf8() + '\n';
            }
        }
        QStringList rows;
        for (const CallsSettings::Row &row : CallsSettings::rows()) {
            rows << QStringLiteral("%1/%2 = %3").arg(row.section, row.key, row.byDefault).trimmed();
        }
        QCOMPARE(keys, rows);
        // As it stands, and with nothing a comment any more, it says the same as no file.
        const QTemporaryDir folder;
        QFile file(folder.filePath("calls.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(said) == said.size());
        file.close();
        std::string fault;
        CallsSettings settings;
        QVERIFY2(settings.read({VOIP_SOURCE "/apps/calls/settings/calls.ini"}, &fault), fault.c_str());
        QVERIFY2(settings.read({file.fileName().toStdString()}, &fault), fault.c_str());
        QCOMPARE(settings.kind, std::string("robots"));
    }

    void theManualPageTellsEachSetting()
    {
        const QString page = textOf("packaging/share/man/man5/calls.ini.5").replace("\\-", "-");
        int at = 0;
        for (const CallsSettings::Row &row : CallsSettings::rows()) {
            const QString key = QStringLiteral("\n.TP\n.B %1\n").arg(row.key);
            at = page.indexOf(key, at);
            QVERIFY2(at >= 0, row.key);
            const QString entry = page.mid(at + key.size()).section("\n.TP\n", 0, 0).section("\n.S", 0, 0);
            QVERIFY2(*row.variable == '\0' || entry.contains(QStringLiteral(".RB [ %1 ]").arg(row.variable)), row.key);
            QVERIFY2(page.contains(QStringLiteral(".SS [%1]").arg(row.section)), row.section);
            QVERIFY2(*row.byDefault == '\0' || entry.contains(QStringLiteral("%1 if not given").arg(row.byDefault)),
                     row.key);
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsDocuments, Guiless)
#include "tst_CallsDocuments.moc"
