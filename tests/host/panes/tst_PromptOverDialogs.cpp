#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/ClientTest.h"
#include "host/panes/Deeds.h"
#include "widgets/ErrorMessage.h"

#include <QDialog>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

/// A call rings while a dialog is open: it is answered by the real mouse and the real keys, and what was open stays.
class tst_PromptOverDialogs : public ClientTest
{
    Q_OBJECT

private slots:
    void init()
    {
        ClientTest::init();
        m_pAnswered = std::make_unique<QSignalSpy>(&prompt(), &IncomingPrompt::answered);
    }

    void cleanup()
    {
        m_pAnswered.reset();
        ClientTest::cleanup();
    }

    void mouseAnswersOverThePicker_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<bool>("accept");
        QTest::newRow("accept") << QByteArray("btnAccept") << true;
        QTest::newRow("reject") << QByteArray("btnReject") << false;
    }

    void mouseAnswersOverThePicker()
    {
        QFETCH(QByteArray, button);
        QFETCH(bool, accept);
        int picked = -1;
        Deeds deeds({openPicker(), Deeds::act([this] { ring(); }), pickFirst(), answer(button),
                     Deeds::act([&] { picked = checkedRows(); }), leave(WindowProbe::memberPicker, "btnCancel")});
        QVERIFY(deeds.finish());
        QCOMPARE(m_pAnswered->at(0), (QList<QVariant>{QStringLiteral("30010006"), accept}));
        QVERIFY(!prompt().isVisible());
        QCOMPARE(picked, 1);
    }

    void keysAnswerOverThePicker_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<bool>("accept");
        QTest::newRow("Enter accepts") << QByteArray("Return") << true;
        QTest::newRow("Escape rejects") << QByteArray("Escape") << false;
    }

    void keysAnswerOverThePicker()
    {
        QFETCH(QByteArray, key);
        QFETCH(bool, accept);
        Deeds deeds({openPicker(), Deeds::act([this] { ring(); }), pickFirst(),
                     // Not by itself: the picker has the keys until they are asked for.
                     Deeds::until([] { return QApplication::activeWindow() == WindowProbe::memberPicker(); }),
                     Deeds::key("ctrl+i"), Deeds::until([this] { return Deeds::hasKeys(prompt()); }), Deeds::key(key),
                     Deeds::until([this] { return m_pAnswered->count() == 1; }),
                     // The keys are the picker's again.
                     Deeds::until([] { return QApplication::activeWindow() == WindowProbe::memberPicker(); }),
                     Deeds::key("Escape"), Deeds::until([] { return WindowProbe::memberPicker() == nullptr; })});
        QVERIFY(deeds.finish());
        QCOMPARE(m_pAnswered->count(), 1);
        QCOMPARE(m_pAnswered->at(0), (QList<QVariant>{QStringLiteral("30010006"), accept}));
    }

    void plugInsMessageBoxStaysOpenBehindTheAnswer()
    {
        bool open = false;
        Deeds deeds({Deeds::until([] {
                         return WindowProbe::messageBox() != nullptr && WindowProbe::messageBox()->isActiveWindow();
                     }),
                     Deeds::act([this] { ring(); }), answer("btnAccept"),
                     Deeds::act([&] { open = WindowProbe::messageBox() != nullptr; }),
                     leave(WindowProbe::messageBox, "closeBtn")});
        ErrorMessage box(QString(), QStringLiteral("OK"), nullptr);
        box.getMsgShow(QStringLiteral("Notice"), QStringLiteral("Something that is to be read"));
        QVERIFY(open);
        QVERIFY(deeds.finish());
    }

    // Of two dialogs, one above the other, the upper one goes: the lower one is now what would keep the prompt shut.
    void promptCanBeAnsweredWhenOneOfTwoDialogsIsGone()
    {
        QDialog upper(m_pWindow.get());
        upper.setModal(true);
        upper.setGeometry(40, 40, 200, 100);
        Deeds deeds({openPicker(), Deeds::act([this] { ring(); }), Deeds::act([&] { upper.show(); }),
                     Deeds::until([&] { return upper.isActiveWindow(); }), Deeds::act([&] { upper.hide(); }),
                     answer("btnReject"), leave(WindowProbe::memberPicker, "btnCancel")});
        QVERIFY(deeds.finish());
        QTRY_VERIFY_WITH_TIMEOUT(WindowProbe::memberPicker() == nullptr, cPatienceMs);
    }

    void onlyThePromptIsLifted()
    {
        Deeds deeds({openPicker(), Deeds::act([this] { ring(); }), Deeds::act([this] {
                         const auto *button = m_pWindow->findChild<QWidget *>(QStringLiteral("btnSettings"));
                         Deeds::clickIn(*m_pWindow, button->mapTo(m_pWindow.get(), button->rect().center()));
                     }),
                     answer("btnReject"), leave(WindowProbe::memberPicker, "btnCancel")});
        QVERIFY(deeds.finish());
        QVERIFY(!m_pWindow->settingsPage().isVisible());
    }

private:
    IncomingPrompt &prompt() { return m_pWindow->prompt(); }
    Deeds::Deed openPicker()
    {
        return Deeds::click([this] { return m_pWindow.get(); }, "btnConference",
                            [] { return WindowProbe::memberPicker() != nullptr; });
    }
    Deeds::Deed answer(const QByteArray &strButton)
    {
        return Deeds::click([this] { return &prompt(); }, strButton, [this] { return m_pAnswered->count() == 1; });
    }
    /// Presses the button that closes the window.
    static Deeds::Deed leave(QWidget *(*window)(), const QByteArray &strButton)
    {
        return Deeds::click(window, strButton, [window] { return window() == nullptr; });
    }

    void ring() { ClientTest::ring(QStringLiteral("30010006")); }

    static QListWidget *people()
    {
        return WindowProbe::memberPicker() == nullptr ? nullptr
                                                      : WindowProbe::memberPicker()->findChild<QListWidget *>();
    }

    /// Picks the first of the picker's people with the mouse: one click, a second one would take it back.
    static Deeds::Deed pickFirst()
    {
        return [bClicked = false]() mutable {
            const QListWidget *list = people();
            if (!bClicked && list != nullptr && list->window()->isActiveWindow()) {
                const QRect row = list->visualItemRect(list->item(0));
                bClicked = Deeds::clickIn(*list->window(), list->viewport()->mapTo(list->window(), row.center()));
            }
            return checkedRows() == 1;
        };
    }

    static int checkedRows()
    {
        const QListWidget *list = people();
        int count = 0;
        for (int row = 0; list != nullptr && row < list->count(); ++row) {
            count += list->item(row)->checkState() == Qt::Checked ? 1 : 0;
        }
        return count;
    }

    std::unique_ptr<QSignalSpy> m_pAnswered;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PromptOverDialogs, Widgets)
#include "tst_PromptOverDialogs.moc"
