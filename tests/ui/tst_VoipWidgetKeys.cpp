// The events that the call window watches in itself and its controls: Escape asks, leaving is swallowed.

#include "CallWindowTest.h"

#include "fakes/MessageBoxes.h"
#include "fakes/Patience.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSlider>
#include <QWindow>

namespace {

/// Keeps the key presses from what it watches.
class KeyPressStop : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::KeyPress; }
};

} // namespace

class tst_VoipWidgetKeys : public CallWindowTest
{
    Q_OBJECT

private:
    /// What the window answers to an event of the watched object; false lets it go on.
    bool isSwallowed(QObject *pWatched, QEvent *pEvent)
    {
        return static_cast<QObject *>(m_pWindow.get())->eventFilter(pWatched, pEvent);
    }
    /// Escape, as the window system brings it.
    void pressEscape() { QTest::keyClick(m_pWindow->windowHandle(), Qt::Key_Escape); }

private slots:
    void confirmedEscapeHangsUpAndTheWindowStays()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        newRecords();
        QStringList words;
        answerQuestion("acceptBtn", [&words] { words = questionWords(); });
        pressEscape();
        QCOMPARE(words, (QStringList{"tip", "beSureToCloseCalling", "sure", "cancel"}));
        QCOMPARE(m_sent, QStringList{"hangup"});
        QVERIFY(m_pWindow->isVisible());
        QCOMPARE(newRecords(), QStringList{"VoipWidget.cpp: click hangup button!"});
    }

    void cancelledEscapeLeavesTheCall()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        answerQuestion("closeBtn");
        pressEscape();
        QCOMPARE(m_sent, QStringList());
        QVERIFY(m_pWindow->isVisible());
    }

    void escapeGoesOnInEitherAnswer_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("confirmed") << QByteArray("acceptBtn");
        QTest::newRow("cancelled") << QByteArray("closeBtn");
    }

    void escapeGoesOnInEitherAnswer()
    {
        QFETCH(QByteArray, answer);
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        bool bAsked = false;
        answerQuestion(answer.constData(), [&bAsked] { bAsked = true; });
        QVERIFY(!isSwallowed(m_pWindow.get(), &escape));
        QVERIFY(bAsked);
    }

    void escapeInsideAWatchedControlAsksOnce_data()
    {
        QTest::addColumn<QByteArray>("control");
        for (const char *name :
             {"btnMic", "btnSpeaker", "btnCamera", "btnChangeWindow", "m_pMicSlider", "m_pSpeakerSlider"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }

    void escapeInsideAWatchedControlAsksOnce()
    {
        QFETCH(QByteArray, control);
        startCall(CVoipWidget::Voice, true);
        showWindow();
        auto *pControl = part<QWidget>(control.constData());
        pControl->show();
        // The kit's buttons take no focus by themselves; their inner one can be given it.
        auto *pInner = pControl->findChild<QAbstractButton *>();
        QWidget *pFocus = pInner != nullptr ? pInner : pControl;
        pFocus->setFocusPolicy(Qt::StrongFocus);
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        pFocus->setFocus();
        QCOMPARE(QApplication::focusWidget(), pFocus);
        const MessageBoxes questions;
        pressEscape();
        QCOMPARE(questions.texts, QStringList{"beSureToCloseCalling"});
    }

    void everyEscapeAsks()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        const MessageBoxes questions;
        auto *pMic = part<QWidget>("btnMic");
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(pMic, Qt::Key_Escape);
        }
        pressEscape();
        QCOMPARE(questions.texts.size(), 4);
    }

    void escapeThatNeverCameToTheWindowIsForgotten()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        const MessageBoxes questions;
        // The widget around the button keeps the key to itself; the next press may stand at the same address.
        KeyPressStop stop;
        part<QWidget>("widget")->installEventFilter(&stop);
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(part<QWidget>("btnMic"), &escape);
        QCOMPARE(questions.texts.size(), 1);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(part<QWidget>("btnMic"), &release);
        QApplication::sendEvent(m_pWindow.get(), &escape);
        QCOMPARE(questions.texts.size(), 2);
    }

    void confirmedEscapeInsideAButtonHangsUpOnce()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        answerQuestion("acceptBtn");
        QTest::keyClick(part<QWidget>("btnSpeaker"), Qt::Key_Escape);
        QCOMPARE(m_sent, QStringList{"hangup"});
    }

    void otherKeysAskNothing()
    {
        startCall(CVoipWidget::Voice, true);
        showWindow();
        const MessageBoxes questions;
        for (const int iKey : {Qt::Key_Return, Qt::Key_Space, Qt::Key_F4, Qt::Key_A}) {
            QTest::keyClick(m_pWindow->windowHandle(), Qt::Key(iKey));
            QKeyEvent press(QEvent::KeyPress, iKey, Qt::NoModifier);
            QVERIFY(!isSwallowed(part<QWidget>("btnMic"), &press));
        }
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
        QVERIFY(!isSwallowed(m_pWindow.get(), &release));
        QCoreApplication::processEvents();
        QCOMPARE(questions.texts, QStringList());
        QCOMPARE(m_sent, QStringList());
    }

    void typedKeysEndNoCall()
    {
        // A call window that comes up under typing hands takes the next blank: it must not press a button with it, and
        // Tab leads to none that ends the call.
        for (const CVoipWidget::VoipType type : {CVoipWidget::Voice, CVoipWidget::Conference}) {
            for (const bool bConnected : {false, true}) {
                startAnew();
                startCall(type, bConnected);
                showWindow();
                m_pWindow->activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
                for (const int iKey : {Qt::Key_Space, Qt::Key_Return, Qt::Key_A}) {
                    QTest::keyClick(m_pWindow->windowHandle(), Qt::Key(iKey));
                }
                QCOMPARE(m_sent, QStringList());
                for (int i = 0; i < 8; ++i) {
                    for (const int iKey : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return}) {
                        QTest::keyClick(m_pWindow->windowHandle(), Qt::Key(iKey));
                    }
                }
                QVERIFY(!m_sent.contains("hangup"));
                QCOMPARE(m_sent.contains("mic-"), bConnected);
            }
        }
    }

    void leavingIsSwallowed_data()
    {
        QTest::addColumn<bool>("swallowed");
        for (const char *name : {"btnMic", "btnSpeaker", "btnCamera", "btnChangeWindow"}) {
            QTest::newRow(name) << true;
        }
        QTest::newRow("btnMuteAll") << false;
        QTest::newRow("btnClose") << false;
    }

    void leavingIsSwallowed()
    {
        // A kit button dresses itself anew when the cursor leaves it, unless it never hears of that.
        auto *pButton = button(QTest::currentDataTag());
        pButton->setStyleSheet(QString());
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(part<QWidget>(QTest::currentDataTag()), &leave);
        QTEST(pButton->styleSheet().isEmpty(), "swallowed");
        for (QObject *pWatched :
             {static_cast<QObject *>(m_pWindow.get()), static_cast<QObject *>(part<QSlider>("m_pMicSlider")),
              static_cast<QObject *>(part<QSlider>("m_pSpeakerSlider"))}) {
            QVERIFY(isSwallowed(pWatched, &leave));
        }
    }

    void enteringGoesOn()
    {
        auto *pButton = button("btnMic");
        pButton->setStyleSheet(QString());
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(part<QWidget>("btnMic"), &enter);
        QVERIFY(!pButton->styleSheet().isEmpty());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_VoipWidgetKeys, Widgets)

#include "tst_VoipWidgetKeys.moc"
