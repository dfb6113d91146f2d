#include "client/ContactBook.h"
#include "client/HostLanguage.h"
#include "client/HostSkins.h"
#include "panes/MainWindow.h"
#include "panes/WindowPlace.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"

#include "common/AppInfo.h"
#include "common/settings/ConfigFile.h"
#include "fakes/Patience.h"
#include "host/panes/PressButton.h"
#include "model/SharedContext.h"
#include "model/SkinContext.h"
#include "model/SystemSetData.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

/// The settings: what the page shows, what stands in the files after it, and who takes notice.
class tst_SettingsPage : public QObject
{
    Q_OBJECT

private slots:
    void init() { start(); }

    void cleanup()
    {
        m_pWindow.reset();
        const QString userFile = HostSettings::userFile();
        m_pSession.reset();
        QFile::remove(userFile);
        QFile::remove(HostSettings::commonFile());
    }

    void firstLanguageFollowsTheSystem_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("language");
        QTest::newRow("mainland") << "zh_CN"
                                  << "zh_CN";
        QTest::newRow("Taiwan") << "zh_TW"
                                << "zh_TW";
        QTest::newRow("Hong Kong") << "zh_HK"
                                   << "zh_TW";
        QTest::newRow("German") << "de_DE"
                                << "en";
        QTest::newRow("none") << "C"
                              << "en";
    }

    void firstLanguageFollowsTheSystem()
    {
        QFETCH(QString, system);
        QTEST(HostLanguage::firstLanguage(system), "language");
    }

    void chosenAtTheFirstStartTheLanguageStandsInTheFile()
    {
        const QString language = HostSettings::language();
        QVERIFY(!language.isEmpty());
        QCOMPARE(stored(HostSettings::commonFile(), "/languageSetting/language"), language);
        QCOMPARE(AppInfo::getApplicationLanguage(), language);
    }

    void ringSwitchIsWrittenAndTakesEffect()
    {
        auto *silent = part<QCheckBox>("boxSilent");
        QVERIFY(!silent->isChecked());
        silent->setFocus();
        QTest::keyClick(silent, Qt::Key_Space);
        QCOMPARE(stored(HostSettings::userFile(), "/basicSetting/closeVoice"), QStringLiteral("1"));
        QCOMPARE(SharedContext::getSystemSetData()->m_strCloseVoice, QStringLiteral("1"));
        QTest::keyClick(silent, Qt::Key_Space);
        QCOMPARE(stored(HostSettings::userFile(), "/basicSetting/closeVoice"), QStringLiteral("0"));
        QCOMPARE(SharedContext::getSystemSetData()->m_strCloseVoice, QStringLiteral("0"));
    }

    void ringSwitchFollowsTheFile()
    {
        m_pWindow->settingsPage().close();
        HostSettings::setSilent(true);
        m_pWindow->settingsPage().open();
        QVERIFY(part<QCheckBox>("boxSilent")->isChecked());
    }

    void receiveFolderIsMadeWrittenAndInForce()
    {
        const QString folder = QDir::current().absoluteFilePath(QStringLiteral("received/今天"));
        type("editReceiveFolder", folder);
        QVERIFY(QDir(folder).exists());
        QCOMPARE(stored(HostSettings::userFile(), "/msgSetting/transfilepath"), folder);
        QCOMPARE(SharedContext::getSystemSetData()->m_strTransFilePath, folder);
    }

    void emptyFieldGivesTheStandardFolderBack()
    {
        const QString standard = HostSettings::receiveFolder();
        type("editReceiveFolder", QDir::current().absoluteFilePath(QStringLiteral("elsewhere")));
        QVERIFY(HostSettings::receiveFolder() != standard);
        type("editReceiveFolder", QString());
        QCOMPARE(HostSettings::receiveFolder(), standard);
        QCOMPARE(part<QLineEdit>("editReceiveFolder")->text(), standard);
    }

    void dataFolderIsForTheNextStart()
    {
        const QString inUse = SharedContext::getSystemSetData()->m_strMsgFilePath;
        const QString note = part<QLabel>("lblDataNote")->text();
        const QString folder = QDir::current().absoluteFilePath(QStringLiteral("data"));
        type("editDataFolder", folder);
        QCOMPARE(stored(HostSettings::commonFile(), "/msgSetting/msgfilepath"), folder);
        QCOMPARE(SharedContext::getSystemSetData()->m_strMsgFilePath, inUse);
        QCOMPARE(part<QLabel>("lblDataNote")->text(),
                 QStringLiteral("Takes effect at the next start; what is in the old folder stays there."));
        SystemSetData nextStart;
        nextStart.initCommonData();
        QCOMPARE(nextStart.m_strMsgFilePath, folder);
        type("editDataFolder", QString());
        QCOMPARE(part<QLabel>("lblDataNote")->text(), note);
    }

    void folderThatCannotBeUsedIsToldAndNotTaken_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("relative") << "somewhere";
        QTest::newRow("below a file") << QDir::current().absoluteFilePath(QStringLiteral("file/folder"));
    }

    void folderThatCannotBeUsedIsToldAndNotTaken()
    {
        QFETCH(QString, folder);
        QFile file(QStringLiteral("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString receive = HostSettings::receiveFolder();
        const QString data = HostSettings::dataFolder();
        for (const char *edit : {"editReceiveFolder", "editDataFolder"}) {
            type(edit, folder);
            QCOMPARE(part<QLabel>("lblFolderError")->text(), QStringLiteral("This folder cannot be used: ") + folder);
            QCOMPARE(part<QLineEdit>(edit)->text(), folder);
        }
        QCOMPARE(HostSettings::receiveFolder(), receive);
        QCOMPARE(HostSettings::dataFolder(), data);
        type("editReceiveFolder", receive);
        QVERIFY(part<QLabel>("lblFolderError")->text().isEmpty());
    }

    void folderErrorIsGoneWhenThePageOpensAgain_data()
    {
        QTest::addColumn<QByteArray>("edit");
        QTest::newRow("data") << QByteArray("editDataFolder");
        QTest::newRow("received files") << QByteArray("editReceiveFolder");
    }

    void folderErrorIsGoneWhenThePageOpensAgain()
    {
        QFETCH(QByteArray, edit);
        SettingsPage &page = m_pWindow->settingsPage();
        const QString folder = part<QLineEdit>(edit)->text();
        for (const bool bClosed : {true, false}) {
            type(edit, QStringLiteral("somewhere"));
            QVERIFY(WindowProbe::text(&page, "lblFolderError").contains(QStringLiteral("somewhere")));
            if (bClosed) {
                QTest::keyClick(&page, Qt::Key_Escape);
                QVERIFY(!page.isVisible());
            }
            QVERIFY(pressButton(m_pWindow.get(), "btnSettings"));
            QVERIFY(QTest::qWaitForWindowActive(&page, cPatienceMs));
            QCOMPARE(part<QLabel>("lblFolderError")->text(), QString());
            QCOMPARE(part<QLineEdit>(edit)->text(), folder);
        }
    }

    void folderErrorGoesWithAGoodFolderAndWithTheLanguage()
    {
        type("editReceiveFolder", QStringLiteral("somewhere"));
        QVERIFY(!part<QLabel>("lblFolderError")->text().isEmpty());
        type("editReceiveFolder", QDir::current().absoluteFilePath(QStringLiteral("good")));
        QCOMPARE(part<QLabel>("lblFolderError")->text(), QString());
        type("editReceiveFolder", QStringLiteral("somewhere"));
        QVERIFY(!part<QLabel>("lblFolderError")->text().isEmpty());
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&m_pWindow->settingsPage(), &change);
        QCOMPARE(part<QLabel>("lblFolderError")->text(), QString());
        QCOMPARE(part<QLineEdit>("editReceiveFolder")->text(),
                 QDir::current().absoluteFilePath(QStringLiteral("good")));
    }

    void browsingTakesTheFolder()
    {
        const QString folder = QDir::current().absoluteFilePath(QStringLiteral("browsed"));
        QVERIFY(QDir().mkpath(folder));
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                timer.stop();
                dialog->setDirectory(folder);
                dialog->selectFile(folder);
                QMetaObject::invokeMethod(dialog, "accept");
            }
        });
        timer.start(10);
        QVERIFY(pressButton(&m_pWindow->settingsPage(), "btnReceiveFolder"));
        QCOMPARE(HostSettings::receiveFolder(), folder);
        QCOMPARE(part<QLineEdit>("editReceiveFolder")->text(), folder);
    }

    void languageChangesTheOpenWindows_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("contacts");
        QTest::addColumn<QString>("presence");
        QTest::addColumn<QString>("silent");
        QTest::addColumn<QString>("online");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<QString>("habit");
        QTest::newRow("zh_CN") << "zh_CN" << QStringLiteral("联系人") << QStringLiteral("在线")
                               << QStringLiteral("来电不响铃(&R)") << QStringLiteral("离线(O)")
                               << QStringLiteral("忙线") << QStringLiteral("10 秒后挂断");
        QTest::newRow("zh_TW") << "zh_TW" << QStringLiteral("聯絡人") << QStringLiteral("線上")
                               << QStringLiteral("來電不響鈴(&R)") << QStringLiteral("離線(O)")
                               << QStringLiteral("忙線") << QStringLiteral("10 秒後掛斷");
        QTest::newRow("en") << "en"
                            << "Contacts"
                            << "online"
                            << "Keep the &ring of incoming calls silent"
                            << "Offline"
                            << "busy"
                            << "Hangs up after 10 s";
    }

    void languageChangesTheOpenWindows()
    {
        QFETCH(QString, language);
        HostLanguage words(QStringLiteral(VOIP_TRANSLATIONS));
        connect(&m_pSession->settings(), &HostSettings::languageChanged, &words, &HostLanguage::use);
        QFETCH(QString, contacts);
        // From another language, so that there is something to change whichever was spoken before.
        const char *other = language == QLatin1String("zh_TW") ? "zh_CN" : "zh_TW";
        QVERIFY(pressButton(&m_pWindow->settingsPage(), qPrintable(QStringLiteral("language_") + other)));
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::text(m_pWindow.get(), "lblContacts") != contacts, cPatienceMs);
        QVERIFY(pressButton(&m_pWindow->settingsPage(), qPrintable(QStringLiteral("language_") + language)));
        QTRY_COMPARE_WITH_TIMEOUT(stored(HostSettings::commonFile(), "/languageSetting/language"), language,
                                  cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(m_pWindow.get(), "lblContacts"), contacts, cPatienceMs);
        QTEST(WindowProbe::text(m_pWindow->findChild<QWidget *>(QStringLiteral("30010001")), "lblPresence"),
              "presence");
        QTEST(part<QCheckBox>("boxSilent")->text(), "silent");
        QTEST(WindowProbe::text(m_pWindow.get(), "btnOnline"), "online");
        QTEST(outcomeWord(25), "outcome");
        QFETCH(QString, habit);
        const QString uid = QStringLiteral("30010006");
        QCOMPARE(WindowProbe::text(m_pWindow->findChild<QWidget *>(uid), "lblDetail"), uid + " · " + habit);
        // The call window reads it from the card: of the record, or of the shared context.
        const QString jid = m_book.jidOf(uid);
        QCOMPARE(m_book.card(uid)->m_strAlternativeName, habit);
        QCOMPARE(m_book.record(jid)->m_vcardInfo.m_strAlternativeName, habit);
        QCOMPARE(SharedContext::getFriendDataMap().value(jid).m_vcardInfo.m_strAlternativeName, habit);
        QVERIFY(part<QRadioButton>(qPrintable(QStringLiteral("language_") + language))->isChecked());
    }

    void yellowBarFollowsTheLanguage()
    {
        m_pWindow.reset();
        m_pSession.reset();
        const SystemSetData *settings = SystemSetData::instance();
        for (const QString &name : {settings->m_strDatabasePath, settings->m_strUserFolder + "/callHistory.db"}) {
            QFile file(name);
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write("no database") > 0);
        }
        start();
        HostLanguage words(QStringLiteral(VOIP_TRANSLATIONS));
        connect(&m_pSession->settings(), &HostSettings::languageChanged, &words, &HostLanguage::use);
        const QString english = WindowProbe::text(m_pWindow.get(), "lblNotice");
        QVERIFY2(english.startsWith(QStringLiteral("The local store was damaged. The file is kept as ")),
                 qPrintable(english));
        QVERIFY2(english.contains(QStringLiteral("\nThe list of calls was damaged.")), qPrintable(english));
        QVERIFY(pressButton(&m_pWindow->settingsPage(), "language_zh_CN"));
        QTRY_VERIFY_WITH_TIMEOUT(
            WindowProbe::text(m_pWindow.get(), "lblNotice").startsWith(QStringLiteral("本地数据库已损坏")),
            cPatienceMs);
        const QString chinese = WindowProbe::text(m_pWindow.get(), "lblNotice");
        QCOMPARE(chinese, (m_pSession->store().reports() + m_pSession->history().reports()).join(QLatin1Char('\n')));
        QCOMPARE(chinese.count(QLatin1Char('\n')), 1);
        QVERIFY(!chinese.contains(QStringLiteral("damaged.")));
        QVERIFY(pressButton(&m_pWindow->settingsPage(), "language_en"));
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(m_pWindow.get(), "lblNotice"), english, cPatienceMs);
    }

    void languageOfAnotherClientShowsAsTheOneInForce()
    {
        m_pSession->settings().setLanguage(QStringLiteral("uk"));
        m_pWindow->settingsPage().open();
        QVERIFY(part<QRadioButton>("language_en")->isChecked());
        m_pSession->settings().setLanguage(QStringLiteral("ja"));
        m_pWindow->settingsPage().open();
        QVERIFY(part<QRadioButton>("language_zh_CN")->isChecked());
    }

    void colourReachesThePlugInsWidgetsAndTheClientsWindows()
    {
        QVERIFY(m_pWindow->styleSheet().contains(QStringLiteral("#2f8038")));
        QVERIFY(pressButton(&m_pWindow->settingsPage(), "skin_ThemeBlue"));
        QTRY_COMPARE_WITH_TIMEOUT(SkinContext::getSkinData()->m_strSkinName, QStringLiteral("ThemeBlue"), cPatienceMs);
        QCOMPARE(stored(HostSettings::userFile(), "/skinSetting/skinName"), QStringLiteral("ThemeBlue"));
        QVERIFY(!m_pWindow->styleSheet().contains(QStringLiteral("#2f8038")));
        QVERIFY(m_pWindow->styleSheet().contains(QStringLiteral("#1f5bb3")));
        QVERIFY(m_pWindow->settingsPage().styleSheet().contains(QStringLiteral("#1f5bb3")));
        QCOMPARE(SkinContext::getSkinData()->m_strSecondButtonBackgroundColor, QStringLiteral("#2b83fd"));
        QCOMPARE(HostSkins::darkColour(), QColor(QStringLiteral("#1f5bb3")));
        QVERIFY(pressButton(&m_pWindow->settingsPage(), "skin_ThemeGreen"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->styleSheet().contains(QStringLiteral("#2f8038")), cPatienceMs);
    }

    void colourIsThereAgainAtTheNextStart()
    {
        m_pSession->settings().setSkin(QStringLiteral("ThemeRed"));
        m_pWindow.reset();
        m_pSession.reset();
        start();
        QCOMPARE(SkinContext::getSkinData()->m_strSkinName, QStringLiteral("ThemeRed"));
        QVERIFY(part<QRadioButton>("skin_ThemeRed")->isChecked());
    }

    void everySkinHasAPlaceInTheSharedList()
    {
        const QList<SysUIData> *skins = SkinContext::getSysUIDataList();
        QVERIFY(skins != nullptr);
        QStringList names;
        QStringList colours;
        for (const SysUIData &skin : *skins) {
            names.append(skin.m_strSkinName);
            colours.append(skin.m_strMainColor);
            QVERIFY(!skin.m_strShownName.isEmpty());
        }
        QCOMPARE(names, HostSkins::names());
        QCOMPARE(names.size(), 4);
        QCOMPARE(colours.removeDuplicates(), 0);
    }

    void unknownSkinChangesNothing()
    {
        ConfigFile::changeConfigValue(HostSettings::userFile(), QStringLiteral("/skinSetting/skinName"),
                                      QStringLiteral("x"));
        m_pWindow.reset();
        m_pSession.reset();
        start();
        QCOMPARE(SkinContext::getSkinData()->m_strSkinName, HostSkins::standardName());
        QVERIFY(part<QRadioButton>("skin_ThemeGreen")->isChecked());
    }

    void tabGoesDownThePage()
    {
        SettingsPage &page = m_pWindow->settingsPage();
        part<QCheckBox>("boxSilent")->setFocus();
        // A group of choices is one stop or one for each, as the desktop has it.
        QStringList stops;
        for (int i = 0; i < 12 && (stops.isEmpty() || stops.last() != "btnClose"); ++i) {
            QTest::keyClick(page.focusWidget(), Qt::Key_Tab);
            stops.append(page.focusWidget()->objectName().section('_', 0, 0));
        }
        stops.removeDuplicates();
        QCOMPARE(stops, (QStringList{"language", "skin", "editDataFolder", "btnDataFolder", "editReceiveFolder",
                                     "btnReceiveFolder", "btnClose"}));
    }

    void pageIsAsHighAsItsContentAndNoHigherThanTheScreen()
    {
        const SettingsPage &page = m_pWindow->settingsPage();
        const auto *area = page.findChild<QScrollArea *>(QStringLiteral("generalArea"));
        QVERIFY(page.frameGeometry().height() <= page.screen()->availableGeometry().height());
        QVERIFY(page.frameGeometry().width() <= page.screen()->availableGeometry().width());
        // It is scrolled only where the screen has no more room.
        QVERIFY(area->verticalScrollBar()->maximum() == 0 || page.height() == WindowPlace::insides().first().height());
        QVERIFY(area->widget()->width() <= area->viewport()->width());
    }

    void escapeClosesThePage()
    {
        QTest::keyClick(&m_pWindow->settingsPage(), Qt::Key_Escape);
        QVERIFY(!m_pWindow->settingsPage().isVisible());
        QVERIFY(m_pWindow->isVisible());
    }

    void filesAreNamed()
    {
        const QString files = part<QLabel>("lblFiles")->text();
        QVERIFY(files.contains(SystemSetData::instance()->m_strUserConfigPath));
        QVERIFY(files.contains(SystemSetData::instance()->m_strAppInfoPath));
    }

private:
    template <typename Part>
    Part *part(const char *strName)
    {
        return m_pWindow->settingsPage().findChild<Part *>(QLatin1String(strName));
    }
    static QString stored(const QString &strFile, const char *strKey)
    {
        return ConfigFile::getConfigValue(strFile, QLatin1String(strKey)).toString();
    }
    void type(const char *strEdit, const QString &strText)
    {
        auto *edit = part<QLineEdit>(strEdit);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        edit->insert(strText);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    void start()
    {
        m_pSession = std::make_unique<HostSession>(m_book);
        QString error;
        QVERIFY(!m_pSession->start(QStringLiteral("/no/module.so"), &error));
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, m_book);
        m_pWindow->show();
        QVERIFY(pressButton(m_pWindow.get(), "btnSettings"));
        QVERIFY(QTest::qWaitForWindowActive(&m_pWindow->settingsPage(), cPatienceMs));
    }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<MainWindow> m_pWindow;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SettingsPage, Widgets)
#include "tst_SettingsPage.moc"
