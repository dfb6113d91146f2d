// Closing the window while a call rings, with the real plug-in and a real call process.

#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "panes/QuitQuestion.h"
#include "session/HostSession.h"
#include "traffic/CallChannel.h"
#include "traffic/TraceFolder.h"

#include "fakes/Patience.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QTest>

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
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->prompt().isVisible(), cPatienceMs);
        QVERIFY(m_session.isExistCall());
        QVERIFY(!m_pWindow->close());
        QVERIFY(question() != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(question(), cPatienceMs));
        QCOMPARE(question()->text(), QStringLiteral("A call is on."));
        QTest::keyClick(question(), Qt::Key_Escape);
        QTRY_VERIFY_WITH_TIMEOUT(question() == nullptr, cPatienceMs);
        QVERIFY(m_pWindow->isVisible());
        QVERIFY(m_session.isExistCall());
    }

    void theKeyboardBeginsOnTheAnswerThatKeepsTheCall()
    {
        QVERIFY(!m_pWindow->close());
        QVERIFY(QTest::qWaitForWindowActive(question(), cPatienceMs));
        QTest::keyClick(question()->focusWidget(), Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(question() == nullptr, cPatienceMs);
        QVERIFY(m_pWindow->isVisible() && m_session.isExistCall());
    }

    void secondCloseAsksNoSecondTime()
    {
        QVERIFY(!m_pWindow->close());
        QVERIFY(!m_pWindow->close());
        QCOMPARE(m_pWindow->findChildren<QuitQuestion *>().size(), 1);
    }

    void quitEndsTheCallAndTheClient()
    {
        QAbstractButton *quit = nullptr;
        const QList<QAbstractButton *> buttons = question()->buttons();
        for (QAbstractButton *button : buttons) {
            quit = question()->buttonRole(button) == QMessageBox::AcceptRole ? button : quit;
        }
        QVERIFY(quit != nullptr);
        QTest::mouseClick(quit, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!m_pWindow->isVisible(), cPatienceMs);
        QVERIFY(!m_pWindow->prompt().isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!CallChannel::isListening(), cPatienceMs);
    }

private:
    QuitQuestion *question() const { return m_pWindow->findChild<QuitQuestion *>(); }

    const TraceFolder m_traces;
    ContactBook m_book{HostSession::loginDomain()};
    HostSession m_session{m_book};
    std::unique_ptr<MainWindow> m_pWindow;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_QuitQuestion, Widgets)
#include "tst_QuitQuestion.moc"
