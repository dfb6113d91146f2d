// The client that signs in while another program holds its store. A program of its own: the log takes its file from the
// first client of a process.

#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"

#include "fakes/Patience.h"
#include "host/panes/PressButton.h"
#include "model/SystemSetData.h"
#include "store/LockHolder.h"

#include <QDir>
#include <QFile>
#include <QStatusBar>
#include <QTest>

class tst_HeldStore : public QObject
{
    Q_OBJECT

private slots:
    void heldStoreIsToldAndTriedAgain()
    {
        SystemSetData *settings = SystemSetData::instance();
        settings->initCommonData();
        settings->initData(QString::fromLatin1(ContactBook::cOwnId));
        QVERIFY(QDir().mkpath(settings->m_strUserFolder));
        QVERIFY(QFile(settings->m_strDatabasePath).open(QIODevice::WriteOnly));
        constexpr int hold = 120000;
        LockHolder holder(settings->m_strDatabasePath, QStringLiteral("BEGIN EXCLUSIVE"), hold);
        QVERIFY(holder.hasHeld());

        // The store is opened before the module, which is not there.
        ContactBook book(QStringLiteral("example.org"));
        HostSession session(book);
        QString error;
        QVERIFY(!session.start(QStringLiteral("/no/module.so"), &error));
        QVERIFY(!session.store().isOpen());
        MainWindow window(session, book);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window, cPatienceMs));
        const auto isTold = [&window] {
            return WindowProbe::isShown(&window, "lblNotice") && WindowProbe::isShown(&window, "btnTryStore") &&
                   WindowProbe::text(&window, "lblNotice").contains(QStringLiteral("is in use by another program"));
        };
        QVERIFY(isTold());

        QVERIFY(pressButton(&window, "btnTryStore"));
        QVERIFY(isTold());
        QVERIFY(holder.holds());
        QVERIFY(holder.letGo());
        QVERIFY(pressButton(&window, "btnTryStore"));
        QVERIFY(session.store().isOpen());
        QVERIFY(!WindowProbe::isShown(&window, "lblNotice"));
        QVERIFY(!WindowProbe::isShown(&window, "btnTryStore"));
        QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("The local store is open"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HeldStore, Widgets)
#include "tst_HeldStore.moc"
