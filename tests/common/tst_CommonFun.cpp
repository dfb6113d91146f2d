#include "common/CommonFun.h"

#include <QtTest>

class tst_CommonFun : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { CommonFun::setCommonData(nullptr); }

    void theSkinIsReachedByTheOneName()
    {
        CommonData context;
        CommonFun::setCommonData(&context);
        SysUIData *pSkin = CommonFun::getSkinData();
        QVERIFY(pSkin);
        QCOMPARE(context.getSkinData(), pSkin);
        SysUIData skin;
        skin.m_strMainColor = "#123456";
        CommonFun::setSkinData(skin);
        QCOMPARE(context.getSkinData()->m_strMainColor, QString("#123456"));
        QVERIFY(!CommonFun::getSysUIDataList());
        QVERIFY(!CommonFun::getChatBubblesList());
    }

    void theTextsAreReachedByTheOneName()
    {
        unsigned long iBytes = 2048;
        unsigned long iSeconds = 2;
        QCOMPARE(CommonFun::getTime("2001-02-03 04:05:06"), QString("2001-02-03"));
        QCOMPARE(CommonFun::getTimeEx("2001-02-03 04:05:06"), QString("2001-02-03 hh:mm"));
        QCOMPARE(CommonFun::getDetailTime(""), QString());
        QCOMPARE(CommonFun::getPublishTime(""), QString());
        QCOMPARE(CommonFun::GetTimeString(1), QString("00:00:01"));
        QCOMPARE(CommonFun::getTimeStringBySecond(1), QString("1秒"));
        QCOMPARE(CommonFun::addZroeSort(1), QString("0001"));
        QCOMPARE(CommonFun::fileSizeConvert(1024), QString("1KB"));
        QCOMPARE(CommonFun::speedConvert(iBytes, iSeconds), QString("1KB/s"));
        QCOMPARE(CommonFun::getSpeed(1, 1001, 1024), qint64(1024));
        QCOMPARE(CommonFun::getSpeedString(1, 1001, 1024), QString("1.0KB/S"));
        QCOMPARE(CommonFun::removeSymbolPrefix("9-1"), QString("91"));
        QCOMPARE(CommonFun::removePrefix("9-1"), QString("1"));
        QVERIFY(CommonFun::isDigitalString("1"));
        QVERIFY(CommonFun::compareVersion("1", "2"));
        QCOMPARE(CommonFun::getStrCounnt("中"), 2);
        QCOMPARE(CommonFun::getLimitPosition("中文", 3), 1);
        QCOMPARE(CommonFun::getStringByLen("中文", 3), QString("中"));
        QVERIFY(CommonFun::combareString("a,b", ",", "b"));
        QCOMPARE(CommonFun::getSortText("a"), QString("L"));
    }
};

QTEST_GUILESS_MAIN(tst_CommonFun)
#include "tst_CommonFun.moc"
