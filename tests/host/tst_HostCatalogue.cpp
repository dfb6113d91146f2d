#include "HostCatalogue.h"

#include <QCoreApplication>
#include <QTest>

class tst_HostCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void keysBecomeTextsInAnyContext();
    void unknownKeyStaysAsItIs();
};

void tst_HostCatalogue::keysBecomeTextsInAnyContext()
{
    HostCatalogue catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    for (const char *context : {"CVoipWidget", "QObject", "CVoipManage"}) {
        QCOMPARE(QCoreApplication::translate(context, "sure"), QStringLiteral("确定"));
        QCOMPARE(QCoreApplication::translate(context, "tip"), QStringLiteral("提示"));
        for (const char *key : {"cancel", "close", "soundfailedinsound", "beSureToCloseCalling", "openmic", "closemic",
                                "openvioce", "silence", "enternothandle", "tarvoShowName"}) {
            QVERIFY2(QCoreApplication::translate(context, key) != QLatin1String(key), key);
        }
    }
}

void tst_HostCatalogue::unknownKeyStaysAsItIs()
{
    HostCatalogue catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QCOMPARE(QCoreApplication::translate("QObject", "Sure"), QStringLiteral("Sure"));
}

QTEST_GUILESS_MAIN(tst_HostCatalogue)
#include "tst_HostCatalogue.moc"
