#include "fakes/FakeHost.h"
#include "fakes/FreedBlocks.h"
#include "fakes/LogCapture.h"
#include "plugin/HostCommands.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <iterator>
#include <memory>

namespace {

QStringList *calls = nullptr;
QStringList debugLines;

void callSingleUser(BaseEvent &event)
{
    calls->append(QStringLiteral("callSingleUser ") + QString::fromLatin1(event.data));
}

void isExistCall(BaseEvent &event)
{
    calls->append(QStringLiteral("isExistCall"));
    event.data = packPayload(true);
}

constexpr HostCommand cKnownCommands[] = {
    {MSG_CALL_SINGLE_USER, callSingleUser},
    {MSG_IS_EXIST_CALL, isExistCall},
};

void keepDebugLine(QtMsgType, const QMessageLogContext &, const QString &text)
{
    debugLines.append(text);
}

// Notes each event of the host system that an object is about to receive.
class SeenEvents : public QObject
{
public:
    QList<QEvent *> events;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::User) {
            events.append(event);
        }
        return false;
    }
};

// The host's catalogue, as far as the mailbox reads it.
class Catalogue : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *key, const char *, int) const override
    {
        return qstrcmp(key, "enternothandle") == 0 ? QStringLiteral("没有处理 \"it\"") : QString();
    }
};

} // namespace

