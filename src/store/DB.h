#pragma once

// The signed-in user's store: one SQLite file "localData.db" in the user's folder, opened, checked for damage, and
// brought up to date at each open by adding what it lacks. There is no schema version: what a file has is read from its
// sqlite_master every time. All static. Everything runs on the thread that opened the connection; there is no lock, no
// transaction and no line in the log but that of DBLastTime when a new file's row cannot be made. Schema statements
// report nothing: an open can succeed with a part of the schema, and the next one adds what it can.

#include <QSqlDatabase>
#include <QString>

class DB
{
public:
    DB() = default;
    ~DB() = default;

    /// The session connection, named "KelvarIM"; invalid before the first open and after closeDB(). CommonData holds
    /// its address while a user is signed in. Whoever copies it has to drop the copy before the next closeDB().
    static QSqlDatabase m_db;

    // The file

    /// Whether the store in folder `dir` is usable: true too when there is none, and, deliberately, when it cannot be
    /// opened at all. `quickOnly` leaves out the trial write. Works on a connection of its own, never repairs, moves or
    /// deletes the file; what becomes of a damaged one is the caller's business. When another process keeps the file
    /// locked against reading too, neither test gets an answer, and the result is false after some two seconds.
    static bool checkDB(QString dir, bool quickOnly);

    /// Opens the store of `userName` under `path`, or under strAPP_DOCUMENT_IM_FILES_PATH() when that is empty, and
    /// brings its schema up to date; an open session is closed first. With `createAll` folder and file are created when
    /// missing; without it both have to be there and only `loginInfo` is looked after. False when the file is missing,
    /// cannot be created or cannot be opened; CommonData then points to the closed connection. The same happens when
    /// another process keeps the file locked against reading for longer than all statements together wait, some two
    /// seconds. When it keeps it from being written only, what the schema lacks is left to the next open.
    static bool initByUserName(QString userName, QString path, bool createAll);

    /// Closes the connection that CommonData points to, and takes it away there; without one nothing happens.
    static void closeDB();

    /// A copy of the connection that CommonData points to; an invalid one when it holds none.
    static QSqlDatabase getDB();

    /// Whether folder `dir` has the file of the generation before, "data.db", and no "localData.db".
    static bool isNeedUpdate(const QString &dir);

    // Statements

    /// The text as an SQL literal between apostrophes. Apostrophes inside are removed, not doubled; an empty text gives
    /// ''.
    static QString addYinHao(QString text);

    /// Whether there is such a table. As the two below: on the session connection, false when it is not open.
    static bool isExistTable(const QString &table);

    /// Whether the stored definition of the table contains the text `field`, whatever the case of ASCII letters. A text
    /// search: a column whose name merely contains `field` counts, and an empty one is found in every table.
    static bool isExistFiled(const QString &table, const QString &field);

    /// Whether the table has an index named `table` plus `suffix`.
    static bool isExistIndex(const QString &table, const QString &suffix);

    /// Drops the tables of older generations, rows included.
    static void dropNoUseTable();

    /// Replaces `from` by `to` in one column of every row. The texts go into the statement as they are: one with an
    /// apostrophe makes it fail. Returns whether the statement ran; false when `db` is not open.
    static bool replaceFiled(const QSqlDatabase &db, const QString &table, const QString &field, const QString &from,
                             const QString &to);

    // The tables. Each creator makes its table when it is missing and otherwise adds the later columns that the file
    // lacks, for a few tables indexes too; it never drops or changes a column. Without an open connection no table
    // changes. The descriptions that the statements come from stand in the Schema*.cpp files, beside the creators.

    /// Runs all creators below but createDingVersion(), in one fixed order.
    static void createTable();

    /// `loginInfo`, the one table that a file opened with `createAll` false gets.
    static void createLoginTable();

    // Messages and sessions

    /// `latestfriendnew`
    static void createLatestFrdTable();

    /// `deletedfriendnew`
    static void creatDeletedFrdTable();

    /// `msgrecord`
    static void createMessageTable();

    /// `message_session`
    static void createSessionTable();

    /// `message_unread_session`
    static void createUnreadSessionTable();

    /// `unclosesession` and `unclosesessionorder`
    static void createUnCloseSessionTable();

    // Contacts, rooms and groups

    /// `localfriendNew`
    static void createLocalFrdTable();

    /// `mucrecord`
    static void createMuctable();

    /// `mucmembers`
    static void createMucMembersTable();

    /// `grouptable`
    static void createGroupTable();

    /// `groupfriendversionNew`
    static void createGroupFriendVersion();

    /// `friendGrouptable`
    static void createFriendGroupTable();

    /// `outsidegroupfriendversionNew`
    static void createOutsideGroupFriendVersion();

    /// `roomnotice`
    static void createRoomNoticeTable();

    // Services, applications, files, customer service, urgent messages

    /// `filereceviestatus`
    static void createFileRecevieStatusTable();

    /// `cloudfilelocalinfo`
    static void creatCloudFileLocalInfo();

    /// `sharefilelocalinfo`
    static void creatShareFileLocalInfo();

    /// `filestatuslocalinfo`
    static void creatFileStatusLocalInfo();

    /// `videoinfo`
    static void creatVideoInfo();

    /// `filedisplayinfo`
    static void creatFileDisplayStatusInfo();

    /// `servicenumber` and `localservicenumber`
    static void createServiceTable();

    /// `servicenumberversion`
    static void createServiceVersion();

    /// `appnumbernew`
    static void createApplicationNewTableNew();

    /// `appnumberversionnew`
    static void createApplicationVersionNew();

    /// `favorite`
    static void createFavoriteTable();

    /// `favoriteFileLocalInfo`
    static void createFavoriteFileTable();

    /// `cs_agentInfo`
    static void creatAgentInfoTable();

    /// `cs_channel`
    static void createCSChannelTable();

    /// `cs_workgroup`
    static void createCSWorkgroupTable();

    /// `cs_quikrply`
    static void createCSQuickrplyTable();

    /// `cs_agent_session`
    static void createCSAgentSessionTable();

    /// `cs_comment`
    static void createCSCommentTable();

    /// `cs_chatsummary`
    static void createCSChatSumTable();

    /// `cs_channelquikrply`
    static void createCSChannelQuickrplyTable();

    /// `cs_topchannelIdlist`
    static void createCSChannelTopListTable();

    /// `cs_chatsum`
    static void createCSChatSumAgentTable();

    /// `cs_chatandquickversion`
    static void createCSChatAndQuickVersionTable();

    /// `dingmsginfo` and `dingsmsgfileoinfo`
    static void createDingMsgTable();

    /// `dingmsgversion`. Deliberately outside createTable(): no file has it unless the host asks for it.
    static void createDingVersion();

    // Conferences and the last time

    /// `last_time`, with its one row when the table is new.
    static void createLastTimeTable();

    /// `voipConferenceInfo`
    static void creatVoipConferenceInfoTable();
};
