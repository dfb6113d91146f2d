#pragma once

// The plug-in's table of operations as a host knows it that was built apart from this code, and a plug-in that notes
// which of its operations a call through such a table has reached. For tests, on one thread.

#include "plugin/PluginInterface.h"

#include <QStringList>

/// What stands before the operations in the interface's own table.
class DestructorOnly
{
public:
    virtual ~DestructorOnly() = default;
};

/// The virtual functions of `Base`, behind them one slot for each operation.
template <typename Base>
class SlotOrder : public Base
{
public:
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

/// Calls the slots behind `Base` of the object at `address`, first to last. The object is of another type than the one
/// it is called as, just as for a host: a sanitizer would object. The address is read back at run time, so that the
/// compiler draws no conclusion from the type that it was given.
template <typename Base>
__attribute__((no_sanitize("vptr"))) void callEachSlot(void *volatile address)
{
    auto *table = static_cast<SlotOrder<Base> *>(address);
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

/// The operations' names in the order of their slots.
inline QStringList operationsInOrder()
{
    return {"getPluginName", "getWindowHandle", "getReceiveEventHandle", "setSendEventHandle", "getPluginId",
            "attachplugin",  "disattachplugin", "getRecListByMsgId",     "setCommonData"};
}

/// A `Plugin` whose operations do nothing but write their names, and at its end "destructor", to the given list.
template <typename Plugin>
class OperationRecorder : public Plugin
{
public:
    explicit OperationRecorder(QStringList &called) : m_called(called) {}
    ~OperationRecorder() override { m_called << "destructor"; }

    QString getPluginName() override { return noted<QString>("getPluginName"); }
    qint64 getWindowHandle(QWidget *) override { return noted<qint64>("getWindowHandle"); }
    QObject *getReceiveEventHandle() override { return noted<QObject *>("getReceiveEventHandle"); }
    void setSendEventHandle(QObject *) override { m_called << "setSendEventHandle"; }
    QString getPluginId() override { return noted<QString>("getPluginId"); }
    bool attachplugin(const QString &, EMsgId, const QString &) override { return noted<bool>("attachplugin"); }
    bool disattachplugin(const QString &, EMsgId, const QString &) override { return noted<bool>("disattachplugin"); }
    QStringList getRecListByMsgId(const QString &, EMsgId) override { return noted<QStringList>("getRecListByMsgId"); }
    void setCommonData(CommonData *) override { m_called << "setCommonData"; }

private:
    template <typename Result>
    Result noted(const char *operation)
    {
        m_called << operation;
        return Result();
    }

    QStringList &m_called;
};
