// Closing the window while a call rings, with the real plug-in and a real call process.

#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "panes/QuitQuestion.h"
#include "session/HostSession.h"
#include "traffic/CallChannel.h"
#include "traffic/TraceFolder.h"

#include "fakes/Patience.h"
#include "host/panes/Deeds.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>

class tst_QuitQuestion : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QFile scenario(QStringLiteral("ring.scn"));
        QVERIFY(scenario.open(QIODevice::WriteOnly));
        scenario.write("await RegeditUser\nsend 17 true\nsend 0 30010006\nexpect HangUpCall\n");
        scenario.close();
        qputenv("VOIPSDK_SCENARIO", QFile::encodeName(QDir::current().absoluteFilePath(scenario.fileName())));
        QString error;
        QVERIFY2(m_session.start(QStringLiteral(VOIP_MODULE), &error), qPrintable(error));
        m_pWindow = std::make_unique<MainWindow>(m_session, m_book);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
    }

    void withoutACallNobodyIsAsked()
    {
        QVERIFY(!m_session.isExistCall());
        QVERIFY2(!CallChannel::isListening(), "the question alone starts a call process");
    }

    void escapeKeepsTheCall()
    {
        m_session.setOnline(true);
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isActiveWindow(), cPatienceMs);
        QVERIFY(m_session.isExistCall());
        QVERIFY(closeWindow());
        QCOMPARE(question()->text(), QStringLiteral("A call is on."));
        QVERIFY(answerBy("Escape"));
        QVERIFY(m_pWindow->isVisible());
        QVERIFY(m_session.isExistCall());
    }

    void theKeyboardBeginsOnTheAnswerThatKeepsTheCall()
    {
        QVERIFY(closeWindow());
        QVERIFY(answerBy("Return"));
        QVERIFY(m_pWindow->isVisible() && m_session.isExistCall());
    }

    void questionGoesWithTheCall()
    {
        QVERIFY(!m_pWindow->close());
        QVERIFY(QTest::qWaitForWindowActive(question(), cPatienceMs));
        QCOMPARE(::kill(pid_t(m_session.callService().process()), SIGKILL), 0);
        QTRY_VERIFY_WITH_TIMEOUT(question() == nullptr, cPatienceMs);
        QVERIFY(m_pWindow->isVisible());
        // The next call process begins as the first one did. Its prompt comes in front when it will, and would take the
        // next key.
        QTRY_VERIFY_WITH_TIMEOUT(!m_pWindow->prompt().isVisible(), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isActiveWindow(), cPatienceMs);
        QVERIFY(m_session.isExistCall());
    }

    void secondCloseAsksNoSecondTime()
    {
        QVERIFY(closeWindow());
        // As a window manager may ask all the same.
        QVERIFY(!m_pWindow->close());
        QCOMPARE(m_pWindow->findChildren<QuitQuestion *>().size(), 1);
    }

    void quitEndsTheCallAndTheClient()
    {
        const QAbstractButton *quit = nullptr;
        const QList<QAbstractButton *> buttons = question()->buttons();
        for (QAbstractButton *button : buttons) {
            quit = question()->buttonRole(button) == QMessageBox::AcceptRole ? button : quit;
        }
        QVERIFY(quit != nullptr);
        Deeds deeds({Deeds::again([quit] { return quit != nullptr && Deeds::clickOn(*quit, quit->rect().center()); },
                                  [this] { return !m_pWindow->isVisible(); })});
        QVERIFY(deeds.finish());
        QVERIFY(!m_pWindow->prompt().isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!CallChannel::isListening(), cPatienceMs);
    }

private:
    QuitQuestion *question() const { return m_pWindow->findChild<QuitQuestion *>(); }
    /// Closes the client's window by the window manager's own keys; true when the question is in front.
    bool closeWindow()
    {
        const auto comeToFront = [this] {
            m_pWindow->comeToFront();
            return true;
        };
        Deeds deeds({Deeds::again(comeToFront, [this] { return Deeds::hasKeys(*m_pWindow); }), Deeds::key("alt+F4"),
                     Deeds::until([this] { return question() != nullptr && question()->isActiveWindow(); })});
        return deeds.finish();
    }
    /// Answers the question by the real keyboard; true when it has gone.
    bool answerBy(const QByteArray &strKey)
    {
        Deeds deeds({Deeds::key(strKey), Deeds::until([this] { return question() == nullptr; })});
        return deeds.finish();
    }

    const TraceFolder m_traces;
    ContactBook m_book{HostSession::loginDomain()};
    HostSession m_session{m_book};
    std::unique_ptr<MainWindow> m_pWindow;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_QuitQuestion, Widgets)
#include "tst_QuitQuestion.moc"
