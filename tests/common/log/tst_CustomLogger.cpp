#include "common/CustomLogger.h"
#include "common/log/ClientLogFile.h"
#include "common/system/OwnProcess.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <functional>
#include <memory>
#include <sys/resource.h>

namespace {

QStringList messagesOf(QtMsgType wanted, const std::function<void()> &action)
{
    static QStringList texts;
    static QtMsgType type;
    texts.clear();
    type = wanted;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType kind, const QMessageLogContext & /*context*/, const QString &text) {
            if (kind == type) {
                texts.append(text);
            }
        });
    action();
    qInstallMessageHandler(before);
    return texts;
}

/// The log file at the time of a line of the debug channel.
struct FileState
{
    bool exists = false;
    bool open = false;
};

bool isOpen(const QString &name)
{
    const QString path = QDir().canonicalPath() + '/' + name;
    const QFileInfoList descriptors = QDir("/proc/self/fd").entryInfoList(QDir::AllEntries | QDir::System);
    return std::any_of(descriptors.begin(), descriptors.end(),
                       [&path](const QFileInfo &descriptor) { return descriptor.symLinkTarget() == path; });
}

QVector<FileState> filesAtTheLinesOf(const std::function<void()> &action)
{
    static QVector<FileState> states;
    states.clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType /*kind*/, const QMessageLogContext & /*context*/, const QString & /*text*/) {
            states.append({QFile::exists(cLog), isOpen(cLog)});
        });
    action();
    qInstallMessageHandler(before);
    return states;
}

using Work = std::function<void(CustomLogger &)>;

} // namespace

Q_DECLARE_METATYPE(Work)

class tst_CustomLogger : public QObject
{
    Q_OBJECT

private slots:
    void init() { removeFiles(); }

    void lifeIsTracedOnTheDebugChannel()
    {
        const QStringList texts = messagesOf(QtDebugMsg, [] { CustomLogger logger(cLog); });
        QCOMPARE(texts,
                 (QStringList{QStringLiteral("日志对象构造----------------------------CustomLogger::CustomLogger()."),
                              QStringLiteral("日志对象析构---------------------CustomLogger::~CustomLogger().")}));
    }

    void lifeIsTracedBeforeTheFileIsOpenedAndAfterItIsClosed()
    {
        bool openBetween = false;
        const QVector<FileState> seen = filesAtTheLinesOf([&openBetween] {
            CustomLogger logger(cLog);
            openBetween = isOpen(cLog);
        });
        QCOMPARE(seen.size(), 2);
        QVERIFY(!seen.at(0).exists && !seen.at(0).open);
        QVERIFY(openBetween);
        QVERIFY(seen.at(1).exists && !seen.at(1).open);
    }

    void lineHasTimeLevelLocationAndMessage()
    {
        CustomLogger logger(cLog);
        const QDateTime before = QDateTime::currentDateTime();
        logger.printLog(CustomLog::Debug, "VoipWidget.cpp:835", "setmic bMute = 1");
        const QDateTime after = QDateTime::currentDateTime();
        logger.flush();
        const QRegularExpressionMatch line =
            QRegularExpression("^\\[(\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3})\\]\\[DEBUG\\]"
                               "\\[VoipWidget\\.cpp:835\\]: setmic bMute = 1\n$")
                .match(QString::fromUtf8(readBytes(cLog)));
        QVERIFY(line.hasMatch());
        const QDateTime written = QDateTime::fromString(line.captured(1), "yyyy-MM-dd hh:mm:ss.zzz");
        QVERIFY(written >= before);
        QVERIFY(written <= after);
    }