class tst_VoipManageMessageProcess : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        setHostCommands(cKnownCommands, static_cast<int>(std::size(cKnownCommands)));
        m_calls.clear();
        calls = &m_calls;
        debugLines.clear();
        m_log.take();
        qInstallMessageHandler(keepDebugLine);
    }

    void cleanup()
    {
        qInstallMessageHandler(nullptr);
        mailbox()->setSendEvent(nullptr);
    }

    void instanceIsOneObjectWithoutParent()
    {
        QCOMPARE(VoipManageMessageProcess::instance(), mailbox());
        QVERIFY(mailbox()->parent() == nullptr);
    }

    void windowHandleIsZeroForAnyArgument()
    {
        QWidget window;
        QCOMPARE(mailbox()->getWindowHandle(nullptr), qint64(0));
        QCOMPARE(mailbox()->getWindowHandle(&window), qint64(0));
    }

    void nullEventIsLoggedAtWarnLevel()
    {
        mailbox()->customEvent(nullptr);
        const QStringList lines = m_log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().startsWith(QStringLiteral("[WARN][VoipManageMessageProcess.cpp:")),
                 qPrintable(lines[0]));
        QVERIFY2(lines.first().endsWith(QStringLiteral("]: temp is null")), qPrintable(lines[0]));
    }

    void eventForAnyoneIsHandledLikeOneForThisPlugin_data()
    {
        QTest::addColumn<QString>("receiver");
        QTest::newRow("this plug-in") << voipPluginId();
        QTest::newRow("empty") << QStringLiteral("");
        QTest::newRow("null") << QString();
    }

    void eventForAnyoneIsHandledLikeOneForThisPlugin()
    {
        QFETCH(QString, receiver);
        BaseEvent event(MSG_CALL_SINGLE_USER, sessionPluginId(), receiver, false, "payload");
        deliver(event);
        QCOMPARE(m_calls, QStringList(QStringLiteral("callSingleUser payload")));
        QVERIFY(debugLines.isEmpty());
    }

    void eventForAnotherPluginDoesNothingAndLogsNothing_data()
    {
        QTest::addColumn<QString>("receiver");
        QTest::addColumn<int>("msgId");
        QTest::newRow("known command") << contactPluginId() << int(MSG_CALL_SINGLE_USER);
        QTest::newRow("known query") << contactPluginId() << int(MSG_IS_EXIST_CALL);
        QTest::newRow("unknown command") << contactPluginId() << 1;
        QTest::newRow("own id in lower case") << voipPluginId().toLower() << int(MSG_CALL_SINGLE_USER);
        QTest::newRow("own id without braces") << voipPluginId().mid(1, 36) << int(MSG_CALL_SINGLE_USER);
        QTest::newRow("own id and a blank") << voipPluginId() + QLatin1Char(' ') << int(MSG_CALL_SINGLE_USER);
    }

    void eventForAnotherPluginDoesNothingAndLogsNothing()
    {
        QFETCH(QString, receiver);
        QFETCH(int, msgId);
        BaseEvent event(static_cast<EMsgId>(msgId), voipPluginId(), receiver, false, "payload");
        deliver(event);
        QVERIFY(m_calls.isEmpty());
        QVERIFY(debugLines.isEmpty());
        QCOMPARE(m_log.take(), QStringList());
        QCOMPARE(event.data, QByteArray("payload"));
    }

    void eventsReachTheMailboxSentOrPosted()
    {
        BaseEvent sent(MSG_CALL_SINGLE_USER, QString(), QString(), false, "sent");
        QCoreApplication::sendEvent(mailbox(), &sent);
        QCoreApplication::postEvent(mailbox(),
                                    new BaseEvent(MSG_CALL_SINGLE_USER, QString(), QString(), true, "posted"));
        QCOMPARE(m_calls, QStringList(QStringLiteral("callSingleUser sent")));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(m_calls.value(1), QStringLiteral("callSingleUser posted"));
    }

    void unknownCommandWritesOneDebugLine_data()
    {
        QTest::addColumn<int>("msgId");
        QTest::addColumn<QString>("line");
        QTest::newRow("no command") << 0 << "0 enternothandle";
        QTest::newRow("unknown") << 99999 << "99999 enternothandle";
        QTest::newRow("negative") << -5 << "-5 enternothandle";
        QTest::newRow("own request") << int(MSG_GET_FRIEND_INFO) << "4157 enternothandle";
    }

    void unknownCommandWritesOneDebugLine()
    {
        QFETCH(int, msgId);
        QFETCH(QString, line);
        BaseEvent event(static_cast<EMsgId>(msgId), QString(), voipPluginId(), false);
        deliver(event);
        QCOMPARE(debugLines, QStringList(line));
        QVERIFY(m_calls.isEmpty());
        QCOMPARE(m_log.take(), QStringList());
    }

    void unknownCommandNamesItselfInTheHostsLanguage()
    {
        Catalogue catalogue;
        QCoreApplication::installTranslator(&catalogue);
        BaseEvent event(static_cast<EMsgId>(17), QString(), QString(), false);
        deliver(event);
        QCoreApplication::removeTranslator(&catalogue);
        QCOMPARE(debugLines, QStringList(QStringLiteral("17 没有处理 \"it\"")));
    }

    void unknownCommandKeepsItsPayload()
    {
        BaseEvent event(static_cast<EMsgId>(17), QString(), QString(), false, "payload");
        deliver(event);
        QCOMPARE(event.data, QByteArray("payload"));
    }

    void queryIsAnsweredInItsPayload()
    {
        BaseEvent event(MSG_IS_EXIST_CALL, QString(), voipPluginId(), false, "whatever it held before");
        deliver(event);
        QCOMPARE(event.data, QByteArray(1, '\1'));
    }

    void flagAndSenderAreNotRead()
    {
        BaseEvent event(MSG_CALL_SINGLE_USER, voipPluginId(), voipPluginId(), true, "payload");
        event.bFlag = false;
        deliver(event);
        QCOMPARE(m_calls.size(), 1);
    }

    void synchronousCommandIsHandledOnReturnAndStaysTheCallers()
    {
        FakeHost host;
        mailbox()->setSendEvent(&host);
        void *block = FreedBlocks::watched();
        auto event =
            std::make_unique<BaseEvent>(MSG_IS_EXIST_FRIEND, QString(), QString(), false, packPayload(QString()));
        event->extraList << block;
        mailbox()->sendCommand(event.get());
        QCOMPARE(host.events.size(), 1);
        QCOMPARE(event->data, packPayload(false));
        QCoreApplication::processEvents();
        QVERIFY(!FreedBlocks::isFreed(block));
        event.reset();
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void synchronousCommandPassesTheFiltersOfTheHandle()
    {
        FakeHost host;
        SeenEvents filter;
        host.installEventFilter(&filter);
        mailbox()->setSendEvent(&host);
        BaseEvent event(MSG_CLOSE_SIGN_LIST, QString(), QString(), false);
        mailbox()->sendCommand(&event);
        QCOMPARE(filter.events, QList<QEvent *>{&event});
        QCOMPARE(host.commands(), QList<int>{4540});
    }

    void queuedCommandIsPostedAndFreedByQt()
    {
        FakeHost host;
        mailbox()->setSendEvent(&host);
        void *block = FreedBlocks::watched();
        auto *event = new BaseEvent(MSG_GET_STRANGER_SMALL_VCARD, QString(), QString(), true);
        event->extraList << block;
        mailbox()->sendCommand(event);
        QVERIFY(host.events.isEmpty());
        QVERIFY(!FreedBlocks::isFreed(block));
        QCoreApplication::sendPostedEvents(&host);
        QCOMPARE(host.events.size(), 1);
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void queuedCommandKeepsItsPlaceAmongPostedEvents()
    {
        FakeHost host;
        mailbox()->setSendEvent(&host);
        const auto posted = [](int msgId) { return new BaseEvent(static_cast<EMsgId>(msgId), {}, {}, true); };
        QCoreApplication::postEvent(&host, posted(1));
        mailbox()->sendCommand(posted(MSG_GET_STRANGER_SMALL_VCARD));
        QCoreApplication::postEvent(&host, posted(2));
        QCoreApplication::sendPostedEvents(&host);
        QCOMPARE(host.commands(), (QList<int>{1, 4159, 2}));
    }

    void withoutHandleQueuedCommandIsFreed()
    {
        void *block = FreedBlocks::watched();
        auto *event = new BaseEvent(MSG_GET_STRANGER_SMALL_VCARD, QString(), QString(), true);
        event->extraList << block;
        mailbox()->sendCommand(event);
        QVERIFY(FreedBlocks::isFreed(block));
        QVERIFY(debugLines.isEmpty());
    }

    void withoutHandleSynchronousCommandComesBackUntouched()
    {
        BaseEvent event(MSG_IS_EXIST_FRIEND, QString(), QString(), false, "payload");
        mailbox()->sendCommand(&event);
        QCOMPARE(event.data, QByteArray("payload"));
        QVERIFY(debugLines.isEmpty());
    }

    void handleThatDiedCountsAsNone()
    {
        auto host = std::make_unique<FakeHost>();
        mailbox()->setSendEvent(host.get());
        host.reset();
        BaseEvent event(MSG_IS_EXIST_FRIEND, QString(), QString(), false, "payload");
        mailbox()->sendCommand(&event);
        QCOMPARE(event.data, QByteArray("payload"));
        void *block = FreedBlocks::watched();
        auto *queued = new BaseEvent(MSG_GET_STRANGER_SMALL_VCARD, QString(), QString(), true);
        queued->extraList << block;
        mailbox()->sendCommand(queued);
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void handleThatDiesWhileCommandsWaitDropsThem()
    {
        auto host = std::make_unique<FakeHost>();
        mailbox()->setSendEvent(host.get());
        void *block = FreedBlocks::watched();
        auto *queued = new BaseEvent(MSG_GET_STRANGER_SMALL_VCARD, QString(), QString(), true);
        queued->extraList << block;
        mailbox()->sendCommand(queued);
        host.reset();
        QCoreApplication::sendPostedEvents();
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void laterHandleTakesThePlaceOfTheFormer()
    {
        FakeHost former;
        FakeHost later;
        mailbox()->setSendEvent(&former);
        mailbox()->setSendEvent(&later);
        BaseEvent event(MSG_CLOSE_SIGN_LIST, QString(), QString(), false);
        mailbox()->sendCommand(&event);
        QVERIFY(former.events.isEmpty());
        QCOMPARE(later.events.size(), 1);
    }

    void nullCommandIsIgnored()
    {
        FakeHost host;
        mailbox()->setSendEvent(&host);
        mailbox()->sendCommand(nullptr);
        QCoreApplication::processEvents();
        QVERIFY(host.events.isEmpty());
    }

    void inboundCommandIsHandledWhileOutboundOneIsInProgress()
    {
        FakeHost host;
        host.whileHandled = [](BaseEvent &) {
            BaseEvent inbound(MSG_CALL_SINGLE_USER, QString(), QString(), false, "meanwhile");
            QCoreApplication::sendEvent(mailbox(), &inbound);
        };
        mailbox()->setSendEvent(&host);
        BaseEvent outbound(MSG_IS_EXIST_FRIEND, QString(), QString(), false, packPayload(QString()));
        mailbox()->sendCommand(&outbound);
        QCOMPARE(m_calls, QStringList(QStringLiteral("callSingleUser meanwhile")));
        QCOMPARE(outbound.data, packPayload(false));
    }

private:
    void deliver(BaseEvent &event) { mailbox()->customEvent(&event); }
    static VoipManageMessageProcess *mailbox() { return VoipManageMessageProcess::instance(); }

    LogCapture m_log;
    QStringList m_calls;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipManageMessageProcess, Widgets)
#include "tst_VoipManageMessageProcess.moc"
