#include "common/AppPaths.h"
#include "common/CommonFun.h"

#include <QtTest>

#include <type_traits>

static_assert(std::is_base_of_v<SharedContext, CommonFun> && std::is_base_of_v<UserIds, CommonFun>);

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

    void messageHtmlIsReachedByTheOneName()
    {
        QString strText = "a  b";
        CommonFun::replaceSpace(strText);
        QCOMPARE(CommonFun::convertMessageBody("a  b", false), strText);
        CommonFun::convertWebLink(strText, {});
        CommonFun::replaceLineBreak(strText);
        QCOMPARE(strText, QString("a&nbsp;&nbsp;b"));
        QCOMPARE(CommonFun::regainHtmlText(CommonFun::getDealWithHtmlText("<")), QString("<"));
        CommonFun::escapeURLChar(strText);
        QCOMPARE(strText, QString("a%26nbsp;%26nbsp;b"));
        CommonFun::replaceLineBreakToParagraph(strText = "a");
        QCOMPARE(strText, QString("<p>a</p>\n"));
        QVERIFY(CommonFun::getImageListFromHtml("", "", "").isEmpty());
        QVERIFY(CommonFun::getFileIdListFromHtml("", "", "").isEmpty());
        QCOMPARE(CommonFun::getTrueImagePath("", "b"), QString("b"));
        QVERIFY(!CommonFun::getIsImageFixError(strText));
        QCOMPARE(CommonFun::getShortString("ab", 1), QString("a\nb"));
        QCOMPARE(CommonFun::getElidedText("a"), QString("a"));
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

    void theDigestsAreReachedByTheOneName()
    {
        const char *const pEmpty = "da39a3ee5e6b4b0d3255bfef95601890afd80709";
        uint32_t digest[5];
        CommonFun::sha1(nullptr, 0, digest);
        QCOMPARE(CommonFun::octet_string_hex_string1(digest, 20), pEmpty);
        sha1_ctx_t context;
        CommonFun::sha1_init(&context);
        CommonFun::sha1_update(&context, nullptr, 0);
        CommonFun::sha1_final(&context, digest);
        QCOMPARE(CommonFun::octet_string_hex_string1(digest, 20), pEmpty);
        QCOMPARE(CommonFun::nibble_to_hex_char1(15), 'f');
        QCOMPARE(CommonFun::getFileHash(QString()), QString(pEmpty));
        QCOMPARE(CommonFun::getSha1(QString()), QString(pEmpty).toUpper());
        QCOMPARE(CommonFun::getMd5(QString()), QString("D41D8CD98F00B204E9800998ECF8427E"));
        QTest::ignoreMessage(QtDebugMsg, "error");
        QCOMPARE(CommonFun::getFileMd5("missing"), QString());
        QTest::ignoreMessage(QtDebugMsg, "error");
        QCOMPARE(CommonFun::getFileSha1("missing"), QString());
    }

    void theSmallServicesAreReachedByTheOneName()
    {
        QCOMPARE(CommonFun::getUuid().size(), 22);
        CommonFun::m_nAutoIncrementNumber = 7;
        QCOMPARE(CommonFun::getShortId(), QString("impc7"));
        QCOMPARE(CommonFun::getAutoIncrementNumber(), QString("8"));
        QCOMPARE(CommonFun::toChineseSpell("张 3a"), QString("Z3A"));
        QVERIFY(CommonFun::copyDirectory(QDir("missing"), QDir("copied"), false));
        CommonFun::setSOALoginInfo("me");
        QCOMPARE(CommonFun::getSOALoginInfo(), QString("me"));
        QCOMPARE(CommonFun::m_strSOALoginInfo, QString("me"));
        QVERIFY(!CommonFun::openLocalFile("missing"));
        QVERIFY(!CommonFun::openLocalDir("missing/file"));
        QCOMPARE(CommonFun::openMacLocalFile("missing"), 0);
        QVERIFY(CommonFun::parseWeatherXml("missing").isEmpty());
        QVERIFY(CommonFun::parseCityXml().isEmpty());
        QCOMPARE(CommonFun::readStyleSheet({"missing"}), QStringList(QString()));
        QCOMPARE(CommonFun::transformToRGBAStr("#010203"), QString("1,2,3"));
        QVERIFY(CommonFun::isVideoChat("VRoom1"));
        QCOMPARE(CommonFun::getUIDByAccountNo("missing", "a"), QString());
        QCOMPARE(CommonFun::getMucRoomMaxMemberSize(), Q_INT64_C(1500));
        static_assert(std::is_same_v<decltype(&CommonFun::getLocalIPAddress), QString (*)()>);
        static_assert(std::is_same_v<decltype(&CommonFun::sendMail), void (*)(const QStringList &)>);
        static_assert(std::is_same_v<decltype(&CommonFun::getAvailableMovePos), QPoint (*)(QPoint, QRect)>);
    }

    void theInstallationIsReachedByTheOneName()
    {
        QVERIFY(QDir().mkpath(QFileInfo(strAPP_VERSION_FILE_PATH()).path()));
        CommonFun::setIMVertion("7.1");
        QVERIFY(QFile::exists(strAPP_VERSION_FILE_PATH()));
        QCOMPARE(CommonFun::getIMVertion(), AppInfo::getIMVertion());
        QVERIFY(!CommonFun::getIMWindowTitle().isEmpty());
        QVERIFY(CommonFun::IsPubicVersion());
        QCOMPARE(CommonFun::getAbsoluteWebviewFilePath("a.html"), AppInfo::getAbsoluteWebviewFilePath("a.html"));
        QVERIFY(CommonFun::GetRemainDiskSpace(QDir::currentPath()) > 0);
        static_assert(std::is_same_v<decltype(&CommonFun::translateIniToUtf8Code),
                                     decltype(&ConfigFile::translateIniToUtf8Code)>);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CommonFun, Widgets)
#include "tst_CommonFun.moc"
