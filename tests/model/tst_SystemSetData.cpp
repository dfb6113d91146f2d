#include "common/AppPaths.h"
#include "fakes/FileBytes.h"
#include "model/SystemSetData.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using Check = std::function<bool(const SystemSetData &)>;
Q_DECLARE_METATYPE(Check)

namespace {

constexpr char USER[] = "10000001";

/// The keys of a user's file in the order of reading.
const QStringList USER_KEYS = {
    "/basicSetting/autoLogin",
    "/basicSetting/autoLunch",
    "/basicSetting/autoLogin_statu",
    "/basicSetting/mainwindowWarn",
    "/basicSetting/hideMainWindow",
    "/basicSetting/closeMainWindow",
    "/basicSetting/closeVoice",
    "/basicSetting/openUnColsedDialog",
    "/basicSetting/alwaysCloseAllDialog",
    "/basicSetting/notAllIMUser",
    "/basicSetting/haveExistFriend",
    "/msgSetting/transfilepath",
    "/msgSetting/allowShaked",
    "/msgSetting/msgSync",
    "/msgSetting/NotAutoSort",
    "/msgSetting/showAllRoom",
    "/statusSetting/ChangeToAway",
    "/statusSetting/awayMinute",
    "/statusSetting/ChangeToBusy",
    "/statusSetting/IsAutoReply",
    "/statusSetting/AutoReplyStr",
    "/statusSetting/AutoReplyList",
    "/statusSetting/FastReplyStr",
    "/statusSetting/FastReplyList",
    "/hotkeySetting/CatchMsgHotkey",
    "/hotkeySetting/CutPictureHotKey",
    "/hotkeySetting/SendMsgFastkey",
    "/hotkeySetting/SnapHide",
    "/safeSetting/allAllowed",
    "/safeSetting/someAllowed",
    "/safeSetting/allForbidden",
    "/chatFontSetting/fontfamily",
    "/chatFontSetting/isbold",
    "/chatFontSetting/isitalic",
    "/chatFontSetting/fontsize",
    "/chatFontSetting/hasunderline",
    "/chatFontSetting/textcolor",
    "/HideSetting/NeedHide",
    "/privacySetting/CanSearch",
    "/privacySetting/CanViewCompanyInfo",
    "/privacySetting/CanViewMobile",
    "/msgSetting/airBubbleMode",
    "/BurnMsg/FirstOpenBurn",
    "/BurnMsg/FirstReadBurnMsg",
    "/RecallMsg/FirstRecallMsg",
    "/agentChatFontSetting/fontfamily",
    "/agentChatFontSetting/isbold",
    "/agentChatFontSetting/isitalic",
    "/agentChatFontSetting/fontsize",
    "/agentChatFontSetting/hasunderline",
    "/agentChatFontSetting/textcolor",
};

template <auto pField, typename Value>
Check holds(const Value &value)
{
    return [value](const SystemSetData &data) { return data.*pField == value; };
}

template <ChatFont SystemSetData::*pFont, auto pField, typename Value>
Check fontHolds(const Value &value)
{
    return [value](const SystemSetData &data) { return data.*pFont.*pField == value; };
}

} // namespace

