#include "client/HostLanguage.h"
#include "client/HostSkins.h"
#include "screen/WindowProbe.h"

#include "host/panes/SettingsPageTest.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"
#include "store/Hardship.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

/// The settings where their files cannot be written: what the page shows is what is in force, and it says why.
class tst_SettingsNotKept : public SettingsPageTest
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pWords = std::make_unique<HostLanguage>(QStringLiteral(VOIP_TRANSLATIONS));
        SettingsPageTest::init();
        connect(&m_pSession->settings(), &HostSettings::languageChanged, m_pWords.get(), &HostLanguage::use);
        m_pSession->settings().setLanguage(QStringLiteral("en"));
        m_pSession->settings().setSkin(QStringLiteral("ThemeGreen"));
        page().open();
        QCoreApplication::processEvents();
        setWritable(false);
    }

    void cleanup()
    {
        setWritable(true);
        SettingsPageTest::cleanup();
        m_pWords.reset();
    }

    void languageStaysWithItsButton()
    {
        const OrdinaryRights rights;
        QVERIFY(pressButton(&page(), "language_zh_CN"));
        // The windows would hear of it from the event loop.
        QCoreApplication::processEvents();
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "lblContacts"), QStringLiteral("Contacts"));
        QVERIFY(part<QRadioButton>("language_en")->isChecked());
        QVERIFY(!part<QRadioButton>("language_zh_CN")->isChecked());
        tellsThatNothingWasChanged(HostSettings::commonFile());
    }

    void languageByTheArrowKeysStaysWithItsButton()
    {
        const OrdinaryRights rights;
        part<QRadioButton>("language_en")->setFocus();
        QTest::keyClick(part<QRadioButton>("language_en"), Qt::Key_Left);
        QCoreApplication::processEvents();
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "lblContacts"), QStringLiteral("Contacts"));
        QVERIFY(part<QRadioButton>("language_en")->isChecked());
        tellsThatNothingWasChanged(HostSettings::commonFile());
    }

    void colourStaysWithItsButton()
    {
        const OrdinaryRights rights;
        QVERIFY(pressButton(&page(), "skin_ThemeBlue"));
        QCOMPARE(HostSkins::currentName(), QStringLiteral("ThemeGreen"));
        QVERIFY(m_pWindow->styleSheet().contains(QStringLiteral("#2f8038")));
        QVERIFY(part<QRadioButton>("skin_ThemeGreen")->isChecked());
        tellsThatNothingWasChanged(HostSettings::userFile());
    }

    void ringSwitchSpringsBack()
    {
        const OrdinaryRights rights;
        auto *silent = part<QCheckBox>("boxSilent");
        silent->setFocus();
        QTest::keyClick(silent, Qt::Key_Space);
        QVERIFY(!silent->isChecked());
        QVERIFY(SharedContext::getSystemSetData()->m_strCloseVoice != QStringLiteral("1"));
        tellsThatNothingWasChanged(HostSettings::userFile());
    }

    void folderSpringsBackThoughItCouldBeUsed_data()
    {
        QTest::addColumn<QByteArray>("edit");
        QTest::newRow("data") << QByteArray("editDataFolder");
        QTest::newRow("received files") << QByteArray("editReceiveFolder");
    }

    void folderSpringsBackThoughItCouldBeUsed()
    {
        QFETCH(QByteArray, edit);
        const OrdinaryRights rights;
        auto *field = part<QLineEdit>(edit);
        const QString before = field->text();
        field->setText(QDir::current().absoluteFilePath(QStringLiteral("elsewhere")));
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(field->text(), before);
        QCOMPARE(part<QLabel>("lblFolderError")->text(), QString());
        tellsThatNothingWasChanged(edit == "editDataFolder" ? HostSettings::commonFile() : HostSettings::userFile());
    }

    void choiceThatWasRefusedIsNotWrittenLater()
    {
        {
            const OrdinaryRights rights;
            QVERIFY(pressButton(&page(), "language_zh_CN"));
            QVERIFY(pressButton(&page(), "skin_ThemeBlue"));
        }
        setWritable(true);
        // Another change goes into the same files.
        part<QCheckBox>("boxSilent")->setFocus();
        QTest::keyClick(part<QCheckBox>("boxSilent"), Qt::Key_Space);
        QVERIFY(
            SettingsFile::write(HostSettings::commonFile(), {{QStringLiteral("/test/other"), QStringLiteral("x")}}));
        QVERIFY(part<QCheckBox>("boxSilent")->isChecked());
        QCOMPARE(part<QLabel>("lblNotKept")->text(), QString());
        QCOMPARE(HostSettings::language(), QStringLiteral("en"));
        QCOMPARE(HostSettings::skin(), QStringLiteral("ThemeGreen"));
        // And the choice itself can be made now.
        QVERIFY(pressButton(&page(), "language_zh_CN"));
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(m_pWindow.get(), "lblContacts"), QStringLiteral("联系人"),
                                  cPatienceMs);
        QVERIFY(part<QRadioButton>("language_zh_CN")->isChecked());
    }

    void wordsGoWhenThePageOpensAgain()
    {
        const OrdinaryRights rights;
        QVERIFY(pressButton(&page(), "skin_ThemeBlue"));
        QVERIFY(!part<QLabel>("lblNotKept")->text().isEmpty());
        QTest::keyClick(&page(), Qt::Key_Escape);
        QVERIFY(pressButton(m_pWindow.get(), "btnSettings"));
        QCOMPARE(part<QLabel>("lblNotKept")->text(), QString());
    }

private:
    void tellsThatNothingWasChanged(const QString &strFile)
    {
        const auto *words = part<QLabel>("lblNotKept");
        QCOMPARE(words->text(), QStringLiteral("Nothing was changed: %1 cannot be written to.").arg(strFile));
        QVERIFY(words->isVisible());
    }
    /// A file that cannot be written stands in a folder that takes no new one.
    static void setWritable(bool bWritable)
    {
        const QFile::Permissions look = QFile::ReadOwner | QFile::ExeOwner;
        const QFile::Permissions write = bWritable ? QFile::Permissions(QFile::WriteOwner) : QFile::Permissions();
        for (const QString &file : {HostSettings::userFile(), HostSettings::commonFile()}) {
            QFile::setPermissions(file, QFile::ReadOwner | write);
            QVERIFY(QFile::setPermissions(QFileInfo(file).absolutePath(), look | write));
        }
    }

    std::unique_ptr<HostLanguage> m_pWords;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SettingsNotKept, Widgets)
#include "tst_SettingsNotKept.moc"
