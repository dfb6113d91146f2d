// The tables of docs/host-contract.md beside what the plug-in does: every row is carried out or sent, and every payload
// is read field by field as its row says.

#include "fakes/FakeHost.h"
#include "plugin/EMsgId.h"
#include "plugin/EventPayload.h"
#include "plugin/HostCommands.h"
#include "plugin/HostEvents.h"
#include "plugin/HostRequests.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageEventProcess.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

#include <functional>
#include <iterator>

using Requests = VoipManageEventProcess;
using Cells = QStringList;

namespace {

constexpr int cCommandCount = 9;

QString nameOf(EMsgId msgId)
{
    switch (msgId) {
#define HOST_EVENT(name, number, way, fields, answer)                                                                  \
    case name:                                                                                                         \
        return QStringLiteral(#name);
#include "plugin/HostEvents.def"
#undef HOST_EVENT
    }
    return QString();
}

QString fileText(const char *strFile)
{
    QFile file(QString::fromLocal8Bit(strFile));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The rows of the section's table that begin with a number, cell by cell.
QList<Cells> rowsOf(const QString &strSection)
{
    const QString text = fileText(VOIP_DOCUMENT);
    const int start = text.indexOf(QStringLiteral("\n## ") + strSection);
    QList<Cells> rows;
    const QStringList lines = text.mid(start + 1, text.indexOf(QStringLiteral("\n## "), start + 1) - start).split('\n');
    for (const QString &line : lines) {
        static const QRegularExpression numbered(QStringLiteral("^\\| (\\d{4}) \\|"));
        if (!numbered.match(line).hasMatch()) {
            continue;
        }
        Cells cells;
        const QStringList pieces = line.mid(1, line.size() - 2).split('|');
        for (const QString &piece : pieces) {
            cells.append(piece.trimmed());
        }
        rows.append(cells);
    }
    return rows;
}

/// Takes one field of the documented type and gives it in words.
QString takeField(PayloadReader &reader, const QString &strType)
{
    if (strType == QLatin1String("text")) {
        return reader.take<QString>();
    }
    if (strType == QLatin1String("texts")) {
        return reader.takeTexts().join('+');
    }
    if (strType == QLatin1String("bool")) {
        return reader.take<bool>() ? QStringLiteral("yes") : QStringLiteral("no");
    }
    if (strType == QLatin1String("int")) {
        return QString::number(reader.take<qint32>());
    }
    if (strType == QLatin1String("long")) {
        return QString::number(reader.take<qint64>());
    }
    return QStringLiteral("no type of the document: ") + strType;
}

/// The letters of the types that the document gives the fields, each in its first word.
QString lettersOf(const QString &strTypes)
{
    static const QMap<QString, QString> letters = {{"text", "s"}, {"texts", "l"}, {"bool", "b"},
                                                   {"int", "i"},  {"long", "q"},  {"address", "p"}};
    QString found;
    const QStringList types = strTypes.split(QStringLiteral(", "), Qt::SkipEmptyParts);
    for (const QString &type : types) {
        found += letters.value(type.section(QRegularExpression("[ :]"), 0, 0), QStringLiteral("?"));
    }
    return found;
}

/// The same of the table's fields; the reason of a call's end is a number as any other.
QString lettersOfTable(const char *fields)
{
    QString found;
    const QStringList shapes = QString(fields).split(' ', Qt::SkipEmptyParts);
    for (const QString &shape : shapes) {
        found += shape.at(0) == 'r' ? QChar('i') : shape.at(0);
    }
    return found;
}

struct Sample
{
    std::function<void()> send;
    QStringList fields;
};

QMap<QString, Sample> samples()
{
    const QString user = QStringLiteral("u");
    const QStringList two = {QStringLiteral("a"), QStringLiteral("b")};
    const QStringList one = {QStringLiteral("7")};
    return {
        {"4639", {[=] { Requests::notifyRecevieVoipCall(user, true, false); }, {"u", "yes", "no"}}},
        {"4478",
         {[=] { Requests::notifyCallFinished(true, user, 24, false, true, Q_INT64_C(5000000000)); },
          {"yes", "u", "24", "no", "yes", "5000000000"}}},
        {"4734", {[=] { Requests::notifyCreateVoiceConference(two); }, {"a+b"}}},
        {"4735", {[=] { Requests::addMemberToConference(two); }, {"a+b"}}},
        {"4157", {[=] { Requests::getFriendInfoByJid(user); }, {"u"}}},
        {"4337", {[=] { Requests::isExistFriend(user); }, {"u"}}},
        {"4159", {[=] { Requests::getStrangerSmallVCard(two, one, true); }, {"a+b", "7", "yes"}}},
        {"4345", {[=] { Requests::closeAVMsgBox(user); }, {"u"}}},
        {"4267", {[=] { Requests::showSignList(user, 1, 2, 3, true, false); }, {"u", "1", "2", "3", "yes", "no"}}},
        {"4540", {[=] { Requests::closeSignList(); }, {}}},
    };
}

} // namespace

class tst_HostContractDocument : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host.events.clear();
        VoipManageMessageProcess::instance()->setSendEvent(&m_host);
    }

