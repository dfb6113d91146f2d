// The key of the whole desktop that leads to the prompt, pressed on the real keyboard while other programs have it, and
// chosen in the settings by mouse and keys.

#include "client/HostSettings.h"
#include "client/SettingsFile.h"
#include "desktop/HotKey.h"
#include "screen/WindowProbe.h"

#include "host/panes/ClientTest.h"
#include "host/panes/Deeds.h"

#include <QCheckBox>
#include <QDir>
#include <QKeySequenceEdit>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>

class tst_PromptKey : public ClientTest
{
    Q_OBJECT

public:
    tst_PromptKey() : ClientTest(Begin::SignedIn) {}

private slots:
    void fitKeysLeaveTypingAlone_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("fit");
        QTest::newRow("with Ctrl and Alt") << "Ctrl+Alt+I" << true;
        QTest::newRow("with the Windows key") << "Meta+9" << true;
        QTest::newRow("arrow") << "Ctrl+Up" << true;
        QTest::newRow("function key") << "F9" << true;
        QTest::newRow("last function key") << "F35" << true;
        QTest::newRow("letter") << "I" << false;
        QTest::newRow("large letter") << "Shift+I" << false;
        QTest::newRow("arrow alone") << "Up" << false;
        QTest::newRow("no key of X") << "Ctrl+Launch (1)" << false;
        QTest::newRow("none") << "" << false;
    }

    void fitKeysLeaveTypingAlone()
    {
        QFETCH(QString, key);
        QTEST(HotKey::isFit(QKeySequence(key, QKeySequence::PortableText)), "fit");
    }

    void offFromTheStart()
    {
        ringElsewhere();
        QVERIFY(press("ctrl+alt+i"));
        QTest::qWait(500);
        QVERIFY(!m_pWindow->prompt().isActiveWindow());
        showKeys();
        QVERIFY(!box()->isChecked());
        QVERIFY(!edit()->isEnabled());
    }

    void keyGoesToThePromptFromEveryProgram_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::newRow("no lock") << QByteArray();
        QTest::newRow("number lock") << QByteArray("Num_Lock");
        QTest::newRow("capitals lock") << QByteArray("Caps_Lock");
    }

    void keyGoesToThePromptFromEveryProgram()
    {
        QFETCH(QByteArray, lock);
        showKeys();
        switchOn();
        QCOMPARE(note(), QStringLiteral("Ctrl+Alt+I goes to the prompt of a ringing call from every program. Press "
                                        "another key in the field to change it."));
        m_pWindow->settingsPage().close();
        ringElsewhere();
        QVERIFY(lock.isEmpty() || press(lock));
        QVERIFY(press("ctrl+alt+i"));
        const bool bCame = QTest::qWaitFor([this] { return m_pWindow->prompt().isActiveWindow(); }, cPatienceMs);
        QVERIFY(lock.isEmpty() || press(lock));
        QVERIFY(bCame);
        // It is answered there.
        const QSignalSpy answered(&m_pWindow->prompt(), &IncomingPrompt::answered);
        QVERIFY(press("Return"));
        QTRY_COMPARE_WITH_TIMEOUT(answered.size(), 1, cPatienceMs);
        QCOMPARE(answered.at(0).at(1).toBool(), true);
    }

    void whileNothingRingsItDoesNothing()
    {
        showKeys();
        switchOn();
        m_pWindow->settingsPage().close();
        m_pWindow->showMinimized();
        QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::applicationState(), Qt::ApplicationInactive, cPatienceMs);
        QVERIFY(press("ctrl+alt+i"));
        QTest::qWait(500);
        QVERIFY(!m_pWindow->prompt().isVisible());
        QCOMPARE(QGuiApplication::applicationState(), Qt::ApplicationInactive);
    }

    void anotherKeyIsChosenByPressingIt()
    {
        showKeys();
        switchOn();
        choose("F9");
        QTRY_VERIFY_WITH_TIMEOUT(note().startsWith(QStringLiteral("F9 goes to the prompt")), cPatienceMs);
        QCOMPARE(stored("promptKey"), QStringLiteral("F9"));
        m_pWindow->settingsPage().close();
        ringElsewhere();
        QVERIFY(press("ctrl+alt+i"));
        QTest::qWait(500);
        QVERIFY(!m_pWindow->prompt().isActiveWindow());
        QVERIFY(press("F9"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isActiveWindow(), cPatienceMs);
    }

    void keyOfTypingIsRefused()
    {
        showKeys();
        switchOn();
        choose("x");
        QTRY_VERIFY_WITH_TIMEOUT(note().startsWith(QStringLiteral("X is needed for typing.")), cPatienceMs);
        QCOMPARE(stored("promptKey"), QStringLiteral("Ctrl+Alt+I"));
    }

    void keyOfAnotherProgramIsRefusedWithAWord()
    {
        HotKey other;
        QCOMPARE(other.take(QKeySequence(QStringLiteral("Ctrl+Alt+I"))), HotKey::On);
        showKeys();
        switchOn();
        QCOMPARE(note(), QStringLiteral("The desktop refuses Ctrl+Alt+I: another program has it. Press another key in "
                                        "the field."));
        // The other one keeps it.
        const QSignalSpy pressed(&other, &HotKey::pressed);
        QVERIFY(press("ctrl+alt+i"));
        QTRY_COMPARE_WITH_TIMEOUT(pressed.size(), 1, cPatienceMs);
    }

    void switchedOffItIsGivenBack()
    {
        showKeys();
        switchOn();
        HotKey other;
        QCOMPARE(other.take(QKeySequence(QStringLiteral("Ctrl+Alt+I"))), HotKey::Taken);
        Deeds off({Deeds::click(page(), "boxPromptKey", [this] { return !box()->isChecked(); })});
        QVERIFY(off.finish());
        QCOMPARE(stored("promptKeyOn"), QStringLiteral("0"));
        QCOMPARE(other.take(QKeySequence(QStringLiteral("Ctrl+Alt+I"))), HotKey::On);
    }

    void onAgainAtTheNextStart()
    {
        showKeys();
        switchOn();
        end();
        start();
        ringElsewhere();
        QVERIFY(press("ctrl+alt+i"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isActiveWindow(), cPatienceMs);
    }

    void keyThatCannotBeWrittenChangesNothing()
    {
        const QString file = HostSettings::userFile();
        QFile::remove(file);
        QVERIFY(QDir().mkpath(file));
        showKeys();
        Deeds deeds({Deeds::click(page(), "boxPromptKey", [this] {
            return said("lblNotKept").startsWith(QStringLiteral("Nothing was changed:"));
        })});
        QVERIFY(deeds.finish());
        QVERIFY(!box()->isChecked());
        QVERIFY(QDir().rmdir(file));
    }

    void keyThatTheKeyboardLacksIsTold()
    {
        HotKey key;
        QCOMPARE(key.take(QKeySequence(QStringLiteral("F35"))), HotKey::Unfit);
    }

    void desktopThatLendsNoneIsTold()
    {
        qputenv("WAYLAND_DISPLAY", "wayland-0");
        showKeys();
        switchOn();
        qunsetenv("WAYLAND_DISPLAY");
        QVERIFY(note().startsWith(QStringLiteral("This desktop gives no program a key of its own.")));
    }

private:
    std::function<QWidget *()> page()
    {
        return [this] { return &m_pWindow->settingsPage(); };
    }
    QCheckBox *box() { return m_pWindow->settingsPage().findChild<QCheckBox *>(QStringLiteral("boxPromptKey")); }
    QKeySequenceEdit *edit() { return m_pWindow->settingsPage().findChild<QKeySequenceEdit *>(); }
    QString note() { return said("lblPromptKeyNote"); }
    QString said(const char *strLabel) { return WindowProbe::text(&m_pWindow->settingsPage(), strLabel); }
    static QString stored(const char *strKey)
    {
        return SettingsFile::read(HostSettings::userFile(), QStringLiteral("/keySetting/") + strKey);
    }
    static bool press(const QByteArray &key) { return Deeds::key(key)(); }
    /// Opens the page of the keyboard by the mouse.
    void showKeys()
    {
        const auto *bar = m_pWindow->settingsPage().findChild<QTabBar *>();
        m_pWindow->comeToFront();
        Deeds deeds(
            {Deeds::click([this] { return m_pWindow.get(); }, "btnSettings",
                          [this] { return m_pWindow->settingsPage().isActiveWindow(); }),
             [bar, this] { return box()->isVisible() || (Deeds::clickOn(*bar, bar->tabRect(2).center()) && false); }});
        QVERIFY(deeds.finish());
    }
    void switchOn()
    {
        Deeds deeds({Deeds::click(page(), "boxPromptKey", [this] { return box()->isChecked(); })});
        QVERIFY(deeds.finish());
        QVERIFY(edit()->isEnabled());
    }
    /// Presses the key in the field.
    void choose(const QByteArray &key)
    {
        Deeds deeds(
            {Deeds::click(page(), "editPromptKey",
                          [this] { return edit()->isAncestorOf(QApplication::focusWidget()) || edit()->hasFocus(); }),
             Deeds::key(key)});
        QVERIFY(deeds.finish());
    }
    /// A call rings while no window of the client has the keyboard.
    void ringElsewhere()
    {
        m_pWindow->showMinimized();
        QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::applicationState(), Qt::ApplicationInactive, cPatienceMs);
        ring(QStringLiteral("30010006"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isVisible(), cPatienceMs);
        QVERIFY(QTest::qWaitForWindowExposed(&m_pWindow->prompt(), cPatienceMs));
        QVERIFY(!m_pWindow->prompt().isActiveWindow());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PromptKey, Widgets)
#include "tst_PromptKey.moc"
