// Which event brings the call manager into being. Each test begins without one; nobody plays the call process.

#include "fakes/MessageBoxes.h"
#include "fakes/VoipManageProbe.h"
#include "plugin/BaseEvent.h"
#include "plugin/HostEvents.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"

#include <QApplication>
#include <QTest>

#include <memory>

class tst_FirstHostCommand : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        if (VoipManageProbe::exists()) {
            const std::unique_ptr<CVoipManage> manager(CVoipManage::instance());
            VoipManageProbe::forget();
        }
    }

    void anyRecognisedCommandCreatesTheManager_data() { addCommands(); }

    void anyRecognisedCommandCreatesTheManager()
    {
        QFETCH(int, msgId);
        // A call without a call process says so.
        const MessageBoxes boxes;
        deliver(msgId, voipPluginId());
        QVERIFY(VoipManageProbe::exists());
        QVERIFY(!QApplication::topLevelWidgets().isEmpty());
    }

    void commandForAnotherPluginCreatesNone_data() { addCommands(); }

    void commandForAnotherPluginCreatesNone()
    {
        QFETCH(int, msgId);
        deliver(msgId, contactPluginId());
        QVERIFY(!VoipManageProbe::exists());
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void unknownCommandCreatesNone()
    {
        QTest::ignoreMessage(QtDebugMsg, "1 enternothandle");
        deliver(1, voipPluginId());
        QVERIFY(!VoipManageProbe::exists());
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

private:
    static void addCommands()
    {
        QTest::addColumn<int>("msgId");
        for (const HostEvent &event : cHostEvents) {
            if (event.way == EventWay::Command) {
                QTest::addRow("%d", event.msgId) << int(event.msgId);
            }
        }
    }

    static void deliver(int msgId, const QString &receiver)
    {
        BaseEvent event(static_cast<EMsgId>(msgId), sessionPluginId(), receiver, false);
        QCoreApplication::sendEvent(VoipManageMessageProcess::instance(), &event);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FirstHostCommand, Widgets)
#include "tst_FirstHostCommand.moc"
