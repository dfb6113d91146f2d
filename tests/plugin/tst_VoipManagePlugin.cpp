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
    void nameIsTheOneTheHostHasAlwaysSeen();
    void idIsAGuidInUpperCase();
    void receiveHandleIsTheSameObjectAlsoWithoutSendHandle();
    void receiveHandleIsTheMailbox();
    void receiveHandleOutlivesThePlugin();
    void sendHandleReceivesOutboundEvents();
    void windowHandleIsZero();
    void subscriptionsAreTakenWithoutEffect_data();
    void subscriptionsAreTakenWithoutEffect();
    void commonDataReachesTheCommonCode();
    void castsByNameAndInterfaceId();
    void basesStandInTheOrderTheHostExpects();
    void operationsStandBehindThoseOfTheObject();
    void declaresNoSignalsSlotsOrPropertiesOfItsOwn();
    void parentIsTheGivenOne();
    void creatingItShowsNoWindow();
};

void tst_VoipManagePlugin::nameIsTheOneTheHostHasAlwaysSeen()
{
    VoipManagePlugin plugin;
    QCOMPARE(plugin.getPluginName(), QStringLiteral("FileManagePlugin"));
}

void tst_VoipManagePlugin::idIsAGuidInUpperCase()
{
    VoipManagePlugin plugin;
    QCOMPARE(plugin.getPluginId(), QStringLiteral("{2EFF6261-40D8-448C-8E4C-8D52A7ABF3D1}"));
    QCOMPARE(plugin.getPluginId().size(), 38);
}

void tst_VoipManagePlugin::receiveHandleIsTheSameObjectAlsoWithoutSendHandle()
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

void tst_VoipManagePlugin::receiveHandleIsTheMailbox()
{
    VoipManagePlugin plugin;
    QCOMPARE(plugin.getReceiveEventHandle(), static_cast<QObject *>(VoipManageMessageProcess::instance()));
}

void tst_VoipManagePlugin::receiveHandleOutlivesThePlugin()
{
    auto plugin = std::make_unique<VoipManagePlugin>();
    const QPointer<QObject> handle = plugin->getReceiveEventHandle();
    plugin.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!handle.isNull());
    VoipManagePlugin later;
    QCOMPARE(later.getReceiveEventHandle(), handle.data());
}

void tst_VoipManagePlugin::sendHandleReceivesOutboundEvents()
{
    VoipManagePlugin plugin;
    FakeHost host;
    plugin.setSendEventHandle(&host);
    BaseEvent event(MSG_CLOSE_SIGN_LIST, QString(), QString(), false);
    VoipManageMessageProcess::instance()->sendCommand(&event);
    QCOMPARE(host.commands(), QList<int>{4540});
}

void tst_VoipManagePlugin::windowHandleIsZero()
{
    VoipManagePlugin plugin;
    QWidget window;
    QCOMPARE(plugin.getWindowHandle(nullptr), qint64(0));
    QCOMPARE(plugin.getWindowHandle(&window), qint64(0));
}

void tst_VoipManagePlugin::subscriptionsAreTakenWithoutEffect_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("msgId");
    QTest::addColumn<QString>("to");
    QTest::newRow("empty") << QString() << 0 << QString();
    QTest::newRow("known") << QStringLiteral("{2EFF6261-40D8-448C-8E4C-8D52A7ABF3D1}") << 4470 << QStringLiteral("{}");
    QTest::newRow("unknown") << QStringLiteral("x") << -1 << QStringLiteral("y");
}

void tst_VoipManagePlugin::subscriptionsAreTakenWithoutEffect()
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

void tst_VoipManagePlugin::commonDataReachesTheCommonCode()
{
    VoipManagePlugin plugin;
    CommonData context;
    plugin.setCommonData(&context);
    QCOMPARE(SharedContext::getCommonData(), &context);
    plugin.setCommonData(nullptr);
    QVERIFY(SharedContext::getCommonData() == nullptr);
}

void tst_VoipManagePlugin::castsByNameAndInterfaceId()
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

void tst_VoipManagePlugin::basesStandInTheOrderTheHostExpects()
{
    VoipManagePlugin plugin;
    QCOMPARE(reinterpret_cast<char *>(static_cast<QObject *>(&plugin)), reinterpret_cast<char *>(&plugin));
    QCOMPARE(reinterpret_cast<char *>(static_cast<PluginInterface *>(&plugin)) - reinterpret_cast<char *>(&plugin),
             std::ptrdiff_t(sizeof(QObject)));
    QCOMPARE(sizeof(VoipManagePlugin), sizeof(QObject) + sizeof(PluginInterface));
}

void tst_VoipManagePlugin::operationsStandBehindThoseOfTheObject()
{
    QStringList called;
    OperationRecorder<VoipManagePlugin> plugin(called);
    callEachSlot<QObject>(static_cast<VoipManagePlugin *>(&plugin));
    QCOMPARE(called, operationsInOrder());
    called.clear();
    callEachSlot<DestructorOnly>(static_cast<PluginInterface *>(&plugin));
    QCOMPARE(called, operationsInOrder());
}

void tst_VoipManagePlugin::declaresNoSignalsSlotsOrPropertiesOfItsOwn()
{
    const QMetaObject &meta = VoipManagePlugin::staticMetaObject;
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_VoipManagePlugin::parentIsTheGivenOne()
{
    QObject parent;
    auto *plugin = new VoipManagePlugin(&parent);
    QCOMPARE(plugin->parent(), &parent);
    VoipManagePlugin orphan;
    QVERIFY(orphan.parent() == nullptr);
}

void tst_VoipManagePlugin::creatingItShowsNoWindow()
{
    VoipManagePlugin plugin;
    plugin.getReceiveEventHandle();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipManagePlugin, Widgets)
#include "tst_VoipManagePlugin.moc"
