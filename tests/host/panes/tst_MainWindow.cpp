#include "happenings/HappeningsPanel.h"
#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/ClientTest.h"
#include "host/panes/PressButton.h"
#include "model/SystemSetData.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"
#include "store/Hardship.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QScreen>
#include <QStatusBar>
#include <QTableView>
#include <QTest>

/// The window itself: contacts, records, switches, notices, and the other windows that it brings along.
class tst_MainWindow : public ClientTest
{
    Q_OBJECT

private slots:
    void everyContactHasBothCallButtons()
    {
        for (const ContactBook::Entry &entry : m_pBook->entries()) {
            const auto *row = m_pWindow->findChild<QWidget *>(entry.uid);
            QVERIFY2(row != nullptr, qPrintable(entry.uid));
            QVERIFY(WindowProbe::isShown(row, "btnCall"));
            QVERIFY(WindowProbe::isShown(row, "btnVideo"));
            QCOMPARE(WindowProbe::text(row, "lblName"), entry.known ? entry.nick : entry.uid);
        }
    }

    void shortcutLeadsToTheSearch()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        m_pWindow->findChild<QWidget *>(QStringLiteral("btnConference"))->setFocus();
        QTest::keyClick(m_pWindow.get(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(m_pWindow->focusWidget()->objectName(), QStringLiteral("editSearch"));
    }

    void recordIsCalledAgainByDoubleClick()
    {
        deliver(MSG_CALL_FINISHED, sessionPluginId(),
                packPayload(false, QStringLiteral("30010002"), qint32(25), true, false, qint64(0)));
        auto *table = m_pWindow->findChild<QTableView *>(QStringLiteral("tableRecords"));
        const QPoint place = table->visualRect(table->model()->index(0, 0)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Calling Maria Silva"));
    }

    void onlineSwitchFollowsTheSession()
    {
        m_pSession->setOnline(false);
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnOnline"), QStringLiteral("Offline"));
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QTRY_VERIFY_WITH_TIMEOUT(m_pSession->isOnline(), cPatienceMs);
        // Nobody has registered the user.
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnOnline"), QStringLiteral("Connecting..."));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Signed in as 小明"));
        m_pSession->setOnline(false);
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnOnline"), QStringLiteral("Offline"));
        QCOMPARE(m_pWindow->statusBar()->currentMessage(), QStringLiteral("Signed out"));
    }

    void conferenceCentreHasItsButton()
    {
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "btnCentre"), QStringLiteral("Conference centre"));
        QVERIFY(WindowProbe::button(m_pWindow.get(), "btnCentre").widget != nullptr);
    }

    void whatHappensComesAndGoesByButtonAndKeys()
    {
        auto *panel = m_pWindow->findChild<HappeningsPanel *>();
        QVERIFY(panel != nullptr);
        QVERIFY(!panel->isVisible());
        QCOMPARE(WindowProbe::text(m_pWindow.get(), "happeningsButton"), QStringLiteral("What happens"));
        const int width = m_pWindow->width();
        QVERIFY(pressButton(m_pWindow.get(), "happeningsButton"));
        QVERIFY(panel->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->width() > width, cPatienceMs);
        QVERIFY(m_pWindow->frameGeometry().right() <= m_pWindow->screen()->availableGeometry().right());
        QTest::keyClick(m_pWindow.get(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!panel->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(m_pWindow->width(), width, cPatienceMs);
        // It collects while it is hidden.
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        QTRY_COMPARE_WITH_TIMEOUT(panel->model().rowCount(), 1, cPatienceMs);
    }

    void signatureCardComesAndGoesAsThePlugInAsks()
    {
        deliver(
            MSG_SHOW_SIGN_LIST, signListPluginId(),
            packPayload(QStringLiteral("30010002@example.org"), qint32(600), qint32(200), qint32(500), true, false));
        QCOMPARE(WindowProbe::text(&m_pWindow->signature(), "lblName"), QStringLiteral("Maria Silva"));
        deliver(MSG_CLOSE_SIGN_LIST, signListPluginId(), QByteArray());
        QVERIFY(!m_pWindow->signature().isVisible());
    }

    void noticeIsHiddenWhileThereIsNothingToTell() { QVERIFY(!WindowProbe::isShown(m_pWindow.get(), "lblNotice")); }

    void damagedStoreIsToldBelowTheHeader()
    {
        SystemSetData *settings = SystemSetData::instance();
        settings->initCommonData();
        settings->initData(m_pBook->ownUid());
        QVERIFY(QDir().mkpath(settings->m_strUserFolder));
        QFile file(settings->m_strDatabasePath);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no database") > 0);
        file.close();

        // The store is opened before the module, which is not there.
        QString error;
        QVERIFY(!m_pSession->start(QStringLiteral("/no/module.so"), &error));
        QVERIFY(m_pSession->store().isOpen());
        MainWindow window(*m_pSession, *m_pBook);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window, cPatienceMs));
        QVERIFY(WindowProbe::isShown(&window, "lblNotice"));
        const QString notice = WindowProbe::text(&window, "lblNotice");
        QVERIFY2(notice.startsWith(QStringLiteral("The local store was damaged. The file is kept as ")),
                 qPrintable(notice));
        QCOMPARE(notice, m_pSession->store().reports().join(QLatin1Char('\n')));
        // There is nothing to try again.
        QVERIFY(!WindowProbe::isShown(&window, "btnTryStore"));
    }

    void callsThatCannotBeWrittenAreToldBelowTheHeader_data()
    {
        QTest::addColumn<QByteArray>("deed");
        for (const char *deed : {"the call ends", "Seen", "Delete"}) {
            QTest::newRow(deed) << QByteArray(deed);
        }
    }

    void callsThatCannotBeWrittenAreToldBelowTheHeader()
    {
        QFETCH(QByteArray, deed);
        QString error;
        QVERIFY(!m_pSession->start(QStringLiteral("/no/module.so"), &error));
        QVERIFY(m_pSession->history().reports().isEmpty());
        ring(QStringLiteral("30010006"));
        if (deed != "the call ends") {
            missCall();
        }
        QVERIFY(!WindowProbe::text(m_pWindow.get(), "lblNotice").contains(QStringLiteral("list of calls")));
        bool pressed = true;
        {
            const FullDisk disk(0);
            if (deed == "the call ends") {
                missCall();
            } else if (deed == "Seen") {
                pressed = pressButton(m_pWindow.get(), "btnSeen");
            } else {
                m_pSession->history().remove({m_pSession->history().entries().back().id});
            }
        }
        QVERIFY(pressed);
        QVERIFY(WindowProbe::isShown(m_pWindow.get(), "lblNotice"));
        QVERIFY(WindowProbe::text(m_pWindow.get(), "lblNotice").contains(QStringLiteral("cannot be written to")));
    }

    void closingTheWindowTakesTheOthersAlong()
    {
        ring(QStringLiteral("30010006"));
        deliver(
            MSG_SHOW_SIGN_LIST, signListPluginId(),
            packPayload(QStringLiteral("30010002@example.org"), qint32(600), qint32(200), qint32(500), true, false));
        m_pWindow->settingsPage().show();
        QVERIFY(m_pWindow->prompt().isVisible() && m_pWindow->signature().isVisible());
        QVERIFY(m_pWindow->close());
        QVERIFY(!m_pWindow->prompt().isVisible());
        QVERIFY(!m_pWindow->signature().isVisible());
        QVERIFY(!m_pWindow->settingsPage().isVisible());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MainWindow, Widgets)
#include "tst_MainWindow.moc"
