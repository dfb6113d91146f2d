#include "common/CLogManger.h"
#include "common/CLogThread.h"
#include "common/CustomLogger.h"
#include "fakes/FileBytes.h"
#include "fakes/GivenContext.h"
#include "fakes/Patience.h"
#include "model/CommonData.h"

#include <QtTest>

#include <optional>

namespace {

/// What the host hands over: a context with a log file and a log thread, taken away again when it goes.
struct Host
{
    explicit Host(const QString &fileName) : logFile(fileName), logger(fileName)
    {
        context.setCustomLogger(&logger);
        context.setCustomLogThread(&thread);
        given.emplace(context);
    }

    ~Host()
    {
        given.reset();
        thread.stop();
        thread.printLog(CustomLog::Debug, {}, {});
        thread.wait();
    }

    Host(const Host &) = delete;
    Host &operator=(const Host &) = delete;

    /// The lines behind their time, once that many stand in the file.
    QStringList lines(int count)
    {
        thread.start();
        const bool written = QTest::qWaitFor(
            [this, count] {
                logger.flush();
                return readBytes(logFile).count('\n') >= count;
            },
            cPatienceMs);
        if (!written) {
            return {QStringLiteral("too few lines")};
        }
        QStringList all = QString::fromUtf8(readBytes(logFile)).split('\n', Qt::SkipEmptyParts);
        for (QString &line : all) {
            line.remove(QRegularExpression("^\\[[^\\]]*\\]"));
        }
        return all;
    }

    QString logFile;
    CustomLogger logger;
    CLogThread thread;
    CommonData context;
    std::optional<GivenContext> given;
};

/// For the process's one facade, which takes what stands at its creation.
Host *processHost = nullptr;
int processLines = 0;

} // namespace

class tst_CLogManger : public QObject
{
    Q_OBJECT

    /// The line that one statement of the process's facade has made.
    static QString nextLine()
    {
        ++processLines;
        return processHost->lines(processLines).last();
    }

private slots:
    void initTestCase()
    {
        processHost = new Host("process.log");
        QVERIFY(CLogManger::instance());
        processHost->given.reset();
    }

    void cleanupTestCase() { delete processHost; }

    void instanceIsTheSameEachTime() { QCOMPARE(CLogManger::instance(), CLogManger::instance()); }

    void loggerComesFromTheContext()
    {
        QCOMPARE(CLogManger::instance()->getLogger(), &processHost->logger);
        QCOMPARE(processHost->thread.getCustomLogger(), &processHost->logger);
    }

    void debugStatementWritesOneRecordOfLevelTwo()
    {
        const int line = __LINE__ + 1;
        LOG_DEBUG << "setmic bMute = " << true << "\n";
        QCOMPARE(nextLine(), QStringLiteral("[DEBUG][tst_CLogManger.cpp:%1]: setmic bMute = 1").arg(line));
    }

    void warnStatementWritesOneRecordOfLevelFour()
    {
        const int line = __LINE__ + 1;
        LOG_WARN << "careful = " << 1 << "\n";
        QCOMPARE(nextLine(), QStringLiteral("[WARN][tst_CLogManger.cpp:%1]: careful = 1").arg(line));
    }

    void wholeRecordsGoThroughWithTheirLevelAndPlace()
    {
        const int line = __LINE__ + 1;
        CLogManger::instance()->printLog(CustomLog::Info, LOG_LOCATION, "told");
        QCOMPARE(nextLine(), QStringLiteral("[INFO][tst_CLogManger.cpp:%1]: told").arg(line));
        CLogManger::instance()->printLog(CustomLog::Error, "place", "failed");
        QCOMPARE(nextLine(), QStringLiteral("[ERROR][place]: failed"));
    }

    void itemsAreWrittenAsATextStreamWritesThem()
    {
        LOG_DEBUG << 7 << ',' << -1LL << ',' << 2.5 << ',' << true << false << ',' << QStringLiteral("会议") << ','
                  << QByteArray("语音") << ',' << quint64(18446744073709551615U) << "\n";
        QVERIFY(nextLine().endsWith(QStringLiteral("]: 7,-1,2.5,10,会议,语音,18446744073709551615")));
    }

    void numbersFollowTheSettingsOfTheStream()
    {
        CLogManger manger;
        manger.m_pTextStream->setNumberFlags(QTextStream::ForceSign);
        manger << 7;
        manger.m_pTextStream->setNumberFlags({});
        manger.m_pTextStream->setIntegerBase(16);
        manger << ',' << 255;
        QCOMPARE(manger.m_strMessage, QStringLiteral("+7,ff"));
    }

    void numbersFollowTheLocaleAndTheFieldOfTheStream()
    {
        CLogManger manger;
        manger.m_pTextStream->setLocale(QLocale(QLocale::German));
        manger << 12345;
        manger.m_pTextStream->setLocale(QLocale::c());
        manger.m_pTextStream->setFieldAlignment(QTextStream::AlignAccountingStyle);
        manger.m_pTextStream->setFieldWidth(5);
        manger << -42;
        QCOMPARE(manger.m_strMessage, QStringLiteral("12.345-  42"));
    }

