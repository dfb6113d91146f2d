// The engine when a part of it is not there: no window, no ring, a channel that never opened or that goes away while
// its own lines are handled.

#include "fakes/EngineFixture.h"
#include "fakes/Patience.h"
#include "fakes/QtMessages.h"
#include "plugin/EMsgId.h"
#include "ui/VoipWidget.h"

#include <QLocalSocket>
#include <QSound>
#include <QTest>

#include <utility>

class tst_MissingParts : public QObject
{
    Q_OBJECT

private slots:
    void rejectionInAConferenceNeedsNoWindow()
    {
        EngineFixture f;
        f.createConference();
        delete std::exchange(f.manager->m_pVoipWidget, nullptr);
        const QString before = f.callText();
        f.notify(Code::UserRejected, "anna");
        QCOMPARE(f.callText(), before);
        QCOMPARE(f.takeJournal(), QStringList());
    }

    void callsNeedNoRing()
    {
        EngineFixture f;
        QSound *pRing = std::exchange(f.manager->m_pRingSound, nullptr);
        f.notify(Code::IncomingCall, "bert");
        f.manager->responseVoipRequest(false);
        f.manager->m_pRingSound = pRing;
        QCOMPARE(f.state(), QString("idle"));
        QVERIFY(pRing->isFinished());
    }

    void lineToAChannelThatIsNotOpenIsDroppedWithoutAWarning()
    {
        EngineFixture f(EngineFixture::NoCallProcess);
        QVERIFY(f.manager->m_pVoipSocket && !f.manager->m_pVoipSocket->isOpen());
        QtMessages messages;
        f.manager->sendVoipMessage("{}\n");
        QCOMPARE(messages.warnings, QStringList());
    }

    void exitWhileALineIsHandledEndsTheReading()
    {
        EngineFixture f;
        f.whileHandled = [&f](BaseEvent &event) {
            if (event.msgId == MSG_RECEVIE_VOIP_CALL) {
                f.manager->exitVoip();
            }
        };
        f.process.send(FakeCallProcess::line(Code::IncomingCall, "bert") +
                       FakeCallProcess::line(Code::UserRejected, "bert"));
        QTRY_VERIFY_WITH_TIMEOUT(f.manager->m_pVoipSocket == nullptr, cPatienceMs);
        EngineFixture::deliverPosted();
        QVERIFY(!f.manager->m_bSocketConnected);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MissingParts, Widgets)
#include "tst_MissingParts.moc"
