#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/ClientTest.h"
#include "host/panes/PressButton.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <iterator>

/// What places a call: buttons, keys and the picker of people, and why they cannot do so now.
class tst_MainWindowCalls : public ClientTest
{
    Q_OBJECT

private slots:
    void whatCannotBeDoneNowIsDisabledWithTheReason_data()
    {
        QTest::addColumn<QByteArray>("state");
        QTest::addColumn<QString>("reason");
        QTest::newRow("in a call") << QByteArray("call") << QStringLiteral("You are in a call. End it first.");
        QTest::newRow("signed out") << QByteArray("out") << QStringLiteral("You are signed out. Sign in first.");
        QTest::newRow("no call service") << QByteArray("service")
                                         << QStringLiteral("The call service cannot be reached.");
        QTest::newRow("call service on its way")
            << QByteArray("wait") << QStringLiteral("The call service is being reached. Wait a moment.");
    }

    void whatCannotBeDoneNowIsDisabledWithTheReason()
    {
        QFETCH(QByteArray, state);
        QFETCH(QString, reason);
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(25), true, false, qint64(0)));
        m_pWindow->findChild<QLineEdit *>(QStringLiteral("editNumber"))->setText(QStringLiteral("4711"));
        QCOMPARE(disabledTips(), QStringList());
        enter(state, true);
        QCOMPARE(disabledTips().size(), callers().size());
        QCOMPARE(disabledTips().filter(reason).size(), callers().size());
        QString asked;
        QTimer timer;
        cancelThePicker(timer, asked);
        // A click, a key and a double click do nothing but say why.
        QVERIFY(!pressButton(m_pWindow.get(), "btnConference"));
        auto *row = m_pWindow->findChild<QWidget *>(QStringLiteral("30010002"));
        QTest::keyClick(row, Qt::Key_Return);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), reason);
        auto *number = m_pWindow->findChild<QLineEdit *>(QStringLiteral("editNumber"));
        QTest::keyClick(number, Qt::Key_Return);
        QCOMPARE(number->text(), QStringLiteral("4711"));
        QVERIFY(asked.isNull());
        enter(state, false);
        QCOMPARE(disabledTips(), QStringList());
    }

    void wishOfThePlugInIsRefusedBeforePicking()
    {
        ring(QStringLiteral("30010006"));
        QString said;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box != nullptr) {
                timer.stop();
                said = box->text();
                QTest::keyClick(box, Qt::Key_Return);
            }
            if (pressButton(WindowProbe::memberPicker(), "btnCancel")) {
                timer.stop();
                said = QStringLiteral("the picker");
            }
        });
        timer.start(10);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(), packPayload(QStringList{QStringLiteral("30010001")}));
        QCOMPARE(said, QStringLiteral("You are in a call. End it first."));
    }

    void keyboardStaysWithTheContactWhoIsCalled()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        auto *row = m_pWindow->findChild<QWidget *>(QStringLiteral("30010002"));
        row->setFocus();
        QTest::keyClick(row, Qt::Key_Tab);
        QCOMPARE(m_pWindow->focusWidget()->objectName(), QStringLiteral("btnCall"));
        m_pWindow->readiness().setCall(CallReadiness::Call::On);
        QCOMPARE(m_pWindow->focusWidget(), row);
    }

    void numberCanBeCalledOnlyWhenThereIsOne()
    {
        auto *number = m_pWindow->findChild<QLineEdit *>(QStringLiteral("editNumber"));
        QVERIFY(!pressButton(m_pWindow.get(), "btnCallNumber"));
        QTest::keyClicks(number, QStringLiteral(" 4711 "));
        QVERIFY(pressButton(m_pWindow.get(), "btnCallNumber"));
        QTRY_VERIFY_WITH_TIMEOUT(number->text().isEmpty(), cPatienceMs);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Calling 4711"));
    }

    void conferenceButtonOpensThePicker()
    {
        QString asked;
        QTimer timer;
        cancelThePicker(timer, asked);
        QVERIFY(pressButton(m_pWindow.get(), "btnConference"));
        QCOMPARE(asked, QStringLiteral("Whom to call together?"));
        QVERIFY(WindowProbe::memberPicker() == nullptr);
    }

    void plugInsWishForAConferenceIsAnsweredWithTheCommand()
    {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (pressButton(WindowProbe::memberPicker(), "btnInvite")) {
                timer.stop();
            }
        });
        timer.start(10);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(), packPayload(QStringList{QStringLiteral("30010001")}));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Starting a conference with 1 other(s)"));
    }

    void statusLineCountsThePickedNotTheAsked_data()
    {
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QStringList>("picked");
        const QString one = QStringLiteral("30010001");
        const QString two = QStringLiteral("30010002");
        const QString three = QStringLiteral("30010003");
        QTest::newRow("more") << QStringList{one} << QStringList{one, two, three};
        QTest::newRow("fewer") << QStringList{one, two} << QStringList{three};
        QTest::newRow("as many") << QStringList{one, two} << QStringList{one, three};
        QTest::newRow("nobody asked") << QStringList() << QStringList{two, three};
    }

    void statusLineCountsThePickedNotTheAsked()
    {
        QFETCH(QStringList, asked);
        QFETCH(QStringList, picked);
        QTimer timer;
        pickAndInvite(timer, picked);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(), packPayload(asked));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(),
                 QStringLiteral("Starting a conference with %1 other(s)").arg(picked.size()));
    }

    void membersArePickedWithinThePlugInsQuestion()
    {
        const QStringList picked{QStringLiteral("30010003")};
        QTimer timer;
        pickAndInvite(timer, picked);
        const QByteArray answer =
            deliver(MSG_ADD_CONFERENCE_MEMBER, sessionPluginId(),
                    packPayload(QStringList{QStringLiteral("30010001"), QStringLiteral("30010002")}));
        QCOMPARE(PayloadReader(answer).takeTexts(), picked);
    }

    void declinedConferenceIsNotStarted()
    {
        const QString before = m_pWindow->statusBar()->currentMessage();
        QString asked;
        QTimer timer;
        cancelThePicker(timer, asked);
        deliver(MSG_CREATE_VOICE_CONFERENCE, sessionPluginId(),
                packPayload(QStringList{QStringLiteral("30010001@example.org"), QStringLiteral("30010000@example.org"),
                                        QStringLiteral("30010002@example.org")}));
        QCOMPARE(asked, QStringLiteral("Asked for a conference with: 李雷, Maria Silva"));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), before);
    }

