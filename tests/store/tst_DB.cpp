#include "fakes/FileBytes.h"
#include "store/StoreTest.h"

#include <type_traits>

namespace {

// The tables of a new file in the order of their making.
const QStringList cNewTables = {
    "loginInfo",
    "latestfriendnew",
    "deletedfriendnew",
    "msgrecord",
    "message_session",
    "message_unread_session",
    "last_time",
    "localfriendNew",
    "mucrecord",
    "mucmembers",
    "grouptable",
    "groupfriendversionNew",
    "friendGrouptable",
    "outsidegroupfriendversionNew",
    "filereceviestatus",
    "cloudfilelocalinfo",
    "sharefilelocalinfo",
    "filestatuslocalinfo",
    "videoinfo",
    "filedisplayinfo",
    "servicenumber",
    "localservicenumber",
    "servicenumberversion",
    "appnumbernew",
    "appnumberversionnew",
    "favorite",
    "favoriteFileLocalInfo",
    "unclosesession",
    "unclosesessionorder",
    "roomnotice",
    "voipConferenceInfo",
    "cs_agentInfo",
    "cs_channel",
    "cs_workgroup",
    "cs_quikrply",
    "cs_agent_session",
    "cs_comment",
    "cs_chatsummary",
    "cs_channelquikrply",
    "cs_topchannelIdlist",
    "cs_chatsum",
    "cs_chatandquickversion",
    "dingmsginfo",
    "dingsmsgfileoinfo",
};

const QString cAllTables = QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid");

// What hosts call, by these names, with these arguments. Deliberate: texts taken by value.
template <typename Signature, auto... functions>
constexpr bool cAllAre = (std::is_same_v<decltype(functions), Signature> && ...);

static_assert(std::is_same_v<decltype(DB::m_db), QSqlDatabase>);
static_assert(std::is_default_constructible_v<DB> && std::is_empty_v<DB>);
static_assert(cAllAre<bool (*)(QString, bool), DB::checkDB>);
static_assert(cAllAre<bool (*)(QString, QString, bool), DB::initByUserName>);
static_assert(cAllAre<QSqlDatabase (*)(), DB::getDB>);
static_assert(cAllAre<bool (*)(const QString &), DB::isNeedUpdate, DB::isExistTable>);
static_assert(cAllAre<bool (*)(const QString &, const QString &), DB::isExistFiled, DB::isExistIndex>);
static_assert(cAllAre<QString (*)(QString), DB::addYinHao>);
static_assert(
    cAllAre<bool (*)(const QSqlDatabase &, const QString &, const QString &, const QString &, const QString &),
            DB::replaceFiled>);
static_assert(
    cAllAre<void (*)(), DB::closeDB, DB::dropNoUseTable, DB::createTable, DB::createLoginTable,
            DB::createLatestFrdTable, DB::creatDeletedFrdTable, DB::createMessageTable, DB::createSessionTable,
            DB::createUnreadSessionTable, DB::createLastTimeTable, DB::createLocalFrdTable, DB::createMuctable,
            DB::createMucMembersTable, DB::createGroupTable, DB::createGroupFriendVersion, DB::createFriendGroupTable,
            DB::createOutsideGroupFriendVersion, DB::createFileRecevieStatusTable, DB::creatCloudFileLocalInfo,
            DB::creatShareFileLocalInfo, DB::creatFileStatusLocalInfo, DB::creatVideoInfo,
            DB::creatFileDisplayStatusInfo, DB::createServiceTable, DB::createServiceVersion,
            DB::createApplicationNewTableNew, DB::createApplicationVersionNew, DB::createFavoriteTable,
            DB::createFavoriteFileTable, DB::createUnCloseSessionTable, DB::createRoomNoticeTable,
            DB::creatVoipConferenceInfoTable, DB::creatAgentInfoTable, DB::createCSChannelTable,
            DB::createCSWorkgroupTable, DB::createCSQuickrplyTable, DB::createCSAgentSessionTable,
            DB::createCSCommentTable, DB::createCSChatSumTable, DB::createCSChannelQuickrplyTable,
            DB::createCSChannelTopListTable, DB::createCSChatSumAgentTable, DB::createCSChatAndQuickVersionTable,
            DB::createDingMsgTable, DB::createDingVersion>);

} // namespace

