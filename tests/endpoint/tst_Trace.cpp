#include "endpoint/Trace.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class tst_Trace : public QObject
{
    Q_OBJECT

private slots:
    void printableKeepsOneLine_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QByteArray("{\"a\":1}") << QStringLiteral("{\"a\":1}");
        QTest::newRow("utf-8") << QByteArray("\xE5\x91\xBC") << QStringLiteral("呼");
        QTest::newRow("line feed and NUL") << QByteArray("a\nb\0c", 5) << QStringLiteral("a␊b␀c");
        QTest::newRow("no utf-8") << QByteArray("a\xFF\nb") << QStringLiteral("a\\xFF␊b");
        QTest::newRow("half a character") << QByteArray("a\xE5\x91") << QStringLiteral("a\\xE5\\x91");
        QTest::newRow("delete") << QByteArray("\x7F") << QStringLiteral("␡");
    }

    void printableKeepsOneLine()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(Trace::printable(bytes), text);
    }

    void pipeIsWrittenWithoutAWarning()
    {
        QCOMPARE(mkfifo("pipe.trace", 0600), 0);
        const int reader = ::open("pipe.trace", O_RDONLY | O_NONBLOCK);
        static int s_warnings;
        s_warnings = 0;
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++s_warnings; });
        Trace trace;
        QString error;
        const bool open = trace.open(QStringLiteral("pipe.trace"), &error);
        trace.event(QStringLiteral("listening"));
        qInstallMessageHandler(before);
        QByteArray written(100, '\0');
        written.truncate(int(qMax<ssize_t>(0, ::read(reader, written.data(), size_t(written.size())))));
        ::close(reader);
        QVERIFY2(open, qPrintable(error));
        QVERIFY(written.endsWith(" = listening\n"));
        QCOMPARE(s_warnings, 0);
    }

    void pipeIsWaitedForNeitherAtItsBeginNorLater()
    {
        QCOMPARE(mkfifo("full.trace", 0600), 0);
        QString error;
        QVERIFY(!Trace().open(QStringLiteral("full.trace"), &error));
        QCOMPARE(error, QStringLiteral("cannot write the trace full.trace: No such device or address"));
        const int reader = ::open("full.trace", O_RDONLY | O_NONBLOCK);
        Trace trace;
        QVERIFY2(trace.open(QStringLiteral("full.trace"), &error), qPrintable(error));
        const QString text(4000, QLatin1Char('x'));
        for (int records = 0; records < 100; ++records) {
            trace.event(text);
        }
        QByteArray written(1 << 20, '\0');
        const ssize_t size = ::read(reader, written.data(), size_t(written.size()));
        QVERIFY(size > 10000 && size < 100 * 4000);
        trace.event(QStringLiteral("room again"));
        written.fill('\0');
        QVERIFY(::read(reader, written.data(), size_t(written.size())) > 0);
        ::close(reader);
        QVERIFY(written.contains(" = room again\n"));
    }

    void veilCoversWhatCameInAlone()
    {
        Trace trace;
        QString error;
        QVERIFY(trace.open(QStringLiteral("veiled.trace"), &error));
        trace.setVeil([](const QByteArray &line) { return QByteArray(line).replace("secret", "..."); });
        trace.received("a secret");
        trace.receivedHalf("half a secret");
        trace.sent("no secret\n");
        QFile file(QStringLiteral("veiled.trace"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList records;
        for (const QByteArray &record : file.readAll().split('\n')) {
            records << QString::fromUtf8(record.mid(record.indexOf(' ') + 1));
        }
        QCOMPARE(records, (QStringList{QStringLiteral("< a ..."), QStringLiteral("! line without an end: half a ..."),
                                       QStringLiteral("> no secret"), QString()}));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Trace, Appless)
#include "tst_Trace.moc"
