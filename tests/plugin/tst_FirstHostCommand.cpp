// Which event brings the call manager into being. Each test begins without one; nobody plays the call process.

#include "fakes/MessageBoxes.h"
#include "fakes/VoipManageProbe.h"
#include "plugin/BaseEvent.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QApplication>
#include <QTest>

#include <memory>

class tst_FirstHostCommand : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void anyRecognisedCommandCreatesTheManager_data();
    void anyRecognisedCommandCreatesTheManager();
    void commandForAnotherPluginCreatesNone_data();
    void commandForAnotherPluginCreatesNone();
    void unknownCommandCreatesNone();

private:
    static void addCommands();
    static void deliver(int msgId, const QString &receiver);
};

void tst_FirstHostCommand::cleanup()
{
    if (VoipManageProbe::exists()) {
        const std::unique_ptr<CVoipManage> manager(CVoipManage::instance());
        VoipManageProbe::forget();
    }
}

void tst_FirstHostCommand::addCommands()
{
    QTest::addColumn<int>("msgId");
    for (const int msgId : {4105, 4135, 4470, 4491, 4492, 4732, 4733, 4736, 4763}) {
        QTest::addRow("%d", msgId) << msgId;
    }
}

void tst_FirstHostCommand::deliver(int msgId, const QString &receiver)
{
    BaseEvent event(static_cast<EMsgId>(msgId), sessionPluginId(), receiver, false);
    QCoreApplication::sendEvent(VoipManageMessageProcess::instance(), &event);
}

void tst_FirstHostCommand::anyRecognisedCommandCreatesTheManager_data()
{
    addCommands();
}

void tst_FirstHostCommand::anyRecognisedCommandCreatesTheManager()
{
    QFETCH(int, msgId);
    // A call without a call process says so.
    const MessageBoxes boxes;
    deliver(msgId, voipPluginId());
    QVERIFY(VoipManageProbe::exists());
    QVERIFY(!QApplication::topLevelWidgets().isEmpty());
}

void tst_FirstHostCommand::commandForAnotherPluginCreatesNone_data()
{
    addCommands();
}

void tst_FirstHostCommand::commandForAnotherPluginCreatesNone()
{
    QFETCH(int, msgId);
    deliver(msgId, contactPluginId());
    QVERIFY(!VoipManageProbe::exists());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_FirstHostCommand::unknownCommandCreatesNone()
{
    QTest::ignoreMessage(QtDebugMsg, "1 enternothandle");
    deliver(1, voipPluginId());
    QVERIFY(!VoipManageProbe::exists());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

#include "support/TestProgram.h"
VOIP_TEST(tst_FirstHostCommand, Widgets)
#include "tst_FirstHostCommand.moc"
