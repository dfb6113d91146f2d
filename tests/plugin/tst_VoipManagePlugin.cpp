#include "SlotOrder.h"

#include "fakes/FakeHost.h"
#include "model/SharedContext.h"
#include "plugin/BaseEvent.h"
#include "plugin/VoipManageMessageProcess.h"
#include "plugin/VoipManagePlugin.h"

#include <QApplication>
#include <QPointer>
#include <QTest>

#include <memory>

class tst_VoipManagePlugin : public QObject
{
    Q_OBJECT

private slots:
    void nameIsTheOneTheHostHasAlwaysSeen()
    {
        VoipManagePlugin plugin;
        QCOMPARE(plugin.getPluginName(), QStringLiteral("FileManagePlugin"));
    }

    void idIsAGuidInUpperCase()
    {
        VoipManagePlugin plugin;
        QCOMPARE(plugin.getPluginId(), QStringLiteral("{2EFF6261-40D8-448C-8E4C-8D52A7ABF3D1}"));
        QCOMPARE(plugin.getPluginId().size(), 38);
    }

    void receiveHandleIsTheSameObjectAlsoWithoutSendHandle()
    {
        VoipManagePlugin plugin;
        QObject *handle = plugin.getReceiveEventHandle();
        QVERIFY(handle != nullptr);
        QCOMPARE(plugin.getReceiveEventHandle(), handle);
        FakeHost host;
        plugin.setSendEventHandle(&host);
        QCOMPARE(plugin.getReceiveEventHandle(), handle);
        VoipManagePlugin other;
        QCOMPARE(other.getReceiveEventHandle(), handle);
    }

    void receiveHandleIsTheMailbox()
    {
        VoipManagePlugin plugin;
        QCOMPARE(plugin.getReceiveEventHandle(), static_cast<QObject *>(VoipManageMessageProcess::instance()));
    }

    void receiveHandleOutlivesThePlugin()
    {
        auto plugin = std::make_unique<VoipManagePlugin>();
        const QPointer<QObject> handle = plugin->getReceiveEventHandle();
        plugin.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!handle.isNull());
        VoipManagePlugin later;
        QCOMPARE(later.getReceiveEventHandle(), handle.data());
    }

    void sendHandleReceivesOutboundEvents()
    {
        VoipManagePlugin plugin;
        FakeHost host;
        plugin.setSendEventHandle(&host);
        BaseEvent event(MSG_CLOSE_SIGN_LIST, QString(), QString(), false);
        VoipManageMessageProcess::instance()->sendCommand(&event);
        QCOMPARE(host.commands(), QList<int>{4540});
    }

    void windowHandleIsZero()
    {
        VoipManagePlugin plugin;
        QWidget window;
        QCOMPARE(plugin.getWindowHandle(nullptr), qint64(0));
        QCOMPARE(plugin.getWindowHandle(&window), qint64(0));
    }

    void subscriptionsAreTakenWithoutEffect_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<int>("msgId");
        QTest::addColumn<QString>("to");
        QTest::newRow("empty") << QString() << 0 << QString();
        QTest::newRow("known") << QStringLiteral("{2EFF6261-40D8-448C-8E4C-8D52A7ABF3D1}") << 4470
                               << QStringLiteral("{}");
        QTest::newRow("unknown") << QStringLiteral("x") << -1 << QStringLiteral("y");
    }

    void subscriptionsAreTakenWithoutEffect()
    {
        QFETCH(QString, from);
        QFETCH(int, msgId);
        QFETCH(QString, to);
        VoipManagePlugin plugin;
        const auto command = static_cast<EMsgId>(msgId);
        QVERIFY(plugin.attachplugin(from, command, to));
        QCOMPARE(plugin.getRecListByMsgId(from, command), QStringList());
        QVERIFY(plugin.disattachplugin(from, command, to));
        QVERIFY(plugin.disattachplugin(from, command, to));
    }

    void commonDataReachesTheCommonCode()
    {
        VoipManagePlugin plugin;
        CommonData context;
        plugin.setCommonData(&context);
        QCOMPARE(SharedContext::getCommonData(), &context);
        plugin.setCommonData(nullptr);
        QVERIFY(SharedContext::getCommonData() == nullptr);
    }

    void castsByNameAndInterfaceId()
    {
        VoipManagePlugin plugin;
        auto *contract = static_cast<PluginInterface *>(&plugin);
        QCOMPARE(plugin.qt_metacast("VoipManagePlugin"), static_cast<void *>(&plugin));
        QCOMPARE(plugin.qt_metacast("PluginInterface"), static_cast<void *>(contract));
        QCOMPARE(plugin.qt_metacast("kelvarim/1.0"), static_cast<void *>(contract));
        QCOMPARE(plugin.qt_metacast("QObject"), static_cast<void *>(static_cast<QObject *>(&plugin)));
        QVERIFY(plugin.qt_metacast("kelvarim/1.1") == nullptr);
        QCOMPARE(qobject_cast<PluginInterface *>(static_cast<QObject *>(&plugin)), contract);
    }

    void basesStandInTheOrderTheHostExpects()
    {
        VoipManagePlugin plugin;
        QCOMPARE(reinterpret_cast<char *>(static_cast<QObject *>(&plugin)), reinterpret_cast<char *>(&plugin));
        QCOMPARE(reinterpret_cast<char *>(static_cast<PluginInterface *>(&plugin)) - reinterpret_cast<char *>(&plugin),
                 std::ptrdiff_t(sizeof(QObject)));
        QCOMPARE(sizeof(VoipManagePlugin), sizeof(QObject) + sizeof(PluginInterface));
    }

    void operationsStandBehindThoseOfTheObject()
    {
        QStringList called;
        OperationRecorder<VoipManagePlugin> plugin(called);
        callEachSlot<QObject>(static_cast<VoipManagePlugin *>(&plugin));
        QCOMPARE(called, operationsInOrder());
        called.clear();
        callEachSlot<DestructorOnly>(static_cast<PluginInterface *>(&plugin));
        QCOMPARE(called, operationsInOrder());
    }

    void declaresNoSignalsSlotsOrPropertiesOfItsOwn()
    {
        const QMetaObject &meta = VoipManagePlugin::staticMetaObject;
        QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
        QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    }

    void parentIsTheGivenOne()
    {
        QObject parent;
        auto *plugin = new VoipManagePlugin(&parent);
        QCOMPARE(plugin->parent(), &parent);
        VoipManagePlugin orphan;
        QVERIFY(orphan.parent() == nullptr);
    }

    void creatingItShowsNoWindow()
    {
        VoipManagePlugin plugin;
        plugin.getReceiveEventHandle();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipManagePlugin, Widgets)
#include "tst_VoipManagePlugin.moc"
