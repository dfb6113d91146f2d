#include "client/ContactBook.h"
#include "happenings/HappeningsFeed.h"
#include "session/HostSession.h"

#include "fakes/Patience.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

/// The feed beside a session whose plug-in is not loaded: its events are delivered by hand, the trace is written here.
class tst_HappeningsFeed : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(QStringLiteral("wire.txt"));
        m_pSession = std::make_unique<HostSession>(m_book);
        m_pModel = std::make_unique<HappeningsModel>();
        m_pFeed = std::make_unique<HappeningsFeed>(*m_pSession, QStringLiteral("wire.txt"), *m_pModel);
    }

    void cleanup()
    {
        m_pFeed.reset();
        m_pModel.reset();
        m_pSession.reset();
    }

    void eventOfThePlugInIsSaid()
    {
        deliver(MSG_RECEVIE_VOIP_CALL, sessionPluginId(), packPayload(QStringLiteral("30010007"), false, true));
        QCOMPARE(m_pModel->rowCount(), 0);
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 1);
        const Happening &row = m_pModel->at(0);
        QCOMPARE(row.kind, Happening::Event);
        QCOMPARE(row.way, Happening::PluginToClient);
        QCOMPARE(row.words, QStringLiteral("the plug-in reports that 30010007 calls, with picture (4639)"));
        QCOMPARE(row.raw, QStringLiteral("4639 incoming call: user=30010007, conference=no, video=yes"));
        QVERIFY(qAbs(row.time - QDateTime::currentMSecsSinceEpoch()) < 60000);
    }

    void questionIsSaidWithItsAnswer()
    {
        deliver(MSG_IS_EXIST_FRIEND, contactPluginId(), packPayload(QStringLiteral("30010001@example.org")));
        m_pFeed->look();
        QCOMPARE(m_pModel->at(0).words,
                 QStringLiteral("the plug-in asks whether 30010001@example.org is a contact: yes (4337)"));
        QCOMPARE(m_pModel->at(0).raw, QStringLiteral("4337 is a contact: jid=30010001@example.org => known=yes"));
    }

    void unknownEventIsAnError()
    {
        deliver(EMsgId(17), sessionPluginId(), QByteArray("xyz"));
        m_pFeed->look();
        QCOMPARE(m_pModel->at(0).kind, Happening::Error);
        QCOMPARE(m_pModel->at(0).words,
                 QStringLiteral("a command that is not in the contract, with 3 bytes of payload (17)"));
    }

    void linesOfTheTraceAreSaid()
    {
        append("1 = connected\n2 < {\"messagetype\":\"HangUpCall\"}\n3 > {\"content\":\"\",\"resultCode\":8}\n");
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 3);
        QCOMPARE(m_pModel->at(0).way, Happening::InProcess);
        QCOMPARE(m_pModel->at(1).way, Happening::PluginToProcess);
        QCOMPARE(m_pModel->at(1).words, QStringLiteral("the plug-in hangs up"));
        QCOMPARE(m_pModel->at(1).raw, QStringLiteral("{\"messagetype\":\"HangUpCall\"}"));
        QCOMPARE(m_pModel->at(2).way, Happening::ProcessToPlugin);
        QCOMPARE(m_pModel->at(2).words, QStringLiteral("call process: the far end has hung up (8)"));
        QCOMPARE(m_pModel->at(2).kind, Happening::Wire);
    }

    void complaintIsAnError()
    {
        append("1 ! odd <b>line</b>\n");
        m_pFeed->look();
        QCOMPARE(m_pModel->at(0).kind, Happening::Error);
        QCOMPARE(m_pModel->at(0).words, QStringLiteral("call process complains: odd <b>line</b>"));
    }

    void severalLinesOfOneWriteAreSeveralRows()
    {
        append(QStringLiteral("1 > {\"resultCode\":18}␊{\"resultCode\":8}␊{\"resu…\n").toUtf8());
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 3);
        QCOMPARE(m_pModel->at(0).words, QStringLiteral("call process: the far end has answered (18)"));
        QCOMPARE(m_pModel->at(1).words, QStringLiteral("call process: the far end has hung up (8)"));
        QCOMPARE(m_pModel->at(2).kind, Happening::Error);
    }

    void registrationValueIsMaskedFromThenOn()
    {
        append("1 < "
               "{\"messagetype\":\"RegeditUser\",\"param1\":\"30010000\",\"param2\":\"Li\",\"param3\":\"s3cr3t-value\","
               "\"param4\":false}\n2 > {\"content\":\"registered by s3cr3t-value\",\"resultCode\":999}\n"
               "3 = knows s3cr3t-value\n");
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 3);
        for (int row = 0; row < 3; ++row) {
            const QString line = m_pModel->line(row);
            QVERIFY2(!line.contains(QStringLiteral("s3cr3t")), qPrintable(line));
            QVERIFY2(line.contains(QStringLiteral("••••••")), qPrintable(line));
        }
    }

    void hugeLineIsShortened()
    {
        append("1 > {\"content\":\"" + QByteArray(1024 * 1024, 'x') + "\",\"resultCode\":999}\n2 = after\n");
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 2);
        const Happening &row = m_pModel->at(0);
        QCOMPARE(row.kind, Happening::Error);
        QVERIFY(row.words.size() < 300);
        QVERIFY(row.raw.size() < HappeningsModel::cLongestRaw + 40);
        QVERIFY2(row.raw.endsWith(QStringLiteral("… (1048611 in all)")), qPrintable(row.raw.right(40)));
        QCOMPARE(m_pModel->at(1).words, QStringLiteral("call process notes: after"));
    }

    void binaryLineIsShownAsText()
    {
        append(QByteArray("1 < \x00\x1b[31m\xff\xfe\n", 13));
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 1);
        QCOMPARE(m_pModel->at(0).kind, Happening::Error);
        QCOMPARE(m_pModel->at(0).raw, QStringLiteral("\\u0000\\u001b[31m\uFFFD\uFFFD"));
    }

    void manyLinesAreOneStep()
    {
        QByteArray lines;
        for (int i = 0; i < 3000; ++i) {
            lines += QByteArray::number(i) + " > {\"content\":\"x\",\"resultCode\":999}\n";
        }
        append(lines);
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        const QSignalSpy inserted(m_pModel.get(), &QAbstractItemModel::rowsInserted);
        m_pFeed->look();
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(m_pModel->rowCount(), 3001);
    }

    void rowsComeInOrderOfTime()
    {
        // Two seconds pass between these lines, the event comes after both and is noted before they are read.
        append("1000 = early\n3000 = late\n");
        QFile file(QStringLiteral("wire.txt"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime written = QDateTime::currentDateTime().addSecs(-1);
        QVERIFY(file.setFileTime(written, QFileDevice::FileModificationTime));
        file.close();
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 3);
        QCOMPARE(m_pModel->at(1).time, written.toMSecsSinceEpoch());
        QCOMPARE(m_pModel->at(0).time, written.toMSecsSinceEpoch() - 2000);
        QCOMPARE(m_pModel->at(2).kind, Happening::Event);
    }

    void pauseLetsRowsWait()
    {
        m_pFeed->setPaused(true);
        append("1 = one\n");
        const QSignalSpy taken(m_pFeed.get(), &HappeningsFeed::taken);
        m_pFeed->look();
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        m_pFeed->look();
        m_pFeed->look();
        QCOMPARE(m_pModel->rowCount(), 0);
        QCOMPARE(m_pFeed->waiting(), 2);
        QCOMPARE(taken.count(), 2);
        m_pFeed->setPaused(false);
        QCOMPARE(m_pModel->rowCount(), 2);
        QCOMPARE(m_pFeed->waiting(), 0);
    }

    void longPauseDropsTheOldest()
    {
        m_pFeed->setPaused(true);
        QByteArray lines;
        for (int i = 0; i < HappeningsModel::cCapacity + 5; ++i) {
            lines += QByteArray::number(i) + " = n" + QByteArray::number(i) + "\n";
        }
        append(lines);
        m_pFeed->look();
        QCOMPARE(m_pFeed->waiting(), int(HappeningsModel::cCapacity));
        m_pFeed->setPaused(false);
        QCOMPARE(m_pModel->dropped(), 5);
        QCOMPARE(m_pModel->at(0).raw, QStringLiteral("n5"));
    }

    void clearForgetsWhatWaits()
    {
        m_pFeed->setPaused(true);
        append("1 = one\n");
        m_pFeed->look();
        m_pFeed->clear();
        m_pFeed->setPaused(false);
        QCOMPARE(m_pModel->rowCount(), 0);
    }

    void withoutATraceOnlyEventsCome()
    {
        append("1 = one\n");
        HappeningsModel model;
        HappeningsFeed feed(*m_pSession, QString(), model);
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        feed.look();
        QCOMPARE(model.rowCount(), 1);
    }

    void timerLooksByItself()
    {
        append("1 = one\n");
        QTRY_COMPARE_WITH_TIMEOUT(m_pModel->rowCount(), 1, cPatienceMs);
    }

private:
    void deliver(EMsgId msgId, const QString &receiver, const QByteArray &payload)
    {
        BaseEvent event(msgId, voipPluginId(), receiver, false, payload);
        QCoreApplication::sendEvent(&m_pSession->mailbox(), &event);
    }
    static void append(const QByteArray &bytes)
    {
        QFile file(QStringLiteral("wire.txt"));
        QVERIFY(file.open(QIODevice::Append));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<HappeningsModel> m_pModel;
    std::unique_ptr<HappeningsFeed> m_pFeed;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HappeningsFeed, Guiless)
#include "tst_HappeningsFeed.moc"