class tst_SystemSetData : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(m_folder->isValid());
        // A home of its own for each test, so that none finds the files of another.
        qputenv("HOME", m_folder->filePath("home").toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", m_folder->filePath("home/.config").toLocal8Bit());
    }

    void theUsersKeysAreReadInOrder()
    {
        QCOMPARE(USER_KEYS.size(), 51);
        QCOMPARE(SystemSetData::userConfigKeys(), USER_KEYS);
    }

    void aNewObjectIsEmptyAndTouchesNoFile()
    {
        const SystemSetData data;
        QCOMPARE(data.m_strDefaultDataRoot, strAPP_DOCUMENT_IM_FILES_PATH());
        QVERIFY(data.m_strMsgFilePath.isEmpty() && data.m_strSendMsgFastkey.isEmpty() && data.m_strSnapHide.isEmpty());
        QVERIFY(data.m_listAutoReplyList.isEmpty() && data.m_listFastReplyList.isEmpty());
        QVERIFY(!data.m_chatFont.m_textColor.isValid() && !data.m_agentChatFont.m_textColor.isValid());
        QVERIFY(!data.m_chatFont.m_bIsBold && !data.m_chatFont.m_bIsItalic && !data.m_chatFont.m_bHasUnderline);
        QCOMPARE(data.m_chatFont.m_dFontSize, 0.0);
        QCOMPARE(data.m_agentChatFont.m_dFontSize, 0.0);
        QCOMPARE(data.m_iNeedHide, 0);
        QVERIFY(!data.m_bAirBubbleMode && !data.m_bHostFlag && !data.m_bShowAllRoom && !data.m_bNotAutoSort);
        QVERIFY(!data.m_bFirstOpenBurn && !data.m_bFirstReadBurnMsg && !data.m_bFirstRecallMsg);
        QVERIFY(!QFileInfo::exists(strAPP_DOCUMENT_IM_FILES_PATH()));
        QVERIFY(!QFileInfo::exists(strAPP_DOCUMENT_IM_PATH()));
    }

    void oneInstanceServesTheProcess()
    {
        QVERIFY(SystemSetData::instance());
        QCOMPARE(SystemSetData::instance(), SystemSetData::instance());
    }

    void withoutACommonFileTheDefaultRootIsMade()
    {
        SystemSetData data;
        data.m_strSaveToRoot = "from before";
        data.initCommonData();
        QCOMPARE(data.m_strSaveToRoot, QString());
        QCOMPARE(data.m_strSaveToMyDoc, QString());
        QCOMPARE(data.m_strSaveToMyChosen, QString());
        QCOMPARE(data.m_strMsgFilePath, strAPP_DOCUMENT_IM_FILES_PATH());
        QVERIFY(QDir(strAPP_DOCUMENT_IM_FILES_PATH()).exists());
    }

    void theCommonFileIsReadAndItsRootMade()
    {
        const QString strRoot = m_folder->filePath(QString::fromUtf8("数据/files"));
        {
            QSettings settings(strAPP_INFO_FILE_PATH(), QSettings::IniFormat);
            settings.setIniCodec("UTF-8");
            settings.setValue("/msgSetting/SaveToRoot", "1");
            settings.setValue("/msgSetting/SaveToMyDoc", "0");
            settings.setValue("/msgSetting/SaveToMyChosen", "2");
            settings.setValue("/msgSetting/msgfilepath", strRoot);
        }
        SystemSetData data;
        data.initCommonData();
        QCOMPARE(data.m_strSaveToRoot, QString("1"));
        QCOMPARE(data.m_strSaveToMyDoc, QString("0"));
        QCOMPARE(data.m_strSaveToMyChosen, QString("2"));
        QCOMPARE(data.m_strMsgFilePath, strRoot);
        QVERIFY(QDir(strRoot).exists());
        QVERIFY(!QDir(strAPP_DOCUMENT_IM_FILES_PATH()).exists());
    }

    void theCommonFileIsUtf8()
    {
        const QString strRoot = m_folder->filePath(QString::fromUtf8("数据"));
        QVERIFY(writeFile(strAPP_INFO_FILE_PATH(), "[msgSetting]\nmsgfilepath=" + strRoot.toUtf8() + "\n"));
        SystemSetData data;
        data.initCommonData();
        QCOMPARE(data.m_strMsgFilePath, strRoot);
    }

    void theUserFileIsUtf8AndStaysSoWhenRepaired()
    {
        const QString strReply = QString::fromUtf8("稍后回复");
        QVERIFY(writeFile(userFile(), "[statusSetting]\nAutoReplyStr=" + strReply.toUtf8() + "\n"));
        QCOMPARE(readUser({}).m_strAutoReplyStr, strReply);
        const QByteArray content = readBytes(userFile());
        QVERIFY(content.contains("AutoReplyStr=" + strReply.toUtf8()));
        QVERIFY(content.contains("CanSearch=1"));
    }

    void anUnreadableCommonFileGivesTheDefaults()
    {
        QVERIFY(QDir().mkpath(strAPP_INFO_FILE_PATH()));
        SystemSetData data;
        data.initCommonData();
        QCOMPARE(data.m_strMsgFilePath, strAPP_DOCUMENT_IM_FILES_PATH());
        QVERIFY(QDir(strAPP_DOCUMENT_IM_FILES_PATH()).exists());
    }

    void pathsDeriveFromTheUsersName()
    {
        SystemSetData data;
        data.m_strMsgFilePath = "relative/files";
        data.initData(USER);
        QCOMPARE(data.m_strUserName, QString(USER));
        QCOMPARE(data.m_strUserFolder, QString("relative/files/10000001"));
        QCOMPARE(data.m_strHeadImageFolder, QString("relative/files/10000001/designHeadImage/"));
        QCOMPARE(data.m_strUserConfigPath, QString("relative/files/10000001/newConfig.ini"));
        QCOMPARE(data.m_strUsersInfoPath, QString("relative/files/allusers/usersInfo.ini"));
        QCOMPARE(data.m_strAppInfoPath, strAPP_INFO_FILE_PATH());
        QCOMPARE(data.m_strDatabasePath, QDir::currentPath() + "/relative/files/10000001/localData.db");
        QCOMPARE(data.m_strDataLocation,
                 QFileInfo(QStandardPaths::writableLocation(QStandardPaths::DataLocation)).absoluteFilePath());
    }

    void withoutAUserFileTheDefaultsStand()
    {
        const SystemSetData data = readUser({});
        QCOMPARE(data.m_strSendMsgFastkey, QString("Ctrl+Enter"));
        QCOMPARE(data.m_strSnapHide, QString("1"));
        QVERIFY(data.m_bNotAutoSort);
        QVERIFY(data.m_bAirBubbleMode);
        QVERIFY(data.m_bFirstOpenBurn);
        QVERIFY(data.m_bFirstReadBurnMsg);
        QVERIFY(data.m_bFirstRecallMsg);
        QVERIFY(!data.m_bShowAllRoom);
        QVERIFY(!data.m_bHostFlag);
        QCOMPARE(data.m_strCanSearch, QString("1"));
        QCOMPARE(data.m_strCanViewCompanyInfo, QString("1"));
        QCOMPARE(data.m_strCanViewMobile, QString("1"));
        QVERIFY(data.m_listAutoReplyList.isEmpty());
        QVERIFY(data.m_listFastReplyList.isEmpty());
        QCOMPARE(data.m_strCloseVoice, QString());
        QCOMPARE(data.m_iNeedHide, 0);
        QVERIFY(!data.m_chatFont.m_textColor.isValid());
        QVERIFY(!data.m_agentChatFont.m_textColor.isValid());
    }

    void repairsAreWrittenToTheNewFileAndNothingElse()
    {
        readUser({});
        const QSettings settings(userFile(), QSettings::IniFormat);
        QStringList listKey = settings.allKeys();
        listKey.sort();
        QCOMPARE(listKey, QStringList({"agentChatFontSetting/fontSizeRewrited", "agentChatFontSetting/fontsize",
                                       "privacySetting/CanSearch", "privacySetting/CanViewCompanyInfo",
                                       "privacySetting/CanViewMobile"}));
        QCOMPARE(settings.value("privacySetting/CanSearch").toString(), QString("1"));
        QCOMPARE(settings.value("privacySetting/CanViewCompanyInfo").toString(), QString("1"));
        QCOMPARE(settings.value("privacySetting/CanViewMobile").toString(), QString("1"));
        QCOMPARE(settings.value("agentChatFontSetting/fontsize").toString(), QString("14"));
    }

    void aStoredValueReachesItsField_data()
    {
        using Data = SystemSetData;
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<Check>("check");
        const auto row = [](const char *pKey, const QVariant &value, const Check &check) {
            QTest::addRow("%s of %s", pKey, qPrintable(value.toString())) << QString(pKey) << value << check;
        };
        const QString strText = QString::fromUtf8("文本 x");
        row("/basicSetting/autoLogin", strText, holds<&Data::m_strAutoLogin>(strText));
        row("/basicSetting/autoLunch", strText, holds<&Data::m_strAutoLunch>(strText));
        row("/basicSetting/autoLogin_statu", strText, holds<&Data::m_strAutoLogin_statu>(strText));
        row("/basicSetting/mainwindowWarn", strText, holds<&Data::m_strMainwindowWarn>(strText));
        row("/basicSetting/hideMainWindow", strText, holds<&Data::m_strHideMainWindow>(strText));
        row("/basicSetting/closeMainWindow", strText, holds<&Data::m_strCloseMainWindow>(strText));
        row("/basicSetting/closeVoice", strText, holds<&Data::m_strCloseVoice>(strText));
        row("/basicSetting/openUnColsedDialog", strText, holds<&Data::m_strOpenUnColsedDialog>(strText));
        row("/basicSetting/alwaysCloseAllDialog", strText, holds<&Data::m_strAlwaysCloseAllDialog>(strText));
        row("/basicSetting/notAllIMUser", strText, holds<&Data::m_strNotAllIMUser>(strText));
        row("/basicSetting/haveExistFriend", strText, holds<&Data::m_strHaveExistFriend>(strText));
        row("/msgSetting/transfilepath", strText, holds<&Data::m_strTransFilePath>(strText));
        row("/msgSetting/allowShaked", strText, holds<&Data::m_strAllowShaked>(strText));
        row("/msgSetting/msgSync", strText, holds<&Data::m_strMsgSync>(strText));
        row("/msgSetting/NotAutoSort", "0", holds<&Data::m_bNotAutoSort>(true));
        row("/msgSetting/NotAutoSort", "", holds<&Data::m_bNotAutoSort>(true));
        row("/msgSetting/NotAutoSort", "1", holds<&Data::m_bNotAutoSort>(false));
        row("/msgSetting/NotAutoSort", "x", holds<&Data::m_bNotAutoSort>(false));
        row("/msgSetting/showAllRoom", "1", holds<&Data::m_bShowAllRoom>(true));
        row("/msgSetting/showAllRoom", "0", holds<&Data::m_bShowAllRoom>(false));
        row("/msgSetting/showAllRoom", "true", holds<&Data::m_bShowAllRoom>(false));
        row("/statusSetting/ChangeToAway", strText, holds<&Data::m_strChangeToAway>(strText));
        row("/statusSetting/awayMinute", strText, holds<&Data::m_strAwayMinute>(strText));
        row("/statusSetting/ChangeToBusy", strText, holds<&Data::m_strChangeToBusy>(strText));
        row("/statusSetting/IsAutoReply", strText, holds<&Data::m_strIsAutoReply>(strText));
        row("/statusSetting/AutoReplyStr", strText, holds<&Data::m_strAutoReplyStr>(strText));
        row("/statusSetting/AutoReplyList", QStringList({strText, "b,c"}),
            holds<&Data::m_listAutoReplyList>(QStringList({strText, "b,c"})));
        row("/statusSetting/FastReplyStr", strText, holds<&Data::m_strFastReplyStr>(strText));
        row("/statusSetting/FastReplyList", QStringList("one"), holds<&Data::m_listFastReplyList>(QStringList("one")));
        row("/hotkeySetting/CatchMsgHotkey", strText, holds<&Data::m_strCatchMsgHotkey>(strText));
        row("/hotkeySetting/CutPictureHotKey", strText, holds<&Data::m_strCutPictureHotKey>(strText));
        row("/hotkeySetting/SendMsgFastkey", "Enter", holds<&Data::m_strSendMsgFastkey>(QString("Enter")));
        row("/hotkeySetting/SendMsgFastkey", "", holds<&Data::m_strSendMsgFastkey>(QString("Ctrl+Enter")));
        row("/hotkeySetting/SnapHide", "0", holds<&Data::m_strSnapHide>(QString("0")));
        row("/hotkeySetting/SnapHide", "1", holds<&Data::m_strSnapHide>(QString("1")));
        row("/hotkeySetting/SnapHide", "abc", holds<&Data::m_strSnapHide>(QString("1")));
        row("/safeSetting/allAllowed", strText, holds<&Data::m_strAllAllowed>(strText));
        row("/safeSetting/someAllowed", strText, holds<&Data::m_strSomeAllowed>(strText));
        row("/safeSetting/allForbidden", strText, holds<&Data::m_strAllForbidden>(strText));
        row("/HideSetting/NeedHide", "3", holds<&Data::m_iNeedHide>(3));
        row("/HideSetting/NeedHide", "x", holds<&Data::m_iNeedHide>(0));
        row("/privacySetting/CanSearch", "0", holds<&Data::m_strCanSearch>(QString("0")));
        row("/privacySetting/CanSearch", "", holds<&Data::m_strCanSearch>(QString("1")));
        row("/privacySetting/CanViewCompanyInfo", "0", holds<&Data::m_strCanViewCompanyInfo>(QString("0")));
        row("/privacySetting/CanViewMobile", "0", holds<&Data::m_strCanViewMobile>(QString("0")));
        row("/msgSetting/airBubbleMode", "1", holds<&Data::m_bAirBubbleMode>(true));
        row("/msgSetting/airBubbleMode", "", holds<&Data::m_bAirBubbleMode>(true));
        row("/msgSetting/airBubbleMode", "0", holds<&Data::m_bAirBubbleMode>(false));
        row("/msgSetting/airBubbleMode", "true", holds<&Data::m_bAirBubbleMode>(false));
        row("/BurnMsg/FirstOpenBurn", "false", holds<&Data::m_bFirstOpenBurn>(false));
        row("/BurnMsg/FirstOpenBurn", false, holds<&Data::m_bFirstOpenBurn>(false));
        row("/BurnMsg/FirstOpenBurn", "0", holds<&Data::m_bFirstOpenBurn>(true));
        row("/BurnMsg/FirstReadBurnMsg", "false", holds<&Data::m_bFirstReadBurnMsg>(false));
        row("/BurnMsg/FirstReadBurnMsg", "False", holds<&Data::m_bFirstReadBurnMsg>(true));
        row("/RecallMsg/FirstRecallMsg", "false", holds<&Data::m_bFirstRecallMsg>(false));
        row("/RecallMsg/FirstRecallMsg", "", holds<&Data::m_bFirstRecallMsg>(true));
        fontRows<&Data::m_chatFont>(row, "/chatFontSetting/");
        fontRows<&Data::m_agentChatFont>(row, "/agentChatFontSetting/");
    }

    void aStoredValueReachesItsField()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(Check, check);
        QVERIFY(USER_KEYS.contains(key));
        QVERIFY(check(readUser({{key, value}})));
    }

    void aStoredPrivacyChoiceIsNotOverwritten()
    {
        readUser({{"/privacySetting/CanSearch", "0"}});
        QCOMPARE(QSettings(userFile(), QSettings::IniFormat).value("/privacySetting/CanSearch").toString(),
                 QString("0"));
    }

    void theReceiveFolderDefaultsToTheDefaultRoot()
    {
        const SystemSetData data = readUser({{"/msgSetting/transfilepath", ""}});
        const QString strExpected = strAPP_DOCUMENT_IM_FILES_PATH() + "/10000001/fileRec";
        QVERIFY(data.m_strMsgFilePath != data.m_strDefaultDataRoot);
        QCOMPARE(data.m_strTransFilePath, strExpected);
        QCOMPARE(data.m_strDefaultReceiveFolder, strExpected);
    }

    void theChatFontIsRaisedOnceFromTwelve_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<double>("size");
        QTest::addColumn<QString>("storedSize");
        QTest::addColumn<bool>("flag");
        const QString strSize = "/chatFontSetting/fontsize";
        const QString strFlag = "/chatFontSetting/fontSizeRewrited";
        QTest::newRow("no file") << QVariantMap() << 0.0 << "" << false;
        QTest::newRow("twelve") << QVariantMap({{strSize, 12}}) << 14.0 << "14" << true;
        QTest::newRow("twelve, flag false")
            << QVariantMap({{strSize, "12.0"}, {strFlag, false}}) << 14.0 << "14" << true;
        QTest::newRow("twelve chosen later") << QVariantMap({{strSize, 12}, {strFlag, true}}) << 12.0 << "12" << true;
        QTest::newRow("another size") << QVariantMap({{strSize, 16}}) << 16.0 << "16" << false;
        QTest::newRow("not quite twelve") << QVariantMap({{strSize, 12.5}}) << 12.5 << "12.5" << false;
    }

    void theChatFontIsRaisedOnceFromTwelve()
    {
        QFETCH(QVariantMap, stored);
        const SystemSetData data = readUser(stored);
        QTEST(data.m_chatFont.m_dFontSize, "size");
        const QSettings settings(userFile(), QSettings::IniFormat);
        QTEST(settings.value("/chatFontSetting/fontsize").toString(), "storedSize");
        QTEST(settings.value("/chatFontSetting/fontSizeRewrited").toBool(), "flag");
    }

    void theAgentFontIsRewrittenOnceAtAnySize_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<double>("size");
        const QString strSize = "/agentChatFontSetting/fontsize";
        const QString strFlag = "/agentChatFontSetting/fontSizeRewrited";
        QTest::newRow("no file") << QVariantMap() << 14.0;
        QTest::newRow("twelve") << QVariantMap({{strSize, 12}}) << 14.0;
        QTest::newRow("another size") << QVariantMap({{strSize, 20}}) << 14.0;
        QTest::newRow("chosen later") << QVariantMap({{strSize, 20}, {strFlag, true}}) << 20.0;
        QTest::newRow("twelve chosen later") << QVariantMap({{strSize, 12}, {strFlag, true}}) << 12.0;
    }

    void theAgentFontIsRewrittenOnceAtAnySize()
    {
        QFETCH(QVariantMap, stored);
        const SystemSetData data = readUser(stored);
        QTEST(data.m_agentChatFont.m_dFontSize, "size");
        const QSettings settings(userFile(), QSettings::IniFormat);
        QVERIFY(settings.value("/agentChatFontSetting/fontSizeRewrited").toBool());
        QCOMPARE(settings.value("/agentChatFontSetting/fontsize").toDouble(), data.m_agentChatFont.m_dFontSize);
    }

    void aSecondReadFindsTheRepairsDone()
    {
        readUser({{"/chatFontSetting/fontsize", 12}});
        {
            QSettings settings(userFile(), QSettings::IniFormat);
            settings.setValue("/chatFontSetting/fontsize", 12);
            settings.setValue("/agentChatFontSetting/fontsize", 9);
        }
        const SystemSetData data = readUser({});
        QCOMPARE(data.m_chatFont.m_dFontSize, 12.0);
        QCOMPARE(data.m_agentChatFont.m_dFontSize, 9.0);
    }

    void aFurtherUserOverwritesEverything()
    {
        SystemSetData data = readUser({{"/basicSetting/closeVoice", "1"},
                                       {"/statusSetting/AutoReplyList", QStringList({"a", "b"})},
                                       {"/chatFontSetting/textcolor", "#123456"},
                                       {"/HideSetting/NeedHide", 2},
                                       {"/msgSetting/showAllRoom", "1"}});
        QVERIFY(data.m_chatFont.m_textColor.isValid());
        data.initData("other");
        QCOMPARE(data.m_strUserName, QString("other"));
        QCOMPARE(data.m_strCloseVoice, QString());
        QVERIFY(data.m_listAutoReplyList.isEmpty());
        QVERIFY(!data.m_chatFont.m_textColor.isValid());
        QCOMPARE(data.m_iNeedHide, 0);
        QVERIFY(!data.m_bShowAllRoom);
    }

    void anUnreadableUserFileGivesTheDefaults()
    {
        QVERIFY(QDir().mkpath(userFile()));
        const SystemSetData data = readUser({});
        QCOMPARE(data.m_strSendMsgFastkey, QString("Ctrl+Enter"));
        QCOMPARE(data.m_strCanSearch, QString("1"));
    }

    void aBrokenUserFileGivesTheDefaultsAndIsRepaired()
    {
        QVERIFY(writeFile(userFile(), QByteArray("[basicSetting\n=\"\\x\0[", 20) + QByteArray(100, '\0')));
        const SystemSetData data = readUser({});
        QCOMPARE(data.m_strSendMsgFastkey, QString("Ctrl+Enter"));
        QCOMPARE(data.m_strCanSearch, QString("1"));
        QCOMPARE(QSettings(userFile(), QSettings::IniFormat).value("/privacySetting/CanSearch").toString(),
                 QString("1"));
    }

    void theReplyListsAreReplaced()
    {
        SystemSetData data;
        data.setAutoReplylist({"a"});
        data.setAutoReplylist({"b", "c"});
        data.setFastReplylist({"d"});
        QCOMPARE(data.m_listAutoReplyList, QStringList({"b", "c"}));
        QCOMPARE(data.m_listFastReplyList, QStringList({"d"}));
    }

