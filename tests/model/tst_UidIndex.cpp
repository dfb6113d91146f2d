#include "model/UidIndex.h"

#include <QStringList>
#include <QTest>

#include <random>

class tst_UidIndex : public QObject
{
    Q_OBJECT

private slots:
    void emptyListHoldsNothing()
    {
        QStringList uids;
        UidIndex index;
        QVERIFY(!index.contains(uids, QStringLiteral("a")));
        QVERIFY(!index.contains(uids, QString()));
        QVERIFY(!index.removeOne(uids, QStringLiteral("a")));
        QCOMPARE(uids, QStringList());
    }

    void whatIsAppendedIsThere()
    {
        QStringList uids;
        UidIndex index;
        index.append(uids, QStringLiteral("a"));
        index.append(uids, QStringLiteral("b"));
        QCOMPARE(uids, QStringList({"a", "b"}));
        QVERIFY(index.contains(uids, QStringLiteral("a")));
        QVERIFY(index.contains(uids, QStringLiteral("b")));
        QVERIFY(!index.contains(uids, QStringLiteral("A")));
    }

    void idStaysUntilItsLastPlaceIsGone()
    {
        QStringList uids{"a", "b", "a"};
        UidIndex index;
        QVERIFY(index.removeOne(uids, QStringLiteral("a")));
        QVERIFY(index.contains(uids, QStringLiteral("a")));
        QVERIFY(index.removeOne(uids, QStringLiteral("a")));
        QVERIFY(!index.contains(uids, QStringLiteral("a")));
        QVERIFY(!index.removeOne(uids, QStringLiteral("a")));
        QCOMPARE(uids, QStringList{"b"});
    }

    void removalTakesTheFirstPlace()
    {
        QStringList uids{"b", "a", "c", "a"};
        UidIndex index;
        QVERIFY(index.removeOne(uids, QStringLiteral("a")));
        QCOMPARE(uids, QStringList({"b", "c", "a"}));
    }

    void changeMadeElsewhereIsNoticed_data()
    {
        QTest::addColumn<QStringList>("changed");
        QTest::newRow("one more") << QStringList{"a", "b", "x"};
        QTest::newRow("another in the place of one") << QStringList{"a", "x"};
        QTest::newRow("another list") << QStringList{"x"};
    }

    void changeMadeElsewhereIsNoticed()
    {
        QFETCH(QStringList, changed);
        const auto check = [&changed](UidIndex &index, const QStringList &uids) {
            for (const char *uid : {"a", "b", "x"}) {
                QCOMPARE(index.contains(uids, QLatin1String(uid)), changed.contains(QLatin1String(uid)));
            }
        };
        QStringList uids{"a", "b"};
        UidIndex index;
        QVERIFY(index.contains(uids, QStringLiteral("b")));
        uids = changed;
        check(index, uids);

        // In the list's own place in memory.
        QStringList grown{"a"};
        UidIndex other;
        other.append(grown, QStringLiteral("b"));
        grown.clear();
        grown.append(changed);
        check(other, grown);
        QVERIFY(other.removeOne(grown, QStringLiteral("x")));
        QVERIFY(!other.contains(grown, QStringLiteral("x")));
    }

    void copyOfTheListStaysAsItWas()
    {
        QStringList uids{"a"};
        UidIndex index;
        QVERIFY(index.contains(uids, QStringLiteral("a")));
        const QStringList copy = uids;
        index.append(uids, QStringLiteral("b"));
        index.removeOne(uids, QStringLiteral("a"));
        QCOMPARE(copy, QStringList{"a"});
        QCOMPARE(uids, QStringList{"b"});
    }

    void listIsNeverCopiedWhole()
    {
        QStringList uids;
        UidIndex index;
        uids.reserve(100);
        const auto place = uids.constBegin();
        for (int i = 0; i < 100; ++i) {
            QVERIFY(!index.contains(uids, QString::number(i)));
            index.append(uids, QString::number(i));
        }
        QVERIFY(uids.constBegin() == place);
    }

    void anyOrderOfQuestionsFindsTheSame()
    {
        std::mt19937 random(20261);
        const auto anyUid = [&random] { return QString::number(random() % 12); };
        QStringList uids;
        UidIndex index;
        for (int round = 0; round < 3000; ++round) {
            const QString uid = anyUid();
            switch (random() % 4) {
            case 0:
                index.append(uids, uid);
                break;
            case 1:
                if (uids.contains(uid)) {
                    QVERIFY(index.removeOne(uids, uid));
                } else {
                    QVERIFY(!index.removeOne(uids, uid));
                }
                break;
            case 2:
                uids = QStringList{anyUid(), anyUid(), anyUid()};
                break;
            default:
                // In the list's own order, with some left out and some that it has not.
                for (const QString &asked : qAsConst(uids)) {
                    if (random() % 3 == 0) {
                        continue;
                    }
                    QVERIFY(index.contains(uids, asked));
                    const QString other = anyUid();
                    QCOMPARE(index.contains(uids, other), uids.contains(other));
                }
            }
        }
    }

    void largeListsAreCountedToo()
    {
        constexpr int count = 5000;
        QStringList uids;
        UidIndex index;
        for (int i = 0; i < count; ++i) {
            index.append(uids, QString::number(i));
        }
        QCOMPARE(uids.size(), count);
        for (int i = 2 * count - 1; i >= 0; --i) {
            QCOMPARE(index.contains(uids, QString::number(i)), i < count);
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_UidIndex, Appless)
#include "tst_UidIndex.moc"
