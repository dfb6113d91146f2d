// The files behind the settings: where they are, how they are read, what is repaired in them and when they are damaged.

#include "common/AppPaths.h"
#include "fakes/FileBytes.h"
#include "model/SystemSetTest.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

class tst_SystemSetFiles : public SystemSetTest
{
    Q_OBJECT

private slots:
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
        QVERIFY(!QFileInfo::exists(strAPP_INFO_FILE_PATH()));
    }

    void aStoredButEmptyRootIsTheDefaultRoot()
    {
        QVERIFY(writeFile(strAPP_INFO_FILE_PATH(), "[msgSetting]\nmsgfilepath=\n"));
        SystemSetData data;
        data.initCommonData();
        QCOMPARE(data.m_strMsgFilePath, strAPP_DOCUMENT_IM_FILES_PATH());
    }

    void theCommonFileIsReadAndItsRootMade()
    {
        const QString strRoot = inFolder(QString::fromUtf8("数据/files"));
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

    void aRelativeRootIsMadeInTheWorkingFolder()
    {
        QVERIFY(writeFile(strAPP_INFO_FILE_PATH(), "[msgSetting]\nmsgfilepath=relative/root\n"));
        SystemSetData data;
        data.initCommonData();
        QCOMPARE(data.m_strMsgFilePath, QString("relative/root"));
        QVERIFY(QDir::current().exists("relative/root"));
    }

    void theCommonFileIsUtf8()
    {
        const QString strRoot = inFolder(QString::fromUtf8("数据"));
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
        data.initData(cUser);
        QCOMPARE(data.m_strUserName, QString(cUser));
        QCOMPARE(data.m_strUserFolder, QString("relative/files/10000001"));
        QCOMPARE(data.m_strHeadImageFolder, QString("relative/files/10000001/designHeadImage/"));
        QCOMPARE(data.m_strUserConfigPath, QString("relative/files/10000001/newConfig.ini"));
        QCOMPARE(data.m_strUsersInfoPath, QString("relative/files/allusers/usersInfo.ini"));
        QCOMPARE(data.m_strAppInfoPath, strAPP_INFO_FILE_PATH());
        QCOMPARE(data.m_strDatabasePath, QDir::currentPath() + "/relative/files/10000001/localData.db");
        QCOMPARE(data.m_strDataLocation,
                 QFileInfo(QStandardPaths::writableLocation(QStandardPaths::DataLocation)).absoluteFilePath());
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

    void anEmptyPrivacyChoiceIsRepaired_data()
    {
        QTest::addColumn<QString>("key");
        for (const char *pKey : {"CanSearch", "CanViewCompanyInfo", "CanViewMobile"}) {
            QTest::newRow(pKey) << QStringLiteral("/privacySetting/") + pKey;
        }
    }

    void anEmptyPrivacyChoiceIsRepaired()
    {
        QFETCH(QString, key);
        readUser({{key, ""}});
        QCOMPARE(QSettings(userFile(), QSettings::IniFormat).value(key).toString(), QString("1"));
    }

    void aStoredPrivacyChoiceIsNotOverwritten()
    {
        readUser({{"/privacySetting/CanSearch", "0"}});
        QCOMPARE(QSettings(userFile(), QSettings::IniFormat).value("/privacySetting/CanSearch").toString(),
                 QString("0"));
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
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SystemSetFiles, Guiless)
#include "tst_SystemSetFiles.moc"