private:
    template <ChatFont SystemSetData::*pFont, typename Row>
    static void fontRows(const Row &row, const QByteArray &group)
    {
        row(group + "fontfamily", "SimSun", fontHolds<pFont, &ChatFont::m_strFontFamily>(QString("SimSun")));
        row(group + "isbold", true, fontHolds<pFont, &ChatFont::m_bIsBold>(true));
        row(group + "isitalic", true, fontHolds<pFont, &ChatFont::m_bIsItalic>(true));
        row(group + "hasunderline", true, fontHolds<pFont, &ChatFont::m_bHasUnderline>(true));
        row(group + "textcolor", "#102030", fontHolds<pFont, &ChatFont::m_textColor>(QColor(0x10, 0x20, 0x30)));
        row(group + "textcolor", "nonsense", fontHolds<pFont, &ChatFont::m_textColor>(QColor()));
    }

    QString userFile() const { return m_folder->filePath(QString(USER) + "/newConfig.ini"); }

    // Stores the values in the user's file and reads it into fresh settings.
    SystemSetData readUser(const QVariantMap &mapStored) const
    {
        if (!mapStored.isEmpty()) {
            QSettings settings(userFile(), QSettings::IniFormat);
            settings.setIniCodec("UTF-8");
            for (auto it = mapStored.cbegin(); it != mapStored.cend(); ++it) {
                settings.setValue(it.key(), it.value());
            }
        }
        SystemSetData data;
        data.m_strMsgFilePath = m_folder->path();
        data.initData(USER);
        return data;
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_SystemSetData)
#include "tst_SystemSetData.moc"