class tst_DB : public StoreTest
{
    Q_OBJECT

private slots:
    void aNewFileHasAllTablesInTheFixedOrder()
    {
        QVERIFY(m_store->open());
        QCOMPARE(cNewTables.size(), 44);
        QCOMPARE(stored(cAllTables), cNewTables);
    }

    void theUrgentMessagesVersionIsMadeOnlyWhenAskedFor()
    {
        QVERIFY(m_store->open());
        QVERIFY(!DB::isExistTable("dingmsgversion"));
        DB::createDingVersion();
        QVERIFY(DB::isExistTable("dingmsgversion"));
    }

    void aSecondPassOverTheTablesChangesNothing()
    {
        QVERIFY(m_store->open());
        BesideFile beside(m_store->file());
        const QStringList schema = beside.schema();
        const QStringList version = beside.rows("PRAGMA schema_version");
        const QStringList rows = beside.rows("SELECT * FROM last_time");
        DB::createTable();
        QCOMPARE(beside.schema(), schema);
        QCOMPARE(beside.rows("PRAGMA schema_version"), version);
        QCOMPARE(beside.rows("SELECT * FROM last_time"), rows);
    }

    void oldMessagesGainTheMentionsAndReadNull()
    {
        m_store->make({"CREATE TABLE msgrecord(id VARCHAR(20) PRIMARY KEY, jid VARCHAR(100), sequenceId INT64)",
                       "INSERT INTO msgrecord VALUES ('m1', 'bert@x', 7)"});
        QVERIFY(m_store->open());
        QCOMPARE(stored("SELECT id,jid,sequenceId,atlist FROM msgrecord"), QStringList("m1|bert@x|7|NULL"));
    }

    void aTableOfFewerColumnsIsNeverRebuilt()
    {
        m_store->make({"CREATE TABLE favorite(own TEXT)", "INSERT INTO favorite VALUES ('kept')"});
        QVERIFY(m_store->open());
        QCOMPARE(stored("SELECT * FROM favorite"), QStringList("kept"));
    }

    void creatorsWithoutAnOpenStoreDoNothing()
    {
        QVERIFY(m_store->open());
        QVERIFY(run("DROP TABLE favorite"));
        DB::m_db.close();
        const QByteArray before = readBytes(m_store->file());
        DB::createTable();
        DB::createDingVersion();
        DB::dropNoUseTable();
        QCOMPARE(readBytes(m_store->file()), before);
        QVERIFY(!DB::isExistTable("loginInfo"));
        QVERIFY(!DB::isExistFiled("loginInfo", "password"));
        QVERIFY(!DB::isExistIndex("msgrecord", "_index1"));
    }

    void aTableIsFoundByItsWholeName()
    {
        QVERIFY(m_store->open());
        QVERIFY(DB::isExistTable("loginInfo"));
        QVERIFY(!DB::isExistTable("login"));
        QVERIFY(!DB::isExistTable("logininfo"));
        QVERIFY(!DB::isExistTable(QString()));
        QVERIFY(!DB::isExistTable("msgrecord_index1"));
        QVERIFY(DB::isExistTable("login'Info"));
    }

