#include "model/SystemSetData.h"

#include "common/AppPaths.h"
#include "model/StoreFileName.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QVariant>

#include <iterator>

namespace {

using Data = SystemSetData;

const QString cOnText = QStringLiteral("1");
const QString cOffText = QStringLiteral("0");
const QString cFalseText = QStringLiteral("false");
const QString cDefaultSendKey = QStringLiteral("Ctrl+Enter");

constexpr double cOldDefaultFontSize = 12.0;
constexpr int cDefaultFontSize = 14;
const QString cChatFontRewritten = QStringLiteral("/chatFontSetting/fontSizeRewrited");
const QString cAgentFontRewritten = QStringLiteral("/agentChatFontSetting/fontSizeRewrited");

// One key of an INI file and the rule by which its value becomes a field.
struct SettingRow
{
    const char *m_pKey;
    void (*m_pRead)(Data &data, QSettings &settings, const QString &strKey);
};

void assign(QString &strField, const QVariant &value)
{
    strField = value.toString();
}

void assign(bool &bField, const QVariant &value)
{
    bField = value.toBool();
}

void assign(int &iField, const QVariant &value)
{
    iField = value.toInt();
}

void assign(double &dField, const QVariant &value)
{
    dField = value.toDouble();
}

void assign(QColor &field, const QVariant &value)
{
    field.setNamedColor(value.toString());
}

QString readText(const QSettings &settings, const QString &strKey)
{
    return settings.value(strKey).toString();
}

// The value as it is; empty, 0, false or invalid when absent.
template <auto pField>
void plain(Data &data, QSettings &settings, const QString &strKey)
{
    assign(data.*pField, settings.value(strKey));
}

template <void (Data::*pSetter)(const QStringList &)>
void list(Data &data, QSettings &settings, const QString &strKey)
{
    (data.*pSetter)(settings.value(strKey).toStringList());
}

template <ChatFont Data::*pFont, auto pField>
void font(Data &data, QSettings &settings, const QString &strKey)
{
    assign(data.*pFont.*pField, settings.value(strKey));
}

template <bool Data::*pField>
void trueForOne(Data &data, QSettings &settings, const QString &strKey)
{
    data.*pField = readText(settings, strKey) == cOnText;
}

template <bool Data::*pField>
void trueForEmptyOrOne(Data &data, QSettings &settings, const QString &strKey)
{
    const QString strValue = readText(settings, strKey);
    data.*pField = strValue.isEmpty() || strValue == cOnText;
}

// Deliberate: "0" means true.
template <bool Data::*pField>
void trueForEmptyOrZero(Data &data, QSettings &settings, const QString &strKey)
{
    const QString strValue = readText(settings, strKey);
    data.*pField = strValue.isEmpty() || strValue == cOffText;
}

template <bool Data::*pField>
void trueUnlessFalse(Data &data, QSettings &settings, const QString &strKey)
{
    data.*pField = readText(settings, strKey) != cFalseText;
}

template <QString Data::*pField>
void zeroOrOne(Data &data, QSettings &settings, const QString &strKey)
{
    data.*pField = readText(settings, strKey) == cOffText ? cOffText : cOnText;
}

template <QString Data::*pField>
void onWhenEmptyAndStored(Data &data, QSettings &settings, const QString &strKey)
{
    data.*pField = readText(settings, strKey);
    if ((data.*pField).isEmpty()) {
        data.*pField = cOnText;
        settings.setValue(strKey, cOnText);
    }
}

void sendKey(Data &data, QSettings &settings, const QString &strKey)
{
    const QString strValue = readText(settings, strKey);
    data.m_strSendMsgFastkey = strValue.isEmpty() ? cDefaultSendKey : strValue;
}

void dataRoot(Data &data, QSettings &settings, const QString &strKey)
{
    const QString strValue = readText(settings, strKey);
    data.m_strMsgFilePath = strValue.isEmpty() ? data.m_strDefaultDataRoot : strValue;
}

void receiveFolder(Data &data, QSettings &settings, const QString &strKey)
{
    data.m_strTransFilePath = readText(settings, strKey);
    if (data.m_strTransFilePath.isEmpty()) {
        // Deliberately the default root, also when msgfilepath names another one.
        data.m_strDefaultReceiveFolder =
            data.m_strDefaultDataRoot + QLatin1Char('/') + data.m_strUserName + QLatin1String("/fileRec");
        data.m_strTransFilePath = data.m_strDefaultReceiveFolder;
    }
}

void rewriteFontSizeOnce(double &dSize, QSettings &settings, const QString &strSizeKey, const QString &strFlagKey)
{
    if (settings.value(strFlagKey).toBool()) {
        return;
    }
    dSize = cDefaultFontSize;
    settings.setValue(strSizeKey, cDefaultFontSize);
    settings.setValue(strFlagKey, true);
}

// Raises the old default once, so that a 12 chosen later stays.
void chatFontSize(Data &data, QSettings &settings, const QString &strKey)
{
    double &dSize = data.m_chatFont.m_dFontSize;
    assign(dSize, settings.value(strKey));
    if (dSize == cOldDefaultFontSize) {
        rewriteFontSizeOnce(dSize, settings, strKey, cChatFontRewritten);
    }
}

// Deliberately unlike the chat font: rewritten once at any size.
void agentFontSize(Data &data, QSettings &settings, const QString &strKey)
{
    double &dSize = data.m_agentChatFont.m_dFontSize;
    assign(dSize, settings.value(strKey));
    rewriteFontSizeOnce(dSize, settings, strKey, cAgentFontRewritten);
}

// clang-format off
constexpr SettingRow cCommonRows[] = {
    {"/msgSetting/SaveToRoot",                 plain<&Data::m_strSaveToRoot>},
    {"/msgSetting/SaveToMyDoc",                plain<&Data::m_strSaveToMyDoc>},
    {"/msgSetting/SaveToMyChosen",             plain<&Data::m_strSaveToMyChosen>},
    {Data::cMsgFilePathKey,                    dataRoot},
};

constexpr SettingRow cUserRows[] = {
    {"/basicSetting/autoLogin",                plain<&Data::m_strAutoLogin>},
    {"/basicSetting/autoLunch",                plain<&Data::m_strAutoLunch>},
    {"/basicSetting/autoLogin_statu",          plain<&Data::m_strAutoLogin_statu>},
    {"/basicSetting/mainwindowWarn",           plain<&Data::m_strMainwindowWarn>},
    {"/basicSetting/hideMainWindow",           plain<&Data::m_strHideMainWindow>},
    {"/basicSetting/closeMainWindow",          plain<&Data::m_strCloseMainWindow>},
    {Data::cCloseVoiceKey,                     plain<&Data::m_strCloseVoice>},
    {"/basicSetting/openUnColsedDialog",       plain<&Data::m_strOpenUnColsedDialog>},
    {"/basicSetting/alwaysCloseAllDialog",     plain<&Data::m_strAlwaysCloseAllDialog>},
    {"/basicSetting/notAllIMUser",             plain<&Data::m_strNotAllIMUser>},
    {"/basicSetting/haveExistFriend",          plain<&Data::m_strHaveExistFriend>},
    {Data::cTransFilePathKey,                  receiveFolder},
    {"/msgSetting/allowShaked",                plain<&Data::m_strAllowShaked>},
    {"/msgSetting/msgSync",                    plain<&Data::m_strMsgSync>},
    {"/msgSetting/NotAutoSort",                trueForEmptyOrZero<&Data::m_bNotAutoSort>},
    {"/msgSetting/showAllRoom",                trueForOne<&Data::m_bShowAllRoom>},
    {"/statusSetting/ChangeToAway",            plain<&Data::m_strChangeToAway>},
    {"/statusSetting/awayMinute",              plain<&Data::m_strAwayMinute>},
    {"/statusSetting/ChangeToBusy",            plain<&Data::m_strChangeToBusy>},
    {"/statusSetting/IsAutoReply",             plain<&Data::m_strIsAutoReply>},
    {"/statusSetting/AutoReplyStr",            plain<&Data::m_strAutoReplyStr>},
    {"/statusSetting/AutoReplyList",           list<&Data::setAutoReplylist>},
    {"/statusSetting/FastReplyStr",            plain<&Data::m_strFastReplyStr>},
    {"/statusSetting/FastReplyList",           list<&Data::setFastReplylist>},
    {"/hotkeySetting/CatchMsgHotkey",          plain<&Data::m_strCatchMsgHotkey>},
    {"/hotkeySetting/CutPictureHotKey",        plain<&Data::m_strCutPictureHotKey>},
    {"/hotkeySetting/SendMsgFastkey",          sendKey},
    {"/hotkeySetting/SnapHide",                zeroOrOne<&Data::m_strSnapHide>},
    {"/safeSetting/allAllowed",                plain<&Data::m_strAllAllowed>},
    {"/safeSetting/someAllowed",               plain<&Data::m_strSomeAllowed>},
    {"/safeSetting/allForbidden",              plain<&Data::m_strAllForbidden>},
    {"/chatFontSetting/fontfamily",            font<&Data::m_chatFont, &ChatFont::m_strFontFamily>},
    {"/chatFontSetting/isbold",                font<&Data::m_chatFont, &ChatFont::m_bIsBold>},
    {"/chatFontSetting/isitalic",              font<&Data::m_chatFont, &ChatFont::m_bIsItalic>},
    {"/chatFontSetting/fontsize",              chatFontSize},
    {"/chatFontSetting/hasunderline",          font<&Data::m_chatFont, &ChatFont::m_bHasUnderline>},
    {"/chatFontSetting/textcolor",             font<&Data::m_chatFont, &ChatFont::m_textColor>},
    {"/HideSetting/NeedHide",                  plain<&Data::m_iNeedHide>},
    {"/privacySetting/CanSearch",              onWhenEmptyAndStored<&Data::m_strCanSearch>},
    {"/privacySetting/CanViewCompanyInfo",     onWhenEmptyAndStored<&Data::m_strCanViewCompanyInfo>},
    {"/privacySetting/CanViewMobile",          onWhenEmptyAndStored<&Data::m_strCanViewMobile>},
    {"/msgSetting/airBubbleMode",              trueForEmptyOrOne<&Data::m_bAirBubbleMode>},
    {"/BurnMsg/FirstOpenBurn",                 trueUnlessFalse<&Data::m_bFirstOpenBurn>},
    {"/BurnMsg/FirstReadBurnMsg",              trueUnlessFalse<&Data::m_bFirstReadBurnMsg>},
    {"/RecallMsg/FirstRecallMsg",              trueUnlessFalse<&Data::m_bFirstRecallMsg>},
    {"/agentChatFontSetting/fontfamily",       font<&Data::m_agentChatFont, &ChatFont::m_strFontFamily>},
    {"/agentChatFontSetting/isbold",           font<&Data::m_agentChatFont, &ChatFont::m_bIsBold>},
    {"/agentChatFontSetting/isitalic",         font<&Data::m_agentChatFont, &ChatFont::m_bIsItalic>},
    {"/agentChatFontSetting/fontsize",         agentFontSize},
    {"/agentChatFontSetting/hasunderline",     font<&Data::m_agentChatFont, &ChatFont::m_bHasUnderline>},
    {"/agentChatFontSetting/textcolor",        font<&Data::m_agentChatFont, &ChatFont::m_textColor>},
};
// clang-format on

template <std::size_t iCount>
void readRows(Data &data, const SettingRow (&rows)[iCount], const QString &strFile)
{
    QSettings settings(strFile, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    for (const SettingRow &row : rows) {
        row.m_pRead(data, settings, QLatin1String(row.m_pKey));
    }
}

QString absolute(const QString &strPath)
{
    return QFileInfo(strPath).absoluteFilePath();
}

} // namespace

SystemSetData *SystemSetData::m_instance = nullptr;

SystemSetData::SystemSetData() : m_strDefaultDataRoot(strAPP_DOCUMENT_IM_FILES_PATH()) {}

SystemSetData *SystemSetData::instance()
{
    if (m_instance == nullptr) {
        m_instance = new SystemSetData;
    }
    return m_instance;
}

void SystemSetData::initCommonData()
{
    readRows(*this, cCommonRows, strAPP_INFO_FILE_PATH());
    const QDir folder(absolute(m_strMsgFilePath));
    if (!folder.exists()) {
        folder.mkpath(folder.path());
    }
}

// By value: a caller may hand over one of the members that are written here.
void SystemSetData::initData(QString strUserName)
{
    initUserPaths(strUserName);
    readRows(*this, cUserRows, m_strUserConfigPath);
}

QStringList SystemSetData::userConfigKeys()
{
    QStringList listKey;
    for (const SettingRow &row : cUserRows) {
        listKey.append(QLatin1String(row.m_pKey));
    }
    return listKey;
}

void SystemSetData::initUserPaths(const QString &strUserName)
{
    m_strUserName = strUserName;
    m_strUserFolder = m_strMsgFilePath + QLatin1Char('/') + strUserName;
    m_strHeadImageFolder = m_strUserFolder + QLatin1String("/designHeadImage/");
    m_strDataLocation = absolute(QStandardPaths::writableLocation(QStandardPaths::DataLocation));
    m_strUserConfigPath = m_strUserFolder + QLatin1String("/newConfig.ini");
    m_strUsersInfoPath = m_strMsgFilePath + QLatin1String("/allusers/usersInfo.ini");
    m_strAppInfoPath = strAPP_INFO_FILE_PATH();
    m_strDatabasePath =
        absolute(m_strMsgFilePath) + QLatin1Char('/') + strUserName + QLatin1Char('/') + QLatin1String(cStoreFileName);
}
