#include "traffic/WireTrace.h"

#include <QDateTime>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

class tst_WireTrace : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(m_strFile); }

    void missingFileHasNoLines()
    {
        WireTrace trace(m_strFile);
        QVERIFY(trace.readNew().isEmpty());
        append("1 = late\n");
        QCOMPARE(trace.readNew().size(), 1);
    }

    void pipeIsLeftToItsReader()
    {
        QCOMPARE(mkfifo(qPrintable(m_strFile), 0600), 0);
        QVERIFY(WireTrace(m_strFile).readNew().isEmpty());
    }

    void directionsAreTold()
    {
        WireTrace trace(m_strFile);
        append("       1 < {\"messagetype\":\"UnReg\"}\n  22 > {\"resultCode\":0}\n333 = listening\n4 ! odd\n");
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0).direction, WireLine::FromPlugin);
        QCOMPARE(lines.at(0).text, QStringLiteral("{\"messagetype\":\"UnReg\"}"));
        QCOMPARE(lines.at(1).direction, WireLine::ToPlugin);
        QCOMPARE(lines.at(2).direction, WireLine::Event);
        QCOMPARE(lines.at(2).text, QStringLiteral("listening"));
        QCOMPARE(lines.at(3).direction, WireLine::Event);
    }

    void eachLineComesOnce()
    {
        WireTrace trace(m_strFile);
        append("1 < a\n");
        QCOMPARE(trace.readNew().size(), 1);
        QVERIFY(trace.readNew().isEmpty());
        append("2 < b\n");
        QCOMPARE(trace.readNew().at(0).text, QStringLiteral("b"));
    }

    void unfinishedLineWaitsForItsEnd()
    {
        WireTrace trace(m_strFile);
        append("1 < 李");
        QVERIFY(trace.readNew().isEmpty());
        append("雷\n2 < ");
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.at(0).text, QStringLiteral("李雷"));
    }

    void otherLinesAreLeftOut()
    {
        WireTrace trace(m_strFile);
        append("garbage\n\n12 ? x\nx < y\n3 > ok\n");
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.at(0).text, QStringLiteral("ok"));
    }

    void complaintsAreTold()
    {
        WireTrace trace(m_strFile);
        append("1 = fine\n2 ! odd\n");
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 2);
        QVERIFY(!lines.at(0).complaint);
        QVERIFY(lines.at(1).complaint);
    }

    void longLineIsCutAndSaysItsLength()
    {
        WireTrace trace(m_strFile);
        append("1 > " + QByteArray(700000, 'x'));
        QVERIFY(trace.readNew().isEmpty());
        append(QByteArray(300000, 'x') + "\n2 > short\n");
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines.at(0).isCut);
        QCOMPARE(lines.at(0).length, 1000004);
        QCOMPARE(lines.at(0).text, QString(64 * 1024 - 4, QLatin1Char('x')));
        QVERIFY(!lines.at(1).isCut);
        QCOMPARE(lines.at(1).text, QStringLiteral("short"));
    }

    void fileThatBeginsAnewIsReadAnew()
    {
        WireTrace trace(m_strFile);
        append("1 = one\n2 = two\n");
        QCOMPARE(trace.readNew().size(), 2);
        QVERIFY(QFile::resize(m_strFile, 0));
        append("1 = new\n");
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.at(0).text, QStringLiteral("new"));
    }

    void timesGoBackFromTheFilesTime()
    {
        WireTrace trace(m_strFile);
        append("1000 = one\n4500 = two\n");
        const QDateTime written = QDateTime::currentDateTime().addSecs(-10);
        setWritten(written);
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.at(0).time, written.toMSecsSinceEpoch() - 3500);
        QCOMPARE(lines.at(1).time, written.toMSecsSinceEpoch());
    }

    void earlierCallProcessIsNotLaterThanTheNext()
    {
        WireTrace trace(m_strFile);
        append("90000 = died\n5 = started\n1005 = listening\n");
        const QDateTime written = QDateTime::currentDateTime().addSecs(-10);
        setWritten(written);
        const QList<WireLine> lines = trace.readNew();
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(1).time, written.toMSecsSinceEpoch() - 1000);
        QCOMPARE(lines.at(0).time, lines.at(1).time);
    }

    void presentCallProcessKeepsItsStart()
    {
        WireTrace trace(m_strFile);
        append("1000 = one\n");
        const QDateTime written = QDateTime::currentDateTime().addSecs(-10);
        setWritten(written);
        QCOMPARE(trace.readNew().size(), 1);
        // The file's clock lags: what it says now is earlier than what the first line told.
        append("3000 = two\n");
        setWritten(written.addMSecs(1990));
        QCOMPARE(trace.readNew().at(0).time, written.toMSecsSinceEpoch() + 2000);
    }

private:
    void append(const QByteArray &bytes)
    {
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::Append));
        file.write(bytes);
    }

    void setWritten(const QDateTime &time)
    {
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    QString m_strFile = QStringLiteral("wire.txt");
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WireTrace, Guiless)
#include "tst_WireTrace.moc"
