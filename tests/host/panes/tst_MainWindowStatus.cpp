#include "client/HostLanguage.h"
#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/ClientTest.h"
#include "host/panes/PressButton.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QStatusBar>
#include <QTest>

/// What the status line says of a call, as long as it is on and when it is over.
class tst_MainWindowStatus : public ClientTest
{
    Q_OBJECT

private slots:
    void recordsAndStatusLineTellTheCall()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010001"), qint32(24), true, true, qint64(5)));
        QCOMPARE(m_pSession->history().entries().size(), size_t(1));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Call with 李雷: hung up after 0:05"));
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(25), true, false, qint64(0)));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Call with Maria Silva: busy"));
    }

    void statusLineTellsTheOutcomeAndClears_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<bool>("caller");
        QTest::addColumn<QString>("words");
        QTest::newRow("busy") << 25 << true << QStringLiteral("Call with Maria Silva: busy");
        QTest::newRow("refused") << 26 << true << QStringLiteral("Call with Maria Silva: rejected");
        QTest::newRow("failed") << 22 << true << QStringLiteral("Call with Maria Silva: failed");
        QTest::newRow("missed") << 21 << false << QStringLiteral("Missed call from Maria Silva");
    }

    void statusLineTellsTheOutcomeAndClears()
    {
        QFETCH(int, result);
        QFETCH(bool, caller);
        QFETCH(QString, words);
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(result), caller, false, qint64(0)));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), words);
        if (result == resultBusy) {
            // The notice stays when the status line is empty again.
            QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->statusBar()->currentMessage(), QString(), cPatienceMs);
        }
        QVERIFY(WindowProbe::text(m_pWindow.get(), "lblCallNotice").contains(QStringLiteral("Maria Silva")));
        QVERIFY(pressButton(m_pWindow.get(), "btnSeen"));
        QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "lblCallNotice"));
    }

    void statusLineComesBackToTheCallThatIsOn()
    {
        ring(QStringLiteral("30010006"));
        QTest::keyClick(m_pWindow->findChild<QWidget *>(QStringLiteral("30010002")), Qt::Key_Return);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("You are in a call. End it first."));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak is calling"),
                                  cPatienceMs);
        missCall();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Missed call from Anna Novak"));
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->statusBar()->currentMessage(), QString(), cPatienceMs);
    }

    void statusLineTellsThatTheCallIsAnswered()
    {
        ring(QStringLiteral("30010006"));
        emit m_pSession->callService().callConnected();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("In a call with Anna Novak"));
        missCall();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Missed call from Anna Novak"));
    }

    void statusLineTellsTheCallThatIsOnInTheNewLanguage()
    {
        HostLanguage language(QStringLiteral(VOIP_TRANSLATIONS));
        ring(QStringLiteral("30010006"));
        QVERIFY(language.use(QStringLiteral("zh_CN")));
        QCoreApplication::processEvents();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak 来电"));
        QVERIFY(language.use(QStringLiteral("en")));
        QCoreApplication::processEvents();
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Anna Novak is calling"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MainWindowStatus, Widgets)
#include "tst_MainWindowStatus.moc"