    void cleanup() { VoipManageMessageProcess::instance()->setSendEvent(nullptr); }

    void everyEventHasItsRow_data()
    {
        QTest::addColumn<QString>("strSection");
        QTest::addColumn<bool>("bRequests");
        QTest::addColumn<int>("iPayload");
        QTest::newRow("commands") << "Commands" << false << 2;
        QTest::newRow("requests") << "Requests" << true << 4;
    }

    void everyEventHasItsRow()
    {
        QFETCH(QString, strSection);
        QFETCH(bool, bRequests);
        QFETCH(int, iPayload);
        QStringList expected;
        for (const HostEvent &event : cHostEvents) {
            if ((event.way == EventWay::Request) == bRequests) {
                expected.append(
                    QString("%1 %2 (%3) (%4)")
                        .arg(int(event.msgId))
                        .arg(nameOf(event.msgId), lettersOfTable(event.fields), lettersOfTable(event.answer)));
            }
        }
        QStringList documented;
        const QList<Cells> rows = rowsOf(strSection);
        for (const Cells &row : rows) {
            const QString answer = row.constLast().section(", ", 0, 0);
            documented.append(
                QString("%1 %2 (%3) (%4)").arg(row[0], row[1], lettersOf(row[iPayload]), lettersOf(answer)));
        }
        documented.sort();
        expected.sort();
        QVERIFY(!expected.isEmpty());
        QCOMPARE(documented, expected);
    }

    void everyDocumentedCommandIsKnown()
    {
        const QList<Cells> rows = rowsOf(QStringLiteral("Commands"));
        QCOMPARE(rows.size(), cCommandCount);
        for (const Cells &row : rows) {
            QVERIFY2(findHostCommand(row[0].toInt()) != nullptr, qPrintable(row[0]));
        }
    }

    void documentedRequestIsWhatArrives_data()
    {
        QTest::addColumn<Cells>("row");
        const QList<Cells> rows = rowsOf(QStringLiteral("Requests"));
        QCOMPARE(rows.size(), static_cast<int>(std::size(cHostRequests)));
        for (const Cells &row : rows) {
            QTest::newRow(qPrintable(row[0])) << row;
        }
    }

    void documentedRequestIsWhatArrives()
    {
        QFETCH(Cells, row);
        QCOMPARE(row.size(), 7);
        const QMap<QString, const QString &(*)()> receivers = {{"session", sessionPluginId},
                                                               {"contact", contactPluginId},
                                                               {"vCard", vcardPluginId},
                                                               {"message-box", msgBoxPluginId},
                                                               {"signature-list", signListPluginId}};
        const Sample sample = samples().value(row[0]);
        QVERIFY(sample.send && receivers.contains(row[2]));
        sample.send();
        const bool posted = m_host.events.isEmpty();
        QCOMPARE(posted ? QStringLiteral("posted") : QStringLiteral("sent"), row[3]);
        QCoreApplication::sendPostedEvents(&m_host);

        QCOMPARE(m_host.events.size(), 1);
        const ReceivedEvent event = m_host.events.constFirst();
        QCOMPARE(QString::number(event.msgId), row[0]);
        QCOMPARE(event.receiverId, receivers.value(row[2])());
        QCOMPARE(event.bAsync, posted);
        QCOMPARE(event.senderId == vcardPluginId(),
                 row[5].contains(QLatin1String("names the vCard plug-in as its sender")));
        QCOMPARE(event.senderId == voipPluginId(), !row[5].contains(QLatin1String("as its sender")));

        // Exactly the fields of the row: one byte less and the last field is missing, one more and something is left.
        PayloadReader reader = event.reader();
        QStringList fields;
        const QStringList types = row[4].split(QStringLiteral(", "), Qt::SkipEmptyParts);
        for (const QString &type : types) {
            fields.append(takeField(reader, type.section(' ', 0, 0)));
        }
        QCOMPARE(fields, sample.fields);
        QVERIFY(reader.isComplete());
        reader.take<qint8>();
        QVERIFY(!reader.isComplete());
    }

    void otherAnswersOfTheInterfaceAreDocumented()
    {
        QVERIFY(fileText(VOIP_DOCUMENT).contains(QStringLiteral("| \"%1\", the name to go by |").arg(voipPluginId())));
    }

private:
    FakeHost m_host;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostContractDocument, Widgets)
#include "tst_HostContractDocument.moc"
