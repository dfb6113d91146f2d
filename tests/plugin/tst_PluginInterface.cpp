#include "SlotOrder.h"

#include <QTest>

class tst_PluginInterface : public QObject
{
    Q_OBJECT

private slots:
    void operationsStandInTheSlotOrderOfTheHost()
    {
        QStringList called;
        PluginInterface *plugin = new OperationRecorder<PluginInterface>(called);
        callEachSlot<DestructorOnly>(plugin);
        delete plugin;
        QCOMPARE(called, operationsInOrder() << "destructor");
    }

    void interfaceIdIsTheHosts() { QCOMPARE(qobject_interface_iid<PluginInterface *>(), "kelvarim/1.0"); }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PluginInterface, Guiless)
#include "tst_PluginInterface.moc"
