// The settings of a user: the keys that are read, the field of each, its default.

#include "common/AppPaths.h"
#include "model/SystemSetTest.h"

#include <QFileInfo>
#include <QTest>

#include <functional>

using Check = std::function<bool(const SystemSetData &)>;
Q_DECLARE_METATYPE(Check)

namespace {

/// The keys of a user's file in the order of reading.
const QStringList cUserKeys = {
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

class tst_SystemSetData : public SystemSetTest
{
    Q_OBJECT

private slots:
    void theUsersKeysAreReadInOrder()
    {
        QCOMPARE(cUserKeys.size(), 51);
        QCOMPARE(SystemSetData::userConfigKeys(), cUserKeys);
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
        QVERIFY(cUserKeys.contains(key));
        QVERIFY(check(readUser({{key, value}})));
    }

    void theReceiveFolderDefaultsToTheDefaultRoot()
    {
        const SystemSetData data = readUser({{"/msgSetting/transfilepath", ""}});
        const QString strExpected = strAPP_DOCUMENT_IM_FILES_PATH() + "/10000001/fileRec";
        QVERIFY(data.m_strMsgFilePath != data.m_strDefaultDataRoot);
        QCOMPARE(data.m_strTransFilePath, strExpected);
        QCOMPARE(data.m_strDefaultReceiveFolder, strExpected);
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
        const QString strReceived = data.m_strDefaultDataRoot + "/other/fileRec";
        QCOMPARE(data.m_strTransFilePath, strReceived);
        // A user with a folder of their own leaves the default one as it was.
        data.m_strMsgFilePath = inFolder({});
        QVERIFY(!readUser({{"/msgSetting/transfilepath", "/mine"}}).m_strUserName.isEmpty());
        data.initData(cUser);
        QCOMPARE(data.m_strTransFilePath, QString("/mine"));
        QCOMPARE(data.m_strDefaultReceiveFolder, strReceived);
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SystemSetData, Guiless)
#include "tst_SystemSetData.moc"
