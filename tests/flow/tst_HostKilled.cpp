// The host is killed at a random point of a conference, again and again over the same store: the store stays sound,
// every record in it is whole, and whatever was reported as saved is there. VOIP_HOST_KILLS sets how often (50),
// VOIP_SEED the sequence (1).

#include "fakes/Patience.h"
#include "flow/HostProcess.h"

#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

class tst_HostKilled : public QObject
{
    Q_OBJECT

private slots:
    void storeIsSoundAndEveryRecordWhole()
    {
        const int kills = setting("VOIP_HOST_KILLS", 50);
        QRandomGenerator random(static_cast<quint32>(setting("VOIP_SEED", 1)));
        const HostWorld world;
        int begun = 0;
        int saved = 0;
        for (int kill = 0; kill < kills; ++kill) {
            QList<QByteArray> said;
            const std::unique_ptr<QProcess> host = world.startHost(30000);
            QVERIFY2(readLines(*host, "begun", random.bounded(1, 4), &said), qPrintable(QString::number(kill)));
            // A conference takes some 30 ms from its begin to the next one's.
            QThread::usleep(random.bounded(40000U));
            host->kill();
            QVERIFY(host->waitForFinished(cPatienceMs));
            readRest(*host, &said);
            begun += said.count("begun");
            saved += said.count("saved");
            QCOMPARE(said.count("refused"), 0);

            QCOMPARE(world.fault(false), QString());
            const int records = world.records().size();
            // What was killed between the record and the word is there too.
            QVERIFY2(records >= saved && records <= begun,
                     qPrintable(QStringLiteral("%1 records, %2 saved, %3 begun").arg(records).arg(saved).arg(begun)));
            saved = records;
        }
        qInfo("%d conferences, the host killed %d times, %d records", begun, kills, saved);
    }

private:
    static int setting(const char *szName, int iDefault)
    {
        bool set = false;
        const int value = qEnvironmentVariableIntValue(szName, &set);
        return set ? value : iDefault;
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostKilled, Guiless)
#include "tst_HostKilled.moc"
