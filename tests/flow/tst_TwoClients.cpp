// Two clients of one user at once, on one store and one channel. The call process talks to one at a time, the younger
// connection; the other one finds its channel lost, comes back by its back-off and takes the channel in its turn. Calls
// suffer, as they must; the store does not, and neither client ends.

#include "fakes/Patience.h"
#include "flow/HostProcess.h"

#include <QtTest>

class tst_TwoClients : public QObject
{
    Q_OBJECT

private slots:
    void channelChangesHandsAndTheStoreKeepsAllRecords()
    {
        const HostWorld world;
        const std::unique_ptr<QProcess> first = world.startHost(3000);
        QList<QByteArray> saidByFirst;
        QList<QByteArray> saidBySecond;
        QVERIFY(readLines(*first, "saved", 3, &saidByFirst));
        const std::unique_ptr<QProcess> second = world.startHost(3000);
        QVERIFY(readLines(*second, "saved", 3, &saidBySecond));
        // Both go on in turns.
        for (int turn = 0; turn < 3; ++turn) {
            QVERIFY(readLines(*first, "saved", 5, &saidByFirst));
            QVERIFY(readLines(*second, "saved", 5, &saidBySecond));
        }

        for (QProcess *host : {first.get(), second.get()}) {
            host->write("quit\n");
            QVERIFY(host->waitForFinished(cPatienceMs));
            QCOMPARE(host->exitStatus(), QProcess::NormalExit);
            QCOMPARE(host->exitCode(), 0);
        }
        readRest(*first, &saidByFirst);
        readRest(*second, &saidBySecond);
        const auto isRecorded = [](const QByteArray &line) { return line.startsWith("saved"); };
        const auto recorded = std::count_if(saidByFirst.cbegin(), saidByFirst.cend(), isRecorded) +
                              std::count_if(saidBySecond.cbegin(), saidBySecond.cend(), isRecorded);
        QCOMPARE(world.fault(true), QString());
        const int changes = world.trace().count("client replaced");
        QVERIFY(changes >= 3);
        // The exchange goes on with a conference when the channel changes hands and tells the other client of it too,
        // which then ends it under the same id: one record for both. But no conference that was created lacks its
        // record.
        const QStringList records = world.records();
        QVERIFY(records.size() <= recorded);
        const QStringList created = world.created();
        QVERIFY(created.size() >= 10);
        for (const QString &id : created) {
            QVERIFY2(records.contains(id), qPrintable(id));
        }
        qInfo("%d changes of the channel, %d conferences, %d records", changes, static_cast<int>(recorded),
              records.size());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TwoClients, Guiless)
#include "tst_TwoClients.moc"
