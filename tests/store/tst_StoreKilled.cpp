#include "fakes/Patience.h"
#include "store/StoreFolder.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <QThread>

/// The store after its program was killed at a random moment.
class tst_StoreKilled : public StoreFolder
{
    Q_OBJECT

private slots:
    void killedWriterLeavesWholeRecordsOnly()
    {
        QRandomGenerator random(3);
        int next = 0;
        QList<int> saved;
        for (int round = 0; round < 100; ++round) {
            killWhenItSays(QString::number(next), random.bounded(2, 40), random.bounded(2000), &saved);
            QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
            QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
            const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
            DB::closeDB();
            QSet<int> found;
            for (const ConfInfoData &record : records) {
                const int number = numberOf(record);
                const ConfInfoData whole = numberedRecord(number);
                QCOMPARE(record.m_strConfID, whole.m_strConfID);
                QCOMPARE(record.m_strCreatUserID, whole.m_strCreatUserID);
                QCOMPARE(record.m_strCreatTime, whole.m_strCreatTime);
                QCOMPARE(record.m_strCallTime, whole.m_strCallTime);
                QCOMPARE(record.m_listMember, whole.m_listMember);
                QCOMPARE(record.m_bIsConnect, whole.m_bIsConnect);
                found.insert(number);
                next = qMax(next, number + 1);
            }
            // What the writer had said is saved is there.
            QVERIFY(found.contains(QSet<int>(saved.begin(), saved.end())));
        }
        QVERIFY(saved.size() > 100);
    }

    void killedOpenIsFinishedByTheNextOne()
    {
        QVERIFY(putFile(m_sound));
        const QString whole = tables();
        QVERIFY(!whole.isEmpty());
        QRandomGenerator random(4);
        for (int round = 0; round < 30; ++round) {
            QVERIFY(QFile::remove(m_strFile));
            QList<int> saved;
            killWhenItSays(QStringLiteral("0"), 1, random.bounded(15000), &saved);
            QVERIFY(DB::checkDB(m_strFolder, true));
            QVERIFY(DB::initByUserName(m_strUser, m_strBase, true));
            DB::closeDB();
            QCOMPARE(tables(), whole);
            QCOMPARE(ask(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
        }
    }

private:
    /// Starts a writer at the record `iFirst`, kills it that long after it said its line `iLines`, and appends the
    /// numbers that it had said by then.
    void killWhenItSays(const QString &strFirst, int iLines, int iMicroseconds, QList<int> *pSaved) const
    {
        QProcess writer;
        writer.start(QStringLiteral(STORE_CHILD), {QStringLiteral("write"), m_strBase, strFirst});
        int lines = 0;
        while (lines < iLines && (writer.canReadLine() || writer.waitForReadyRead(cPatienceMs))) {
            for (; lines < iLines && writer.canReadLine(); ++lines) {
                const QByteArray line = writer.readLine();
                if (lines > 0) {
                    pSaved->append(line.toInt());
                }
            }
        }
        QCOMPARE(lines, iLines);
        QThread::usleep(static_cast<unsigned long>(iMicroseconds));
        writer.kill();
        QVERIFY(writer.waitForFinished(cPatienceMs));
        while (writer.canReadLine()) {
            const QByteArray line = writer.readLine();
            if (line != "start\n") {
                pSaved->append(line.toInt());
            }
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StoreKilled, Guiless)
#include "tst_StoreKilled.moc"
