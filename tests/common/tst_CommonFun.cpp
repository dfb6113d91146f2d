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

    void thePicturesAreReachedByTheOneName()
    {
        const QSize size(30, 30);
        QString strName;
        QString strId;
        QString strPath;
        QVERIFY(CommonFun::getFormattedImage("", "1001@d", QPixmap(), size, "png").endsWith("/1001.png"));
        QVERIFY(CommonFun::getScaledPixmap("none.png", size).isNull());
        QVERIFY(CommonFun::getRoundedImage("none.png", 10).isNull());
        QVERIFY(CommonFun::getIrregularPix("none.png", 10).isNull());
        QCOMPARE(CommonFun::drawNinePatch(size, QPixmap()).size(), size);
        QVERIFY(CommonFun::generateWaterMark(strName, strId, strPath));
        QVERIFY(QFile::exists(strPath));
        QCOMPARE(CommonFun::getIconFont().pixelSize(), 12);
        QCOMPARE(CommonFun::getIconFontPixmap("x", Qt::red, size, 12).size(), size);
        QCOMPARE(CommonFun::getStatusTypeName(0, 0, false), QString(QChar(0xE628)));
        QCOMPARE(CommonFun::getFileIcon("a.txt").size(), QSize(32, 32));
        QVERIFY(CommonFun::getFileIconPath("a.txt", 16).endsWith("/icon/txt_x16.png"));
        QVERIFY(CommonFun::extractFileIcon("none.txt", true).isNull());
        QVERIFY(!CommonFun::getFileImg("a.txt", true, false).isNull());
        QCOMPARE(CommonFun::getImageType("none.xyz"), QString("xyz"));
        QCOMPARE(CommonFun::GetPictureSuffix().size(), 5);
        QVERIFY(CommonFun::getPicSaveSuffixes("bmp").startsWith("BMP"));
        QCOMPARE(CommonFun::getTrueImagePath("none.png", "fallback.png"), QString("fallback.png"));
        QVERIFY(!CommonFun::getIsImageFixError(strName));
    }
};

QTEST_MAIN(tst_CommonFun)
#include "tst_CommonFun.moc"
