#include "common/LogUtils.h"
#include "common/system/OwnProcess.h"
#include "fakes/FileBytes.h"

#include <QDir>
#include <QtTest>

namespace {

/// Made before main() runs, from texts that must stand by then.
const QStringList cEarlyTexts{strLOG_TRACE,   strLOG_DEBUG,       strLOG_INFO,    strLOG_WARN,
                              strLOG_ERROR,   strLOG_FATAL,       strHTTP_SPACER, strFIELD_SPACER,
                              strDATA_SPACER, strMAP_DATA_SPACER, STR_EMPTY};

QStringList warnings;

void keepWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtWarningMsg) {
        warnings.append(text);
    }
}

} // namespace

class tst_LogUtils : public QObject
{
    Q_OBJECT

private slots:
    void lineFormat()
    {
        QCOMPARE(
            LogUtils::getFormattedLog("2016-05-03 09:12:44.031", "DEBUG", "VoipWidget.cpp:835", "setmic bMute = 1"),
            QStringLiteral("[2016-05-03 09:12:44.031][DEBUG][VoipWidget.cpp:835]: setmic bMute = 1\n"));
        QCOMPARE(LogUtils::getFormattedLog({}, {}, {}, {}), QStringLiteral("[][][]: \n"));
    }

    void placeMarksInTextsStay()
    {
        QCOMPARE(LogUtils::getFormattedLog("%4", "%1", "%2", "100% of %3"),
                 QStringLiteral("[%4][%1][%2]: 100% of %3\n"));
    }

    void constants_data()
    {
        QTest::addColumn<QString>("constant");
        QTest::addColumn<QString>("text");
        QTest::newRow("trace") << strLOG_TRACE << "TRACE";
        QTest::newRow("debug") << strLOG_DEBUG << "DEBUG";
        QTest::newRow("info") << strLOG_INFO << "INFO";
        QTest::newRow("warn") << strLOG_WARN << "WARN";
        QTest::newRow("error") << strLOG_ERROR << "ERROR";
        QTest::newRow("fatal") << strLOG_FATAL << "FATAL";
        QTest::newRow("http") << strHTTP_SPACER << "&";
        QTest::newRow("field") << strFIELD_SPACER << "|";
        QTest::newRow("data") << strDATA_SPACER << "#@#";
        QTest::newRow("map data") << strMAP_DATA_SPACER << "#$#";
        QTest::newRow("empty") << STR_EMPTY << "";
    }
    void constants()
    {
        QFETCH(QString, constant);
        QTEST(constant, "text");
    }

    void constantsStandDuringStaticInitialisation()
    {
        QCOMPARE(cEarlyTexts,
                 (QStringList{"TRACE", "DEBUG", "INFO", "WARN", "ERROR", "FATAL", "&", "|", "#@#", "#$#", ""}));
    }

    void eventSequence_data()
    {
        QTest::addColumn<QString>("log");
        QTest::addColumn<quint64>("sequence");
        QTest::newRow("number between dash and quote") << "ev-42\",\"rest" << quint64(42);
        QTest::newRow("a quote at the start is passed over") << "\"ev-42\",\"rest" << quint64(42);
        QTest::newRow("the first dash counts") << "ev-4-2\"" << quint64(1);
        QTest::newRow("no quote: the whole text") << "ev-43" << quint64(43);
        QTest::newRow("no dash: the whole left part") << "44\"x" << quint64(44);
        QTest::newRow("a dash behind the quote is not seen") << "45\"-46" << quint64(45);
        QTest::newRow("all of 64 bits") << "e-18446744073709551615\"" << Q_UINT64_C(18446744073709551615);
        QTest::newRow("beyond 64 bits") << "e-18446744073709551616\"" << quint64(1);
        QTest::newRow("hexadecimal is no number") << "e-0x10\"" << quint64(1);
        QTest::newRow("not a number") << "e-abc\"" << quint64(1);
        QTest::newRow("nothing behind the dash") << "e-\"" << quint64(1);
        QTest::newRow("zero is a number") << "e-0\"" << quint64(0);
        QTest::newRow("empty") << "" << quint64(1);
        QTest::newRow("a single quote") << "\"" << quint64(1);
    }
    void eventSequence()
    {
        QFETCH(QString, log);
        QTEST(LogUtils::getEventSequenceByLog(log), "sequence");
    }

    void missingTemplatesReadAsEmpty()
    {
        QCOMPARE(LogUtils::getLogTemplate(), QString());
        QCOMPARE(LogUtils::getLogHeader(), QString());
    }

    void templatesAreReadAsUtf8FromTheWorkingDirectory()
    {
        writeTemplate("模板 %1\r\n");
        QVERIFY(writeFile("Resources/CustomLog/LogHeader.txt", "标题\n"));
        QCOMPARE(LogUtils::getLogTemplate(), QStringLiteral("模板 %1\r\n"));
        QCOMPARE(LogUtils::getLogHeader(), QStringLiteral("标题\n"));
    }

    void templateIsFilledAndTheExceptionEscaped()
    {
        writeTemplate("%1,%2,%3,%4,%5,%6,%7,\"%8\",%9");
        QCOMPARE(LogUtils::getLogByTemplate("a\"1\n", "%3", "c", "d", "e", "f", "g", "say \"no\"\n\nend", "i"),
                 QStringLiteral("a\"1\n,%3,c,d,e,f,g,\"say \"\"no\"\"\\n\\nend\",i"));

        writeTemplate("changed %1 %2 %3 %4 %5 %6 %7 %8 %9");
        QCOMPARE(LogUtils::getLogByTemplate("1", "2", "3", "4", "5", "6", "7", "8", "9"),
                 QStringLiteral("1,2,3,4,5,6,7,\"8\",9"));
    }

    void missingTemplateGivesAnEmptyLogWithoutAWarning()
    {
        if (!inOwnProcess()) {
            QCOMPARE(failureInOwnProcess({}, "/"), QByteArray());
            return;
        }
        const QtMessageHandler before = qInstallMessageHandler(keepWarnings);
        const QString log = LogUtils::getLogByTemplate("1", "2", "3", "4", "5", "6", "7", "8", "9");
        qInstallMessageHandler(before);
        QCOMPARE(log, QString());
        QCOMPARE(warnings, QStringList());
    }

private:
    static void writeTemplate(const QByteArray &text)
    {
        QVERIFY(QDir().mkpath("Resources/CustomLog"));
        QVERIFY(writeFile("Resources/CustomLog/LogTemplate.txt", text));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_LogUtils, Guiless)
#include "tst_LogUtils.moc"
