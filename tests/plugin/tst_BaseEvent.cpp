#include "fakes/FreedBlocks.h"
#include "plugin/BaseEvent.h"

#include <QTest>
#include <QVector>

#include <algorithm>
#include <memory>
#include <type_traits>

class tst_BaseEvent : public QObject
{
    Q_OBJECT

private slots:
    void hasTheTypeOfAllHostEvents()
    {
        const BaseEvent event(MSG_EXIT_VOIP, QString(), QString(), false);
        QCOMPARE(static_cast<int>(event.type()), 1000);
    }

    void keepsWhatItIsBuiltWith()
    {
        const BaseEvent event(MSG_CALL_FINISHED, QStringLiteral("from"), QStringLiteral("to"), true,
                              QByteArray("bytes"));
        QCOMPARE(static_cast<int>(event.msgId), 4478);
        QCOMPARE(event.senderId, QStringLiteral("from"));
        QCOMPARE(event.receiverId, QStringLiteral("to"));
        QCOMPARE(event.data, QByteArray("bytes"));
        QVERIFY(event.bAsync);
        QVERIFY(event.bFlag);
        QVERIFY(event.extraList.isEmpty());
    }

    void isBuiltWithoutPayloadByDefault()
    {
        const BaseEvent event(MSG_EXIT_VOIP, QString(), QString(), false);
        QVERIFY(event.data.isEmpty());
        QVERIFY(!event.bAsync);
    }

    void fieldsStandInTheOrderSharedWithTheHost()
    {
        const BaseEvent event(MSG_EXIT_VOIP, QString(), QString(), false);
        const QVector<const void *> fields{&event.msgId,      &event.data,   &event.bFlag,    &event.senderId,
                                           &event.receiverId, &event.bAsync, &event.extraList};
        QVERIFY(fields.first() > static_cast<const void *>(static_cast<const QEvent *>(&event)));
        QVERIFY(std::is_sorted(fields.cbegin(), fields.cend()));
    }

    void destructorFreesTheExtraBlocks()
    {
        void *first = FreedBlocks::watched();
        void *second = FreedBlocks::watched();
        auto event = std::make_unique<BaseEvent>(MSG_EXIT_VOIP, QString(), QString(), false);
        event->extraList << first << second << nullptr;
        QVERIFY(!FreedBlocks::isFreed(first));
        event.reset();
        QVERIFY(FreedBlocks::isFreed(first));
        QVERIFY(FreedBlocks::isFreed(second));
    }

    void destructorIsVirtual()
    {
        QVERIFY(std::has_virtual_destructor_v<BaseEvent>);
        void *block = FreedBlocks::watched();
        auto *event = new BaseEvent(MSG_EXIT_VOIP, QString(), QString(), false);
        event->extraList << block;
        std::unique_ptr<QEvent> base(event);
        QVERIFY(!FreedBlocks::isFreed(block));
        base.reset();
        QVERIFY(FreedBlocks::isFreed(block));
    }

    void cannotBeCopiedSinceItOwnsBlocks()
    {
        QVERIFY(!std::is_copy_constructible_v<BaseEvent>);
        QVERIFY(!std::is_copy_assignable_v<BaseEvent>);
    }

    void commandNumberHas32Bits()
    {
        QVERIFY((std::is_same_v<std::underlying_type_t<EMsgId>, qint32>));
        const BaseEvent event(static_cast<EMsgId>(-2147483647), QString(), QString(), false);
        QCOMPARE(static_cast<int>(event.msgId), -2147483647);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_BaseEvent, Guiless)
#include "tst_BaseEvent.moc"
