#include "plugin/PluginInterface.h"

#include <QTest>

namespace {

QStringList called;

// Notes which operation a call through the interface's table has reached.
class Recorder : public PluginInterface
{
public:
    ~Recorder() override { called << "destructor"; }
    QString getPluginName() override
    {
        called << "getPluginName";
        return QString();
    }
    qint64 getWindowHandle(QWidget *) override
    {
        called << "getWindowHandle";
        return 0;
    }
    QObject *getReceiveEventHandle() override
    {
        called << "getReceiveEventHandle";
        return nullptr;
    }
    void setSendEventHandle(QObject *) override { called << "setSendEventHandle"; }
    QString getPluginId() override
    {
        called << "getPluginId";
        return QString();
    }
    bool attachplugin(const QString &, EMsgId, const QString &) override
    {
        called << "attachplugin";
        return true;
    }
    bool disattachplugin(const QString &, EMsgId, const QString &) override
    {
        called << "disattachplugin";
        return true;
    }
    QStringList getRecListByMsgId(const QString &, EMsgId) override
    {
        called << "getRecListByMsgId";
        return QStringList();
    }
    void setCommonData(CommonData *) override { called << "setCommonData"; }
};

} // namespace

// The table as a host knows it that was built apart from this header: the destructor, then one slot each.
class SlotOrder
{
public:
    virtual ~SlotOrder() = default;
    virtual QString slot3() = 0;
    virtual qint64 slot4(QWidget *) = 0;
    virtual QObject *slot5() = 0;
    virtual void slot6(QObject *) = 0;
    virtual QString slot7() = 0;
    virtual bool slot8(const QString &, EMsgId, const QString &) = 0;
    virtual bool slot9(const QString &, EMsgId, const QString &) = 0;
    virtual QStringList slot10(const QString &, EMsgId) = 0;
    virtual void slot11(CommonData *) = 0;
};

// The object is of another type than the one it is called as, just as for a host: a sanitizer would object.
[[gnu::no_sanitize("vptr")]] static void callEachSlot(SlotOrder *table)
{
    table->slot3();
    table->slot4(nullptr);
    table->slot5();
    table->slot6(nullptr);
    table->slot7();
    table->slot8(QString(), MSG_EXIT_VOIP, QString());
    table->slot9(QString(), MSG_EXIT_VOIP, QString());
    table->slot10(QString(), MSG_EXIT_VOIP);
    table->slot11(nullptr);
}

class tst_PluginInterface : public QObject
{
    Q_OBJECT

private slots:
    void operationsStandInTheSlotOrderOfTheHost();
    void interfaceIdIsTheHosts();
};

void tst_PluginInterface::operationsStandInTheSlotOrderOfTheHost()
{
    called.clear();
    PluginInterface *plugin = new Recorder;
    // Read back at run time, so that the compiler draws no conclusion from the type that it was given.
    void *volatile address = plugin;
    callEachSlot(static_cast<SlotOrder *>(address));
    delete plugin;
    QCOMPARE(called, (QStringList{"getPluginName", "getWindowHandle", "getReceiveEventHandle", "setSendEventHandle",
                                  "getPluginId", "attachplugin", "disattachplugin", "getRecListByMsgId",
                                  "setCommonData", "destructor"}));
}

void tst_PluginInterface::interfaceIdIsTheHosts()
{
    QCOMPARE(qobject_interface_iid<PluginInterface *>(), "kelvarim/1.0");
}

QTEST_GUILESS_MAIN(tst_PluginInterface)
#include "tst_PluginInterface.moc"
