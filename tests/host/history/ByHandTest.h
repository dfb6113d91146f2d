#pragma once

// The world of a test class that calls as a person does: the client's window, the built module and a real call process
// full of robots, under the pointer of the X server. It is made once for the class, and each function ends its call.
// GUI thread.

#include "client/CallProcess.h"
#include "client/ContactBook.h"
#include "panes/MainWindow.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "tour/TourHand.h"
#include "traffic/TraceFolder.h"
#include "traffic/WireTrace.h"

#include "fakes/Patience.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>

class ByHandTest : public QObject
{
    Q_OBJECT

protected slots:
    void initTestCase()
    {
        m_strTrace = QDir::current().absoluteFilePath(QStringLiteral("wire.txt"));
        qputenv(TraceFolder::cVariable, QFile::encodeName(m_strTrace));
        qputenv("VOIPSDK_SPEED", "4");
        QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
        QString error;
        m_pSession = std::make_unique<HostSession>(m_book);
        QVERIFY2(m_pSession->start(QStringLiteral("libVoipManage.so"), &error), qPrintable(error));
        m_pWindow = std::make_unique<MainWindow>(*m_pSession, m_book);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        m_pTable = m_pWindow->findChild<QTableView *>(QStringLiteral("tableRecords"));
        QVERIFY(m_hand.isReady());
        // By a timer, as the picker runs an event loop of its own.
        connect(&m_timer, &QTimer::timeout, this, [this] { m_hand.work(); });
        m_timer.start(10);
        m_pSession->setOnline(true);
        QTRY_VERIFY_WITH_TIMEOUT(isTraced(QStringLiteral("RegeditUser")), cPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(m_pWindow->readiness().isReady(), cPatienceMs);
    }

    void cleanupTestCase()
    {
        m_pSession->quit();
        CallProcess(m_strTrace).kill();
        m_pWindow.reset();
        m_pSession.reset();
    }

    void cleanup()
    {
        m_pSession->history().setAllSeen();
        QTRY_VERIFY_WITH_TIMEOUT(!m_pSession->calls().hasCall(), cPatienceMs);
    }

protected:
    bool press(const TourHand::Finder &where, int iTimes = 1)
    {
        m_hand.click(where, Qt::LeftButton, iTimes);
        return QTest::qWaitFor([this] { return m_hand.isIdle(); }, cPatienceMs);
    }
    bool pressContact(const char *strUid)
    {
        return press([this, strUid] {
            return WindowProbe::button(m_pWindow->findChild<QWidget *>(QLatin1String(strUid)), "btnCall");
        });
    }
    bool pressInCallWindow(const char *strButton)
    {
        return press([strButton] { return WindowProbe::button(WindowProbe::callWindow(), strButton); });
    }
    WindowProbe::Spot middle(int iRow) const
    {
        return {m_pTable->viewport(), m_pTable->visualRect(m_pTable->model()->index(iRow, 0)).center()};
    }

    ContactBook m_book{HostSession::loginDomain()};
    std::unique_ptr<HostSession> m_pSession;
    std::unique_ptr<MainWindow> m_pWindow;
    TourHand m_hand;
    QTableView *m_pTable = nullptr;

private:
    bool isTraced(const QString &strText) const
    {
        const QList<WireLine> lines = WireTrace(m_strTrace).readNew();
        return std::any_of(lines.begin(), lines.end(),
                           [&](const WireLine &line) { return line.text.contains(strText); });
    }

    QString m_strTrace;
    QTimer m_timer;
};
