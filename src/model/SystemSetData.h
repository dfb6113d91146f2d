#pragma once

// The user's settings in memory, and the paths that derive from the user's name. One instance serves the process; the
// host runs initCommonData at start and initData after login, and consumers read the fields through the shared context.
// Most settings stay the texts of the INI file ("0", "1"), which their consumers compare. The settings dialogs of the
// host write the files; this class writes back only the few values that it repairs while reading. On the GUI thread;
// there is no lock.

#include <QColor>
#include <QString>
#include <QStringList>

/// The font of one kind of chat window.
struct ChatFont
{
    /// The family's name; empty: none chosen.
    QString m_strFontFamily;
    /// Heavy strokes.
    bool m_bIsBold = false;
    /// Slanted.
    bool m_bIsItalic = false;
    /// The size in pixels; 0 when none was ever stored.
    double m_dFontSize = 0.0;
    /// A line below the text.
    bool m_bHasUnderline = false;
    /// The colour of the text; invalid: none chosen.
    QColor m_textColor;
};

class SystemSetData
{
public:
    // Basic settings.
    /// "1" starts the client with the system.
    QString m_strAutoLunch;
    /// "1" signs in at start.
    QString m_strAutoLogin;
    /// The status to sign in with.
    QString m_strAutoLogin_statu;
    /// Whether the main window warns.
    QString m_strMainwindowWarn;
    /// Whether the main window hides.
    QString m_strHideMainWindow;
    /// What closing the main window does.
    QString m_strCloseMainWindow;
    /// "1" keeps the ring of an incoming call silent.
    QString m_strCloseVoice;
    /// Whether dialogs that were left open come back.
    QString m_strOpenUnColsedDialog;

    // Where files are kept.
    /// Whether files are kept under the application.
    QString m_strSaveToRoot;
    /// Whether files are kept under the documents folder.
    QString m_strSaveToMyDoc;
    /// Whether files are kept in a folder of the user's choice.
    QString m_strSaveToMyChosen;
    /// The root of all users' folders.
    QString m_strMsgFilePath;
    /// The folder for received files.
    QString m_strTransFilePath;
    /// Two texts of the host, carried along and not read.
    QString m_strFilePlaceText1;
    QString m_strFilePlaceText2;
    /// Whether others may shake the window.
    QString m_strAllowShaked;

    // Status and replies.
    /// Whether idle time changes the status.
    QString m_strChangeToAway;
    /// After how many minutes it does.
    QString m_strAwayMinute;
    /// Whether a full screen changes the status.
    QString m_strChangeToBusy;
    /// Whether messages are answered automatically.
    QString m_strIsAutoReply;
    /// The chosen automatic reply.
    QString m_strAutoReplyStr;
    /// The automatic replies to choose from.
    QStringList m_listAutoReplyList;
    /// The chosen quick reply.
    QString m_strFastReplyStr;
    /// The quick replies to choose from.
    QStringList m_listFastReplyList;

    // Hot keys.
    /// The key that fetches waiting messages.
    QString m_strCatchMsgHotkey;
    /// The key that takes a screen shot.
    QString m_strCutPictureHotKey;
    /// The key that sends a message.
    QString m_strSendMsgFastkey;
    /// "1" hides the window for a screen shot; "0" or "1", nothing else once read.
    QString m_strSnapHide;

    // Safety.
    /// Whether everybody may become a contact.
    QString m_strAllAllowed;
    /// Whether that needs the user's consent.
    QString m_strSomeAllowed;
    /// Whether nobody may.
    QString m_strAllForbidden;

    // More basic settings.
    /// Whether all dialogs close together without a question.
    QString m_strAlwaysCloseAllDialog;
    /// Whether somebody invited does not use the client.
    QString m_strNotAllIMUser;
    /// Whether somebody invited is a contact already.
    QString m_strHaveExistFriend;

    /// The font of the chat windows.
    ChatFont m_chatFont;
    /// The font of the customer-service windows.
    ChatFont m_agentChatFont;

    /// How the main window hides at the screen's edge.
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

    /// Whether messages are synchronised.
    QString m_strMsgSync;

    // Flags.
    /// True when messages show as bubbles.
    bool m_bAirBubbleMode = false;
    /// A switch of the host that is off from the start.
    bool m_bHostFlag = false;
    /// True when all rooms are listed.
    bool m_bShowAllRoom = false;
    /// True until the burning messages were first opened.
    bool m_bFirstOpenBurn = false;
    /// True until the first burning message was read.
    bool m_bFirstReadBurnMsg = false;
    /// True when the conversations keep their order.
    bool m_bNotAutoSort = false;
    /// True until the first message was recalled.
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

    // Privacy: "1" where the user chose nothing.
    /// Whether others may find the user.
    QString m_strCanSearch;
    /// Whether others may see the user's company data.
    QString m_strCanViewCompanyInfo;
    /// Whether others may see the user's mobile number.
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
    /// missing or unreadable file gives the defaults. A further user overwrites everything.
    void initData(const QString &strUserName);
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
