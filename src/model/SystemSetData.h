#pragma once

// The user's settings in memory, and the paths that derive from the user's name. One instance serves the process; the
// host runs initCommonData at start and initData after login, and consumers read the fields through the shared context.
// Most settings stay the texts of the INI file ("0", "1"), which their consumers compare. The settings dialogs of the
// host write the files; this class writes back only the few values that it repairs while reading. On the GUI thread;
// there is no lock.

#include <QColor>
#include <QString>
#include <QStringList>

/// The font of one kind of chat window: the keys of its section, as stored.
struct ChatFont
{
    /// Key fontfamily.
    QString m_strFontFamily;
    /// Key isbold.
    bool m_bIsBold = false;
    /// Key isitalic.
    bool m_bIsItalic = false;
    /// Key fontsize; 0 when none was ever stored.
    double m_dFontSize = 0.0;
    /// Key hasunderline.
    bool m_bHasUnderline = false;
    /// Key textcolor; invalid when none, or no colour, was stored.
    QColor m_textColor;
};

class SystemSetData
{
public:
    // The keys that hosts write as well.
    /// Key of m_strCloseVoice, in the user's file.
    static constexpr const char *cCloseVoiceKey = "/basicSetting/closeVoice";
    /// Key of m_strMsgFilePath, in the file that all users share.
    static constexpr const char *cMsgFilePathKey = "/msgSetting/msgfilepath";
    /// Key of m_strTransFilePath, in the user's file.
    static constexpr const char *cTransFilePathKey = "/msgSetting/transfilepath";

    // Texts of the keys named, as they are stored and empty when they are not; what a text means is up to its reader.

    // Section basicSetting.
    /// Key autoLunch.
    QString m_strAutoLunch;
    /// Key autoLogin.
    QString m_strAutoLogin;
    /// Key autoLogin_statu.
    QString m_strAutoLogin_statu;
    /// Key mainwindowWarn.
    QString m_strMainwindowWarn;
    /// Key hideMainWindow.
    QString m_strHideMainWindow;
    /// Key closeMainWindow.
    QString m_strCloseMainWindow;
    /// Key closeVoice: "1" keeps the ring of an incoming call silent.
    QString m_strCloseVoice;
    /// Key openUnColsedDialog.
    QString m_strOpenUnColsedDialog;

    // Section msgSetting; the first four stand in the file that all users share.
    /// Key SaveToRoot.
    QString m_strSaveToRoot;
    /// Key SaveToMyDoc.
    QString m_strSaveToMyDoc;
    /// Key SaveToMyChosen.
    QString m_strSaveToMyChosen;
    /// Key msgfilepath: the root of all users' folders; the default data root when none is stored.
    QString m_strMsgFilePath;
    /// Key transfilepath: the folder for received files; the default receive folder when none is stored.
    QString m_strTransFilePath;
    /// Two texts of the host, carried along and not read.
    QString m_strFilePlaceText1;
    QString m_strFilePlaceText2;
    /// Key allowShaked.
    QString m_strAllowShaked;

    // Section statusSetting.
    /// Key ChangeToAway.
    QString m_strChangeToAway;
    /// Key awayMinute.
    QString m_strAwayMinute;
    /// Key ChangeToBusy.
    QString m_strChangeToBusy;
    /// Key IsAutoReply.
    QString m_strIsAutoReply;
    /// Key AutoReplyStr.
    QString m_strAutoReplyStr;
    /// Key AutoReplyList; empty when none is stored.
    QStringList m_listAutoReplyList;
    /// Key FastReplyStr.
    QString m_strFastReplyStr;
    /// Key FastReplyList; empty when none is stored.
    QStringList m_listFastReplyList;

    // Section hotkeySetting.
    /// Key CatchMsgHotkey.
    QString m_strCatchMsgHotkey;
    /// Key CutPictureHotKey.
    QString m_strCutPictureHotKey;
    /// Key SendMsgFastkey; "Ctrl+Enter" when none is stored.
    QString m_strSendMsgFastkey;
    /// Key SnapHide: "0" when "0" is stored, else "1".
    QString m_strSnapHide;

