// The call window by keys alone: its own keys, Tab, the member list with its rows' buttons and menu, and the ring that
// shows where the keys are.

#include "CallWindowTest.h"

#include "fakes/MessageBoxes.h"
#include "fakes/Patience.h"
#include "widgets/FocusRing.h"

#include <QApplication>
#include <QMenu>
#include <QSlider>
#include <QWindow>

class tst_CallWindowKeys : public CallWindowTest
{
    Q_OBJECT

private:
    void showActive(CVoipWidget::VoipType type, bool bConnected = true)
    {
        startCall(type, bConnected);
        if (type == CVoipWidget::Conference) {
            m_pWindow->updateConferenceUserStatus(uid("ann"), ConferenceConnected);
            m_pWindow->updateConferenceUserStatus(uid("bob"), ConferenceBusy);
        }
        showWindow();
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        m_sent.clear();
    }
    /// A key as the window system brings it, to the window that has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_pWindow->windowHandle(), key, modifiers);
    }
    CConferenceListView *list() const { return part<CConferenceListView>("listView"); }
    /// Tab until the list has the focus, a few times at most.
    void tabToTheList()
    {
        for (int i = 0; i < 6 && !list()->hasFocus(); ++i) {
            press(Qt::Key_Tab);
        }
        QVERIFY(list()->hasFocus());
    }
    /// Where the ring of the keys stands, in the window's coordinates; null where none is to be seen.
    QRect ring() const
    {
        QCoreApplication::processEvents();
        QRect found;
        for (const QWidget *pRing : m_pWindow->findChildren<QWidget *>("focusRing")) {
            if (pRing->isVisible()) {
                found |= QRect(pRing->mapTo(m_pWindow.get(), QPoint()), pRing->size());
            }
        }
        return found;
    }
    QRect placeOf(const QWidget *pPart) const { return {pPart->mapTo(m_pWindow.get(), QPoint()), pPart->size()}; }
    QRect placeInList(const QRect &place) const
    {
        return {list()->viewport()->mapTo(m_pWindow.get(), place.topLeft()), place.size()};
    }
    QRect placeOfRow(int iRow) const { return placeInList(list()->visualRect(rows()->index(iRow, 0))); }
    static QMenu *menu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    static QStringList entriesOfMenu()
    {
        QStringList texts;
        if (menu() != nullptr) {
            for (const QAction *pAction : menu()->actions()) {
                texts.append(pAction->text());
            }
        }
        return texts;
    }

