// Starting the call process: which program, how, and that nothing of it is held. The program beside this test is a
// script that writes down how it was started.

#include "fakes/EngineFixture.h"
#include "fakes/Patience.h"
#include "fakes/QtMessages.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QPointer>
#include <QProcess>
#include <QTest>

class tst_CallProcessStart : public QObject
{
    Q_OBJECT

private slots:
    void startsWithoutArgumentsInTheHostsFolder()
    {
        const QtMessages messages;
        EngineFixture f(EngineFixture::NoCallProcess);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists("started"), cPatienceMs);
        QFile started("started");
        QVERIFY(started.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(started.readAll()), "0 " + QDir::currentPath() + "\n");
        QVERIFY(messages.debugLines.contains("voip startDetached,bResult: true"));
    }

    void processObjectHoldsNoChild()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        QVERIFY(f.manager->m_pVoipProcess);
        QVERIFY(!f.manager->m_pVoipProcess->parent());
        QCOMPARE(f.manager->m_pVoipProcess->state(), QProcess::NotRunning);
        const QPointer<QProcess> process = f.manager->m_pVoipProcess;
        f.manager->exitVoip();
        QVERIFY(!f.manager->m_pVoipProcess);
        QVERIFY(process);
        QCoreApplication::sendPostedEvents(process, QEvent::DeferredDelete);
        QVERIFY(!process);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallProcessStart, Widgets)
#include "tst_CallProcessStart.moc"