    void timeHasAsciiDigitsUnderEveryLocale()
    {
        if (!inOwnProcess()) {
            QCOMPARE(failureInOwnProcess({"LC_ALL=fa_IR.UTF-8"}), QByteArray());
            return;
        }
        QCOMPARE(QLocale::system().language(), QLocale::Persian);
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Debug, {}, {});
        logger.flush();
        const QRegularExpression line("^\\[[0-9]{4}(-[0-9]{2}){2} [0-9]{2}(:[0-9]{2}){2}\\.[0-9]{3}\\]");
        QVERIFY(line.match(QString::fromUtf8(readBytes(cLog))).hasMatch());
    }

    void levelTexts_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("text");
        QTest::newRow("0") << 0 << "";
        QTest::newRow("1") << 1 << "TRACE";
        QTest::newRow("2") << 2 << "DEBUG";
        QTest::newRow("3") << 3 << "INFO";
        QTest::newRow("4") << 4 << "WARN";
        QTest::newRow("5") << 5 << "ERROR";
        QTest::newRow("6") << 6 << "FATAL";
        QTest::newRow("7") << 7 << "";
        QTest::newRow("99") << 99 << "";
    }
    void levelTexts()
    {
        QFETCH(int, level);
        QFETCH(QString, text);
        const auto value = static_cast<CustomLog::LogLevel>(level);
        QCOMPARE(CustomLogger::getLevelString(value), text);

        CustomLogger logger(cLog);
        QVERIFY(logger.isLevelEnabled(value));
        logger.printLog(value, "place", "text");
        logger.flush();
        QVERIFY(readBytes(cLog).endsWith("][" + text.toLatin1() + "][place]: text\n"));
    }

    void levelBelowTheThresholdIsNotWritten()
    {
        CustomLogger logger(cLog);
        const auto below = static_cast<CustomLog::LogLevel>(-1);
        QVERIFY(!logger.isLevelEnabled(below));
        logger.printLog(below, "place", "text");
        logger.flush();
        QCOMPARE(readBytes(cLog), QByteArray());
    }

    void textIsUtf8()
    {
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", QStringLiteral("呼叫中"));
        logger.flush();
        QVERIFY(readBytes(cLog).startsWith('['));
        QVERIFY(readBytes(cLog).endsWith(": 呼叫中\n"));
    }

    void lineFeedInAMessageMakesASecondLineWithoutPrefix()
    {
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", "one\ntwo");
        logger.flush();
        QCOMPARE(lines().size(), 2);
        QVERIFY(lines().at(0).endsWith("[INFO][place]: one"));
        QCOMPARE(lines().at(1), QByteArray("two"));
    }

    void linesReachTheDiskAtAFlushOnly()
    {
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", "text");
        QCOMPARE(readBytes(cLog), QByteArray());
        logger.flush();
        QCOMPARE(lines().size(), 1);
    }

    void newTextBeginsOnTheLastByteOfTheOld()
    {
        QVERIFY(writeFile(cLog, "the last line of an earlier run\n"));
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", "text");
        logger.flush();
        QCOMPARE(lines().size(), 1);
        QVERIFY(readBytes(cLog).startsWith("the last line of an earlier run["));
    }

    void lastByteIsOverwrittenWhateverItIs()
    {
        QVERIFY(writeFile(cLog, "x"));
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", "text");
        logger.flush();
        QVERIFY(readBytes(cLog).startsWith('['));
    }

    void textBeginsAtTheStartOfAnEmptyFileWithoutAWarning()
    {
        const QStringList warnings = messagesOf(QtWarningMsg, [] {
            CustomLogger logger(cLog);
            logger.printLog(CustomLog::Info, "place", "text");
            logger.flush();
        });
        QCOMPARE(warnings, QStringList());
        QVERIFY(readBytes(cLog).startsWith('['));
    }

    void fileThatCannotBeOpenedMakesTheLoggerSilent()
    {
        const QString path = QStringLiteral("missing/client.log");
        const QStringList warnings = messagesOf(QtWarningMsg, [&path] {
            CustomLogger logger(path);
            logger.printLog(CustomLog::Fatal, "place", "text");
            logger.flush();
            logger.close();
            QCOMPARE(QDir().exists(path), false);
        });
        QCOMPARE(warnings, QStringList());
    }

    void anUnopenedFileIsTriedAgain_data()
    {
        QTest::addColumn<Work>("tryAgain");
        QTest::newRow("reopen") << Work([](CustomLogger &logger) { logger.reopen(); });
        QTest::newRow("roll-over") << Work([](CustomLogger &logger) { logger.rollOver(); });
        QTest::newRow("clear") << Work([](CustomLogger &logger) { logger.clear(); });
    }

    void anUnopenedFileIsTriedAgain()
    {
        QFETCH(Work, tryAgain);
        const QString folder = QTest::currentDataTag();
        CustomLogger logger(folder + "/client.log");
        QVERIFY(QDir().mkdir(folder));
        logger.printLog(CustomLog::Info, "place", "early");
        QCOMPARE(QFile::exists(folder + "/client.log"), false);
        tryAgain(logger);
        logger.printLog(CustomLog::Info, "place", "late");
        logger.flush();
        QCOMPARE(readBytes(folder + "/client.log").count('\n'), 1);
    }

    void closedLoggerDropsLinesUntilItIsReopened()
    {
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", "one");
        logger.close();
        QCOMPARE(lines().size(), 1);
        logger.printLog(CustomLog::Info, "place", "lost");
        logger.flush();
        logger.close();
        logger.reopen();
        logger.printLog(CustomLog::Info, "place", "two");
        logger.flush();
        QCOMPARE(lines().size(), 1);
        QVERIFY(readBytes(cLog).contains(": one["));
        QVERIFY(!readBytes(cLog).contains("lost"));
        QVERIFY(readBytes(cLog).endsWith(": two\n"));
    }

    void reopeningAnOpenLogLosesNothing()
    {
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", "one");
        logger.reopen();
        logger.printLog(CustomLog::Info, "place", "two");
        logger.flush();
        QVERIFY(readBytes(cLog).contains(": one["));
        QVERIFY(readBytes(cLog).endsWith(": two\n"));
    }

    void clearEmptiesTheLogAndKeepsBackups()
    {
        QVERIFY(writeFile(backup(1), "old"));
        CustomLogger logger(cLog);
        logger.printLog(CustomLog::Info, "place", "one");
        logger.clear();
        QCOMPARE(readBytes(cLog), QByteArray());
        logger.printLog(CustomLog::Info, "place", "two");
        logger.flush();
        QCOMPARE(lines().size(), 1);
        QVERIFY(readBytes(cLog).endsWith(": two\n"));
        QCOMPARE(readBytes(backup(1)), QByteArray("old"));
    }

    void unflushedTextDiesWithTheLogger()
    {
        const QStringList warnings = messagesOf(QtWarningMsg, [] {
            CustomLogger logger(cLog);
            logger.printLog(CustomLog::Info, "place", "kept");
            logger.flush();
            logger.printLog(CustomLog::Info, "place", "lost");
        });
        QCOMPARE(warnings, QStringList());
        QVERIFY(readBytes(cLog).endsWith(": kept\n"));
    }

    void fileNameComesWithoutItsFolders()
    {
        QCOMPARE(CustomLogger("/no/such/folder/client.log").getLogFileName(), QStringLiteral("client.log"));
        QCOMPARE(CustomLogger(cLog).getLogFileName(), cLog);
    }

    void flushesFromAnotherThreadLoseNothing()
    {
        CustomLogger logger(cLog);
        std::atomic<bool> done{false};
        const std::unique_ptr<QThread> writer(QThread::create([&logger, &done] {
            for (int i = 0; i < 3000; ++i) {
                logger.printLog(CustomLog::Info, "place", QString::number(i));
            }
            done = true;
        }));
        writer->start();
        while (!done) {
            logger.flush();
        }
        QVERIFY(writer->wait());
        logger.close();
        const QList<QByteArray> all = lines();
        QCOMPARE(all.size(), 3000);
        for (int i = 0; i < 3000; ++i) {
            QVERIFY(all.at(i).endsWith("]: " + QByteArray::number(i)));
        }
    }

    void writingResumesWhenAFullDiskHasRoomAgain()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        CustomLogger logger(cLog);
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        rlimit full = before;
        full.rlim_cur = 1000;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
        for (int i = 0; i < 100; ++i) {
            logger.printLog(CustomLog::Info, "place", QString(1000, 'x'));
        }
        logger.flush();
        const qint64 size = QFileInfo(cLog).size();
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QCOMPARE(size, qint64(1000));
        logger.printLog(CustomLog::Info, "place", "room again");
        logger.flush();
        QVERIFY(readBytes(cLog).endsWith(": room again\n"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CustomLogger, Guiless)
#include "tst_CustomLogger.moc"
