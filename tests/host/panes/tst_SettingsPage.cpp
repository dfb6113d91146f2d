#include "client/ContactBook.h"
#include "client/HostLanguage.h"
#include "client/HostSkins.h"
#include "panes/WindowPlace.h"
#include "screen/WindowProbe.h"

#include "common/AppInfo.h"
#include "host/panes/SettingsPageTest.h"
#include "model/SharedContext.h"
#include "model/SkinContext.h"
#include "model/SystemSetData.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

/// The settings: what the page shows, what stands in the files after it, and who takes notice.
class tst_SettingsPage : public SettingsPageTest
{
    Q_OBJECT

private slots:
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
        page().close();
        HostSettings::setSilent(true);
        page().open();
        QVERIFY(part<QCheckBox>("boxSilent")->isChecked());
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
        QVERIFY(pressButton(&page(), qPrintable(QStringLiteral("language_") + other)));
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::text(m_pWindow.get(), "lblContacts") != contacts, cPatienceMs);
        QVERIFY(pressButton(&page(), qPrintable(QStringLiteral("language_") + language)));
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
        const QString jid = m_pBook->jidOf(uid);
        QCOMPARE(m_pBook->card(uid)->m_strAlternativeName, habit);
        QCOMPARE(m_pBook->record(jid)->m_vcardInfo.m_strAlternativeName, habit);
        QCOMPARE(SharedContext::getFriendDataMap().value(jid).m_vcardInfo.m_strAlternativeName, habit);
        QVERIFY(part<QRadioButton>(qPrintable(QStringLiteral("language_") + language))->isChecked());
    }

    void yellowBarFollowsTheLanguage()
    {
        end();
        const SystemSetData *settings = SystemSetData::instance();
        for (const QString &name : {settings->m_strDatabasePath, settings->m_strUserFolder + "/callHistory.db"}) {
            QFile file(name);
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write("no database") > 0);
        }
        startWithPage();
        HostLanguage words(QStringLiteral(VOIP_TRANSLATIONS));
        connect(&m_pSession->settings(), &HostSettings::languageChanged, &words, &HostLanguage::use);
        const QString english = WindowProbe::text(m_pWindow.get(), "lblNotice");
        QVERIFY2(english.startsWith(QStringLiteral("The local store was damaged. The file is kept as ")),
                 qPrintable(english));
        QVERIFY2(english.contains(QStringLiteral("\nThe list of calls was damaged.")), qPrintable(english));
        QVERIFY(pressButton(&page(), "language_zh_CN"));
        QTRY_VERIFY_WITH_TIMEOUT(
            WindowProbe::text(m_pWindow.get(), "lblNotice").startsWith(QStringLiteral("本地数据库已损坏")),
            cPatienceMs);
        const QString chinese = WindowProbe::text(m_pWindow.get(), "lblNotice");
        QCOMPARE(chinese, (m_pSession->store().reports() + m_pSession->history().reports()).join(QLatin1Char('\n')));
        QCOMPARE(chinese.count(QLatin1Char('\n')), 1);
        QVERIFY(!chinese.contains(QStringLiteral("damaged.")));
        QVERIFY(pressButton(&page(), "language_en"));
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(m_pWindow.get(), "lblNotice"), english, cPatienceMs);
    }

    void languageOfAnotherClientShowsAsTheOneInForce()
    {
        m_pSession->settings().setLanguage(QStringLiteral("uk"));
        page().open();
        QVERIFY(part<QRadioButton>("language_en")->isChecked());
        m_pSession->settings().setLanguage(QStringLiteral("ja"));
        page().open();
        QVERIFY(part<QRadioButton>("language_zh_CN")->isChecked());
    }

    void colourReachesThePlugInsWidgetsAndTheClientsWindows()
    {
        QVERIFY(m_pWindow->styleSheet().contains(QStringLiteral("#2f8038")));
        QVERIFY(pressButton(&page(), "skin_ThemeBlue"));
        QTRY_COMPARE_WITH_TIMEOUT(SkinContext::getSkinData()->m_strSkinName, QStringLiteral("ThemeBlue"), cPatienceMs);
        QCOMPARE(stored(HostSettings::userFile(), "/skinSetting/skinName"), QStringLiteral("ThemeBlue"));
        QVERIFY(!m_pWindow->styleSheet().contains(QStringLiteral("#2f8038")));
        QVERIFY(m_pWindow->styleSheet().contains(QStringLiteral("#1f5bb3")));
        QVERIFY(page().styleSheet().contains(QStringLiteral("#1f5bb3")));
        QCOMPARE(SkinContext::getSkinData()->m_strSecondButtonBackgroundColor, QStringLiteral("#2b83fd"));
        QCOMPARE(HostSkins::darkColour(), QColor(QStringLiteral("#1f5bb3")));
        QVERIFY(pressButton(&page(), "skin_ThemeGreen"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->styleSheet().contains(QStringLiteral("#2f8038")), cPatienceMs);
    }

    void colourIsThereAgainAtTheNextStart()
    {
        m_pSession->settings().setSkin(QStringLiteral("ThemeRed"));
        end();
        startWithPage();
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
        QVERIFY(SettingsFile::write(HostSettings::userFile(),
                                    {{QStringLiteral("/skinSetting/skinName"), QStringLiteral("x")}}));
        end();
        startWithPage();
        QCOMPARE(SkinContext::getSkinData()->m_strSkinName, HostSkins::standardName());
        QVERIFY(part<QRadioButton>("skin_ThemeGreen")->isChecked());
    }

    void tabGoesDownThePage()
    {
        part<QCheckBox>("boxSilent")->setFocus();
        // A group of choices is one stop or one for each, as the desktop has it.
        QStringList stops;
        for (int i = 0; i < 12 && (stops.isEmpty() || stops.last() != "btnClose"); ++i) {
            QTest::keyClick(page().focusWidget(), Qt::Key_Tab);
            stops.append(page().focusWidget()->objectName().section('_', 0, 0));
        }
        stops.removeDuplicates();
        QCOMPARE(stops, (QStringList{"language", "skin", "editDataFolder", "btnDataFolder", "editReceiveFolder",
                                     "btnReceiveFolder", "btnClose"}));
    }

    void pageIsAsHighAsItsContentAndNoHigherThanTheScreen()
    {
        const SettingsPage &page = this->page();
        const auto *area = page.findChild<QScrollArea *>(QStringLiteral("generalArea"));
        QVERIFY(page.frameGeometry().height() <= page.screen()->availableGeometry().height());
        QVERIFY(page.frameGeometry().width() <= page.screen()->availableGeometry().width());
        // It is scrolled only where the screen has no more room.
        QVERIFY(area->verticalScrollBar()->maximum() == 0 || page.height() == WindowPlace::insides().first().height());
        QVERIFY(area->widget()->width() <= area->viewport()->width());
    }

    void escapeClosesThePage()
    {
        QTest::keyClick(&page(), Qt::Key_Escape);
        QVERIFY(!page().isVisible());
        QVERIFY(m_pWindow->isVisible());
    }

    void filesAreNamed()
    {
        const QString files = part<QLabel>("lblFiles")->text();
        QVERIFY(files.contains(SystemSetData::instance()->m_strUserConfigPath));
        QVERIFY(files.contains(SystemSetData::instance()->m_strAppInfoPath));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SettingsPage, Widgets)
#include "tst_SettingsPage.moc"