    // Section safeSetting.
    /// Key allAllowed.
    QString m_strAllAllowed;
    /// Key someAllowed.
    QString m_strSomeAllowed;
    /// Key allForbidden.
    QString m_strAllForbidden;

    // Section basicSetting again.
    /// Key alwaysCloseAllDialog.
    QString m_strAlwaysCloseAllDialog;
    /// Key notAllIMUser.
    QString m_strNotAllIMUser;
    /// Key haveExistFriend.
    QString m_strHaveExistFriend;

    /// Section chatFontSetting; a size of 12 is raised to 14 once.
    ChatFont m_chatFont;
    /// Section agentChatFontSetting, for the customer-service window; any size is set to 14 once.
    ChatFont m_agentChatFont;

    /// Key NeedHide of HideSetting; 0 when none is stored.
    int m_iNeedHide = 0;

    // Defaults.
    /// Four texts of the host, carried along and not read.
    QString m_strDefaultText1;
    QString m_strDefaultText2;
    /// The folder for received files of a user who chose none.
    QString m_strDefaultReceiveFolder;
    /// The root of all users' folders while none is chosen.
    QString m_strDefaultDataRoot;
    QString m_strDefaultText3;
    QString m_strDefaultText4;

    /// Key msgSync of msgSetting.
    QString m_strMsgSync;

    // Flags.
    /// Key airBubbleMode of msgSetting: true for "1" and when none is stored.
    bool m_bAirBubbleMode = false;
    /// A switch of the host that is off from the start and not read from a file.
    bool m_bHostFlag = false;
    /// Key showAllRoom of msgSetting: true for "1" alone.
    bool m_bShowAllRoom = false;
    /// Key FirstOpenBurn of BurnMsg: true unless "false" is stored.
    bool m_bFirstOpenBurn = false;
    /// Key FirstReadBurnMsg of BurnMsg: true unless "false" is stored.
    bool m_bFirstReadBurnMsg = false;
    /// Key NotAutoSort of msgSetting: true for "0" and when none is stored.
    bool m_bNotAutoSort = false;
    /// Key FirstRecallMsg of RecallMsg: true unless "false" is stored.
    bool m_bFirstRecallMsg = false;

    // What derives from the user's name.
    /// The user id that initData was given.
    QString m_strUserName;
    /// The user's own folder.
    QString m_strUserFolder;
    /// The system's folder for the application's data.
    QString m_strDataLocation;
    /// The file of the user's settings.
    QString m_strUserConfigPath;
    /// The file about all users of the machine.
    QString m_strUsersInfoPath;
    /// The file of the settings that all users share.
    QString m_strAppInfoPath;
    /// The file of the user's local store.
    QString m_strDatabasePath;

    // Section privacySetting: "1" when none is stored.
    /// Key CanSearch.
    QString m_strCanSearch;
    /// Key CanViewCompanyInfo.
    QString m_strCanViewCompanyInfo;
    /// Key CanViewMobile.
    QString m_strCanViewMobile;

    /// The folder of the user's head images, with a "/" at its end.
    QString m_strHeadImageFolder;

    /// Everything empty or off but for the default data root. Touches no file.
    SystemSetData();

    /// The process's settings, made at the first call and never deleted.
    static SystemSetData *instance();

    /// Reads the settings that all users share and makes the folder of all users' folders when it is missing. To run
    /// before initData. A missing or unreadable file gives the defaults.
    void initCommonData();

    /// Derives the paths of that user and reads the user's settings; values that need a repair are written back. A
    /// missing or unreadable file gives the defaults. A further user overwrites all that is read or derived here, but
    /// the default folder for received files, which only a user without a folder of their own sets.
    void initData(QString strUserName);

    /// Replaces the list of automatic replies.
    void setAutoReplylist(const QStringList &listReply) { m_listAutoReplyList = listReply; }

    /// Replaces the list of quick replies.
    void setFastReplylist(const QStringList &listReply) { m_listFastReplyList = listReply; }

    /// The keys that initData reads, in their order; those that only tell whether a repair was done are not among them.
    static QStringList userConfigKeys();

private:
    void initUserPaths(const QString &strUserName);

    static SystemSetData *m_instance;
};