    void aColumnIsSoughtAsTextWhateverTheCase_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<bool>("found");
        QTest::newRow("whole") << "isFold" << true;
        QTest::newRow("other case") << "ISFOLD" << true;
        QTest::newRow("part of a name") << "Fol" << true;
        QTest::newRow("type text") << "primary key" << true;
        QTest::newRow("missing") << "isOpen" << false;
        QTest::newRow("apostrophe breaks the statement") << "is'Fold" << false;
    }
    void aColumnIsSoughtAsTextWhateverTheCase()
    {
        QFETCH(const QString, field);
        QVERIFY(m_store->open());
        QTEST(DB::isExistFiled("unclosesession", field), "found");
        QVERIFY(!DB::isExistFiled("noSuchTable", field));
    }

    void anIndexIsFoundOnItsOwnTable()
    {
        QVERIFY(m_store->open());
        QVERIFY(DB::isExistIndex("msgrecord", "_index1"));
        QVERIFY(!DB::isExistIndex("msgrecord", "_index2"));
        QVERIFY(!DB::isExistIndex("mucrecord", "_index1"));
        QVERIFY(run("CREATE INDEX favorite_index1 ON msgrecord(jid)"));
        QVERIFY(!DB::isExistIndex("favorite", "_index1"));
    }

    void retiredTablesAreDroppedAndTheirSuccessorsStay()
    {
        const QStringList retired = {"deletedfriend", "grouptableNew",   "groupfriendversion", "localfriend",
                                     "latestfriend",  "friendlist",      "muclocalmsg",        "msglist",
                                     "appnumber",     "appnumberversion"};
        QStringList statements;
        for (const QString &table : retired) {
            statements.append("CREATE TABLE " + table + "(id TEXT)");
        }
        m_store->make(statements);
        QVERIFY(m_store->open());
        BesideFile beside(m_store->file());
        QCOMPARE(beside.rows(cAllTables), retired + cNewTables);
        DB::dropNoUseTable();
        QCOMPARE(beside.rows(cAllTables), cNewTables);
        DB::dropNoUseTable();
        QCOMPARE(beside.rows(cAllTables), cNewTables);
    }

    // SQLite itself would take one for the other.
    void aTableNamedAsARetiredOneButForTheCaseStays()
    {
        m_store->make({"CREATE TABLE FriendList(id TEXT)", "INSERT INTO FriendList VALUES ('kept')"});
        QVERIFY(m_store->open());
        QVERIFY(!DB::isExistTable("friendlist"));
        DB::dropNoUseTable();
        QCOMPARE(stored("SELECT * FROM FriendList"), QStringList("kept"));
    }

    void aTextIsReplacedInEveryRowOfOneColumn()
    {
        QVERIFY(m_store->open());
        BesideFile beside(m_store->file());
        QVERIFY(beside.run("INSERT INTO grouptable VALUES ('a/b', 'x/y/z'), ('c', '/'), ('d', NULL)"));
        QVERIFY(DB::replaceFiled(DB::getDB(), "grouptable", "groupName", "/", "--"));
        QCOMPARE(beside.rows("SELECT * FROM grouptable"), QStringList({"a/b|x--y--z", "c|--", "d|NULL"}));
    }

    void aReplacementThatIsNoStatementFails()
    {
        QVERIFY(m_store->open());
        QVERIFY(!DB::replaceFiled(DB::getDB(), "grouptable", "groupName", "it's", "its"));
        QVERIFY(!DB::replaceFiled(DB::getDB(), "noSuchTable", "groupName", "a", "b"));
        QVERIFY(!DB::replaceFiled(QSqlDatabase(), "grouptable", "groupName", "a", "b"));
    }

    void apostrophesAreRemovedNotDoubled_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("literal");
        QTest::newRow("one") << "it's"
                             << "'its'";
        QTest::newRow("name") << "O'Neil"
                              << "'ONeil'";
        QTest::newRow("several") << "''a''b'"
                                 << "'ab'";
        QTest::newRow("none") << "anna"
                              << "'anna'";
        QTest::newRow("empty") << ""
                               << "''";
        QTest::newRow("null") << QString() << "''";
        QTest::newRow("only apostrophes") << "'''"
                                          << "''";
    }
    void apostrophesAreRemovedNotDoubled()
    {
        QFETCH(const QString, text);
        QTEST(DB::addYinHao(text), "literal");
    }

    void onlyAnOldFileWithoutANewOneNeedsTheUpdate_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<bool>("needed");
        QTest::newRow("old one alone") << QStringList{"data.db"} << true;
        QTest::newRow("both") << QStringList{"data.db", "localData.db"} << false;
        QTest::newRow("new one alone") << QStringList{"localData.db"} << false;
        QTest::newRow("none") << QStringList() << false;
    }
    void onlyAnOldFileWithoutANewOneNeedsTheUpdate()
    {
        QFETCH(const QStringList, files);
        for (const QString &name : files) {
            QVERIFY(QFile(m_store->base() + '/' + name).open(QIODevice::WriteOnly));
        }
        QTEST(DB::isNeedUpdate(m_store->base()), "needed");
        QCOMPARE(QDir(m_store->base()).entryList(QDir::Files), files);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DB, Guiless)
#include "tst_DB.moc"