private slots:
    void keysOfTheWindow_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QStringList>("sent");
        const int iShift = Qt::ControlModifier | Qt::ShiftModifier;
        QTest::newRow("mute") << int(Qt::Key_M) << int(Qt::ControlModifier) << QStringList{"mic-"};
        QTest::newRow("sound off") << int(Qt::Key_M) << iShift << QStringList{"speaker-"};
        QTest::newRow("mute all") << int(Qt::Key_A) << iShift << QStringList{"muteall+"};
        QTest::newRow("louder") << int(Qt::Key_Up) << int(Qt::ControlModifier) << QStringList{"speakervolume=6"};
        QTest::newRow("softer") << int(Qt::Key_Down) << int(Qt::ControlModifier) << QStringList{"speakervolume=4"};
        QTest::newRow("microphone louder") << int(Qt::Key_Up) << iShift << QStringList{"micvolume=6"};
        QTest::newRow("microphone softer") << int(Qt::Key_Down) << iShift << QStringList{"micvolume=4"};
        QTest::newRow("hang up") << int(Qt::Key_E) << int(Qt::ControlModifier) << QStringList{"hangup"};
    }

    void keysOfTheWindow()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        showActive(CVoipWidget::Conference);
        press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QTRY_VERIFY_WITH_TIMEOUT(!m_sent.isEmpty(), cPatienceMs);
        QTEST(m_sent, "sent");
        // No slider comes up for it.
        QVERIFY(!part<QWidget>("m_pMicSlider")->isVisible());
        QVERIFY(!part<QWidget>("m_pSpeakerSlider")->isVisible());
    }

    void keysHoldAgainAndAgain()
    {
        // Each press gives the button a new glyph or word, which takes a button's keys away.
        showActive(CVoipWidget::Voice);
        for (const char *pSent : {"mic-", "mic+", "mic-"}) {
            press(Qt::Key_M, Qt::ControlModifier);
            QTRY_COMPARE_WITH_TIMEOUT(m_sent, QStringList{pSent}, cPatienceMs);
            m_sent.clear();
        }
        QEvent language(QEvent::LanguageChange);
        QApplication::sendEvent(m_pWindow.get(), &language);
        press(Qt::Key_E, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(m_sent, QStringList{"hangup"}, cPatienceMs);
    }

    void keysOfAPageThatIsNotShownDoNothing()
    {
        showActive(CVoipWidget::Voice, false);
        press(Qt::Key_M, Qt::ControlModifier);
        press(Qt::Key_Up, Qt::ControlModifier);
        press(Qt::Key_E, Qt::ControlModifier);
        // Cancel comes behind them, and sends what its click sends.
        QTRY_VERIFY_WITH_TIMEOUT(!m_pWindow->isVisible(), cPatienceMs);
        QCOMPARE(m_sent, (QStringList{"hangup", "mic+", "speaker+", "hangup", "clear"}));
    }

    void closeKeysAsk()
    {
        showActive(CVoipWidget::Voice);
        const MessageBoxes questions;
        press(Qt::Key_W, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(questions.texts, QStringList{"beSureToCloseCalling"}, cPatienceMs);
    }

    void volumeEndsAtItsEnds()
    {
        showActive(CVoipWidget::Voice);
        for (int i = 0; i < 12; ++i) {
            press(Qt::Key_Up, Qt::ControlModifier);
        }
        QCOMPARE(m_sent.size(), 5);
        QCOMPARE(m_sent.last(), QStringLiteral("speakervolume=10"));
        QCOMPARE(part<QSlider>("m_pSpeakerSlider")->accessibleName(), QStringLiteral("Speaker volume"));
    }

    void tabStopsAtWhatMayBePressed()
    {
        showActive(CVoipWidget::Conference);
        QCOMPARE(QApplication::focusWidget(), m_pWindow.get());
        QStringList stops;
        for (int i = 0; i < 4; ++i) {
            press(Qt::Key_Tab);
            const QWidget *pFocus = QApplication::focusWidget();
            stops.append(pFocus->objectName() == "pushButton" ? pFocus->parentWidget()->parentWidget()->objectName()
                                                              : pFocus->objectName());
            QVERIFY2(!ring().isNull(), qPrintable(stops.last()));
        }
        QCOMPARE(stops, (QStringList{"btnAddMember", "listView", "btnMic", "btnSpeaker"}));
        press(Qt::Key_Space);
        press(Qt::Key_Return);
        QCOMPARE(m_sent, (QStringList{"speaker-", "speaker+"}));
        QCOMPARE(ring(), placeOf(part<QWidget>("btnSpeaker")));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(ring(), placeOf(part<QWidget>("btnMic")));
    }

    void ringComesWithKeysAlone()
    {
        showActive(CVoipWidget::Conference);
        const QImage bare = m_pWindow->grab().toImage();
        QVERIFY(ring().isNull());
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list()->visualRect(rows()->index(1, 0)).center());
        QVERIFY(list()->hasFocus());
        QVERIFY(ring().isNull());
        QCOMPARE(m_pWindow->grab().toImage(), bare);
        press(Qt::Key_Up);
        QCOMPARE(ring(), placeOfRow(0));
        QVERIFY(m_pWindow->grab().toImage() != bare);
        // The mouse takes it away again.
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list()->visualRect(rows()->index(1, 0)).center());
        QVERIFY(ring().isNull());
        QCOMPARE(m_pWindow->grab().toImage(), bare);
    }

    void arrowsReachTheButtonsOfARow()
    {
        showActive(CVoipWidget::Conference);
        tabToTheList();
        QCOMPARE(ring(), placeOfRow(0));
        press(Qt::Key_Right);
        QVERIFY(ring().contains(placeInList(rows()->index(0, 0).data(ROLE_MUTE_RECT).toRect())));
        press(Qt::Key_Return);
        QCOMPARE(m_sent, QStringList{"mute ann+"});
        press(Qt::Key_Space);
        QCOMPARE(m_sent, (QStringList{"mute ann+", "mute ann-"}));
        m_sent.clear();
        press(Qt::Key_Right);
        press(Qt::Key_Right);
        QVERIFY(ring().contains(placeInList(rows()->index(0, 0).data(ROLE_REMOVE_RECT).toRect())));
        press(Qt::Key_Return);
        QCOMPARE(m_sent, QStringList{"remove ann"});
        m_sent.clear();
        // The next row begins as a whole; bob was busy, and is called again.
        press(Qt::Key_Down);
        QCOMPARE(ring(), placeOfRow(1));
        press(Qt::Key_Return);
        QCOMPARE(m_sent, QStringList{"reinvite bob"});
        m_sent.clear();
        // He has no mute button.
        press(Qt::Key_Right);
        QVERIFY(ring().contains(placeInList(rows()->index(1, 0).data(ROLE_REMOVE_RECT).toRect())));
        press(Qt::Key_Left);
        press(Qt::Key_Left);
        QCOMPARE(ring(), placeOfRow(1));
    }

    void deleteRemovesWhoHasTheButton()
    {
        showActive(CVoipWidget::Conference);
        tabToTheList();
        press(Qt::Key_Delete);
        QCOMPARE(m_sent, QStringList{"remove ann"});
        m_pWindow->updateConferenceUserStatus(uid("ann"), ConferenceCalling);
        press(Qt::Key_Delete);
        QCOMPARE(m_sent, QStringList{"remove ann"});
    }

    void whoJoinedAConferenceCannotControlIt()
    {
        m_pWindow->setVoipCallInfo({uid("ann"), uid("bob")}, CVoipWidget::Conference, false, true);
        m_pWindow->updateConferenceUserStatus(uid("ann"), ConferenceConnected);
        showWindow();
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        tabToTheList();
        m_sent.clear();
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Menu}) {
            press(key);
        }
        QVERIFY(menu() == nullptr);
        QCOMPARE(m_sent, QStringList());
    }

    void menuKeyOffersWhatCanBeDone_data()
    {
        QTest::addColumn<bool>("f10");
        QTest::newRow("Menu") << false;
        QTest::newRow("Shift+F10") << true;
    }

    void menuKeyOffersWhatCanBeDone()
    {
        QFETCH(bool, f10);
        const auto openMenu = [&] {
            f10 ? press(Qt::Key_F10, Qt::ShiftModifier) : press(Qt::Key_Menu);
            QTRY_VERIFY_WITH_TIMEOUT(menu() != nullptr, cPatienceMs);
        };
        showActive(CVoipWidget::Conference);
        tabToTheList();
        openMenu();
        QCOMPARE(entriesOfMenu(), (QStringList{"静音", "移出会议"}));
        QTest::keyClick(menu(), Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(m_sent, QStringList{"mute ann+"}, cPatienceMs);
        openMenu();
        QCOMPARE(entriesOfMenu(), (QStringList{"取消静音", "移出会议"}));
        QTest::keyClick(menu(), Qt::Key_Escape);
        QTRY_VERIFY_WITH_TIMEOUT(menu() == nullptr, cPatienceMs);
        press(Qt::Key_Down);
        openMenu();
        QCOMPARE(entriesOfMenu(), (QStringList{"再次呼叫", "移出会议"}));
        QTest::keyClick(menu(), Qt::Key_Down);
        QTest::keyClick(menu(), Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(m_sent, (QStringList{"mute ann+", "remove bob"}), cPatienceMs);
    }

    void ringFollowsTheRows()
    {
        QStringList members{uid("ann"), uid("bob")};
        for (int i = 0; i < 30; ++i) {
            members.append(uid("m%1").arg(i));
        }
        m_pWindow->setVoipCallInfo(members, CVoipWidget::Conference, true, true);
        showWindow();
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        tabToTheList();
        press(Qt::Key_Down);
        m_pWindow->removeConferenceMember(uid("ann"));
        QCOMPARE(ring(), placeOfRow(0));
        press(Qt::Key_End);
        QCOMPARE(ring(), placeOfRow(30));
        m_pWindow->clearUI();
        QVERIFY(ring().isNull());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallWindowKeys, Widgets)

#include "tst_CallWindowKeys.moc"