    void textItemsAreUtf8()
    {
        LOG_DEBUG << "呼叫中 " << u8"对方正忙" << "\n";
        QVERIFY(nextLine().endsWith(QStringLiteral("]: 呼叫中 对方正忙")));
    }

    void onlyTheExactLineFeedEndsARecord()
    {
        Host host("exact.log");
        CLogManger manger;
        manger.startRecord(CustomLog::Debug, "place") << "ends in a line feed\n"
                                                      << ""
                                                      << "\n\n"
                                                      << "still one";
        QCOMPARE(manger.m_strMessage, QStringLiteral("ends in a line feed\n\n\nstill one"));
        manger << "\n";
        QCOMPARE(manger.m_strMessage, QString());
        QCOMPARE(host.lines(4), (QStringList{"[DEBUG][place]: ends in a line feed", "still one"}));
    }

    void lineFeedsOfOtherTypesDoNotEndARecord()
    {
        Host host("types.log");
        CLogManger manger;
        manger << QStringLiteral("\n") << QByteArray("\n") << '\n' << QLatin1String("\n") << QChar('\n');
        QCOMPARE(manger.m_strMessage, QStringLiteral("\n\n\n\n\n"));
    }

    void lineFeedInABufferEndsARecord()
    {
        Host host("buffer.log");
        CLogManger manger;
        char end[] = "\n";
        char *pEnd = end;
        manger << "语" << end;
        QCOMPARE(manger.m_strMessage, QString());
        manger << "音" << pEnd;
        QCOMPARE(manger.m_strMessage, QString());
        QCOMPARE(host.lines(2), (QStringList{"[][]: 语", "[][]: 音"}));
    }

    void nullTextCountsAsEmpty()
    {
        Host host("null.log");
        CLogManger manger;
        manger << "a" << static_cast<const char *>(nullptr) << static_cast<char *>(nullptr) << "b"
               << "\n";
        QCOMPARE(host.lines(1), QStringList{"[][]: ab"});
    }

    void levelAndLocationStayForTheNextRecord()
    {
        Host host("stay.log");
        CLogManger manger;
        manger.startRecord(CustomLog::Warn, "place") << "one"
                                                     << "\n"
                                                     << "two"
                                                     << "\n";
        QCOMPARE(host.lines(2), (QStringList{"[WARN][place]: one", "[WARN][place]: two"}));
    }

    void everyItemReturnsTheManger()
    {
        CLogManger manger;
        QCOMPARE(&(manger << "text"), &manger);
        QCOMPARE(&(manger << 1), &manger);
        QCOMPARE(&(manger << QStringLiteral("text")), &manger);
        QCOMPARE(&(manger << "\n"), &manger);
    }

    void streamAndBufferArePublic()
    {
        CLogManger manger;
        *manger.m_pTextStream << "direct " << 1;
        QCOMPARE(manger.m_strMessage, QStringLiteral("direct 1"));
    }

    void withoutAContextRecordsAreDropped()
    {
        CLogManger manger;
        QCOMPARE(manger.getLogger(), nullptr);
        manger << "text"
               << "\n";
        QCOMPARE(manger.m_strMessage, QString());
        manger.printLog(CustomLog::Info, "place", "text");
        manger.flushLog();
        manger.clearLog();
    }

    void withoutAThreadRecordsAreDropped()
    {
        Host host("threadless.log");
        host.context.setCustomLogThread(nullptr);
        CLogManger manger;
        QCOMPARE(manger.getLogger(), &host.logger);
        manger << "text"
               << "\n";
        QCOMPARE(manger.m_strMessage, QString());
        manger.flushLog();
        QCOMPARE(readBytes("threadless.log"), QByteArray());
    }

    void withoutALoggerTheThreadLosesRecords()
    {
        Host host("loggerless.log");
        host.thread.setCustomLogger(&host.logger);
        host.context.setCustomLogger(nullptr);
        CLogManger manger;
        QCOMPARE(manger.getLogger(), nullptr);
        QCOMPARE(host.thread.getCustomLogger(), nullptr);
        manger << "text"
               << "\n";
        QCOMPARE(manger.m_strMessage, QString());
    }

    void loggerSetLaterIsNotSeen()
    {
        Host host("late.log");
        host.context.setCustomLogger(nullptr);
        host.context.setCustomLogThread(nullptr);
        CLogManger manger;
        host.context.setCustomLogger(&host.logger);
        host.context.setCustomLogThread(&host.thread);
        manger << "dropped"
               << "\n";
        QCOMPARE(manger.getLogger(), nullptr);
        QCOMPARE(host.thread.getCustomLogger(), nullptr);
        CLogManger second;
        second << "seen"
               << "\n";
        QCOMPARE(host.lines(1), QStringList{"[][]: seen"});
    }

    void flushWritesOutAndClearEmpties()
    {
        Host host("flush.log");
        CLogManger manger;
        host.logger.printLog(CustomLog::Info, "place", "text");
        QCOMPARE(readBytes("flush.log"), QByteArray());
        manger.flushLog();
        QVERIFY(readBytes("flush.log").endsWith("[INFO][place]: text\n"));
        manger.clearLog();
        QCOMPARE(readBytes("flush.log"), QByteArray());
        QVERIFY(QFile::exists("flush.log"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CLogManger, Guiless)
#include "tst_CLogManger.moc"
