// The panel "What happens" beside a call process that somebody else has started: with a trace of its own, it is
// followed; without one, the panel says so, and what it says to do helps.

#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "happenings/HappeningsPanel.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "traffic/CallChannel.h"
#include "traffic/TraceFolder.h"

#include "fakes/Patience.h"
#include "host/panes/PressButton.h"

#include <QDir>
#include <QProcess>
#include <QTest>

#include <csignal>

class tst_ForeignTrace : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The first one was there before the client, so that the client's own steps back.
        startForeign({}, {});
        QTRY_VERIFY_WITH_TIMEOUT(CallChannel::isListening(), cPatienceMs);
        QString error;
        QVERIFY2(m_session.start(QStringLiteral(VOIP_MODULE), &error), qPrintable(error));
        m_pWindow = std::make_unique<MainWindow>(m_session, m_book);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QTest::keyClick(m_pWindow.get(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!isNoteShown());
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
    }

    void cleanupTestCase()
    {
        m_session.quit();
        QTRY_VERIFY_WITH_TIMEOUT(!CallChannel::isListening(), cPatienceMs);
        m_foreign.waitForFinished(cPatienceMs);
    }

    void withoutATraceThePanelSaysSo()
    {
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(isNoteShown(), cPatienceMs);
        QVERIFY2(note().contains(
                     QStringLiteral("(process %1), and it was started without a trace.").arg(m_foreign.processId())),
                 qPrintable(note()));
        QVERIFY(note().contains(QStringLiteral("VOIPSDK_TRACE")));
        QCOMPARE(wireLines(), 0);
    }

    void whatTheNoteSaysHelps()
    {
        m_foreign.kill();
        QVERIFY(m_foreign.waitForFinished(cPatienceMs));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(wireLines() > 0, cPatienceMs);
        QVERIFY(!isNoteShown());
    }

    void traceOfAnotherIsFollowed_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("variable");
        QTest::newRow("option") << QStringList{"--trace", "theirs.txt"} << QString();
        QTest::newRow("option in one") << QStringList{"--trace=theirs.txt"} << QStringLiteral("-");
        QTest::newRow("variable") << QStringList() << QStringLiteral("theirs.txt");
    }

    void traceOfAnotherIsFollowed()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, variable);
        const int before = wireLines();
        replaceBy(arguments, variable);
        QCOMPARE(m_session.callService().trace().file, QDir::current().absoluteFilePath(QStringLiteral("theirs.txt")));
        QTRY_VERIFY_WITH_TIMEOUT(wireLines() > before, cPatienceMs);
        QVERIFY(!isNoteShown());
        QFile::remove(QStringLiteral("theirs.txt"));
    }

    void traceOnStandardErrorIsSaid()
    {
        replaceBy({"--trace", "-"}, QString());
        QTRY_VERIFY_WITH_TIMEOUT(note().contains(QStringLiteral("it writes its trace to standard error")), cPatienceMs);
    }

private:
    void startForeign(const QStringList &arguments, const QString &strVariable)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QString::fromLatin1(TraceFolder::cVariable));
        if (!strVariable.isEmpty()) {
            environment.insert(QString::fromLatin1(TraceFolder::cVariable), strVariable);
        }
        m_foreign.setProcessEnvironment(environment);
        m_foreign.start(CallProcess::program(), arguments);
        QVERIFY(m_foreign.waitForStarted(cPatienceMs));
    }

    /// Puts a call process of somebody else's into the place of the present one. Signed out nobody is started
    /// meanwhile.
    void replaceBy(const QStringList &arguments, const QString &strVariable)
    {
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QTRY_VERIFY_WITH_TIMEOUT(CallChannel::peer() > 0, cPatienceMs);
        QCOMPARE(::kill(pid_t(CallChannel::peer()), SIGKILL), 0);
        m_foreign.waitForFinished(cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(!CallChannel::isListening(), cPatienceMs);
        startForeign(arguments, strVariable);
        QTRY_VERIFY_WITH_TIMEOUT(CallChannel::isListening(), cPatienceMs);
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
        QCOMPARE(m_session.callService().process(), m_foreign.processId());
    }

    int wireLines() const
    {
        const HappeningsModel &model = m_pWindow->findChild<HappeningsPanel *>()->model();
        int lines = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            lines += model.at(row).kind == Happening::Wire && model.at(row).raw.contains("RegeditUser") ? 1 : 0;
        }
        return lines;
    }
    QString online() const { return WindowProbe::text(m_pWindow.get(), "btnOnline"); }
    QString note() const { return WindowProbe::text(m_pWindow.get(), "lblTrace"); }
    bool isNoteShown() const { return WindowProbe::isShown(m_pWindow.get(), "lblTrace"); }

    const TraceFolder m_traces;
    ContactBook m_book{HostSession::loginDomain()};
    HostSession m_session{m_book};
    std::unique_ptr<MainWindow> m_pWindow;
    QProcess m_foreign;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ForeignTrace, Widgets)
#include "tst_ForeignTrace.moc"
