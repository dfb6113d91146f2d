#include "common/AccountMap.h"

#include <QFile>
#include <QTest>

class tst_AccountMap : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QFile file("accounts.ini");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[accounts]\naccountuidmap=longer.wang^^101, wang^^102, 李^^103, broken, half^^, half2^^9\n");
    }

    void accounts_data()
    {
        QTest::addColumn<QString>("account");
        QTest::addColumn<QString>("uid");
        QTest::newRow("an equal account goes before one that holds it") << "wang"
                                                                        << "102";
        QTest::newRow("an item that holds it") << "longer"
                                               << "101";
        QTest::newRow("UTF-8") << "李"
                               << "103";
        QTest::newRow("an item without its uid") << "broken" << QString();
        QTest::newRow("an item with an empty uid") << "half" << QString();
        QTest::newRow("items that hold it, the first without its uid") << "ha"
                                                                       << "9";
        QTest::newRow("several items that hold it") << "ang"
                                                    << "101";
        QTest::newRow("unknown") << "nobody" << QString();
        QTest::newRow("empty") << QString() << QString();
    }

    void accounts()
    {
        QFETCH(QString, account);
        QTEST(AccountMap::getUIDByAccountNo("accounts.ini", account), "uid");
    }

    void aMissingFileKnowsNobody()
    {
        QCOMPARE(AccountMap::getUIDByAccountNo("missing.ini", "wang"), QString());
        QCOMPARE(AccountMap::getUIDByAccountNo(".", "wang"), QString());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_AccountMap, Guiless)
#include "tst_AccountMap.moc"