private:
    QList<QAbstractButton *> callers() const
    {
        QList<QAbstractButton *> found;
        const QList<QAbstractButton *> all = m_pWindow->findChildren<QAbstractButton *>();
        const QStringList names{"btnCall", "btnVideo", "btnConference", "btnCallNumber", "btnCallAgain"};
        std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                     [&](const QAbstractButton *button) { return names.contains(button->objectName()); });
        return found;
    }
    QStringList disabledTips() const
    {
        QStringList tips;
        const QList<QAbstractButton *> all = callers();
        for (const QAbstractButton *button : all) {
            if (!button->isEnabled()) {
                tips << button->toolTip();
            }
        }
        return tips;
    }
    void enter(const QByteArray &state, bool bInto)
    {
        if (state == "out") {
            m_pSession->setOnline(!bInto);
        } else if (state == "service") {
            m_pWindow->readiness().setService(bInto ? CallReadiness::Service::Lost : CallReadiness::Service::Reached);
        } else if (state == "wait") {
            m_pWindow->readiness().setService(bInto ? CallReadiness::Service::Awaited
                                                    : CallReadiness::Service::Reached);
        } else if (bInto) {
            ring(QStringLiteral("30010006"));
        } else {
            missCall();
        }
    }
    /// Cancels the picker as soon as it is open, with what it asked left in `asked`.
    void cancelThePicker(QTimer &timer, QString &asked)
    {
        connect(&timer, &QTimer::timeout, this, [&timer, &asked] {
            if (WindowProbe::memberPicker() != nullptr) {
                asked = WindowProbe::text(WindowProbe::memberPicker(), "lblAsked");
                timer.stop();
                pressButton(WindowProbe::memberPicker(), "btnCancel");
            }
        });
        timer.start(10);
    }
    /// Marks these people and no others in the picker as soon as it is open, and invites them.
    void pickAndInvite(QTimer &timer, const QStringList &uids)
    {
        connect(&timer, &QTimer::timeout, this, [&timer, uids] {
            QWidget *picker = WindowProbe::memberPicker();
            if (picker == nullptr) {
                return;
            }
            const auto *people = picker->findChild<QListWidget *>();
            for (int row = 0; row < people->count(); ++row) {
                const bool picked = uids.contains(people->item(row)->data(Qt::UserRole).toString());
                people->item(row)->setCheckState(picked ? Qt::Checked : Qt::Unchecked);
            }
            if (pressButton(picker, "btnInvite")) {
                timer.stop();
            }
        });
        timer.start(10);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MainWindowCalls, Widgets)
#include "tst_MainWindowCalls.moc"
