#include "WireTrace.h"

#include <QFile>
#include <QTest>

class tst_WireTrace : public QObject
{
    Q_OBJECT

private slots:
    void init() { QFile::remove(m_strFile); }
    void missingFileHasNoLines();
    void directionsAreTold();
    void eachLineComesOnce();
    void unfinishedLineWaitsForItsEnd();
    void otherLinesAreLeftOut();

private:
    void append(const QByteArray &bytes)
    {
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::Append));
        file.write(bytes);
    }

    QString m_strFile = QStringLiteral("wire.txt");
};

void tst_WireTrace::missingFileHasNoLines()
{
    WireTrace trace(m_strFile);
    QVERIFY(trace.readNew().isEmpty());
    append("1 = late\n");
    QCOMPARE(trace.readNew().size(), 1);
}

void tst_WireTrace::directionsAreTold()
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

void tst_WireTrace::eachLineComesOnce()
{
    WireTrace trace(m_strFile);
    append("1 < a\n");
    QCOMPARE(trace.readNew().size(), 1);
    QVERIFY(trace.readNew().isEmpty());
    append("2 < b\n");
    QCOMPARE(trace.readNew().at(0).text, QStringLiteral("b"));
}

void tst_WireTrace::unfinishedLineWaitsForItsEnd()
{
    WireTrace trace(m_strFile);
    append("1 < 李");
    QVERIFY(trace.readNew().isEmpty());
    append("雷\n2 < ");
    const QList<WireLine> lines = trace.readNew();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.at(0).text, QStringLiteral("李雷"));
}

void tst_WireTrace::otherLinesAreLeftOut()
{
    WireTrace trace(m_strFile);
    append("garbage\n\n12 ? x\nx < y\n3 > ok\n");
    const QList<WireLine> lines = trace.readNew();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.at(0).text, QStringLiteral("ok"));
}

QTEST_GUILESS_MAIN(tst_WireTrace)
#include "tst_WireTrace.moc"
