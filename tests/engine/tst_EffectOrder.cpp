// The order of an operation's effects, as the host sees it at each question and the user at the moment when the window
// comes up: what has been sent, which timers run, whether it still rings.

#include "engine/StartedConference.h"
#include "fakes/EngineTest.h"
#include "ui/VoipWidget.h"

#include <QEvent>
#include <QLabel>
#include <QTest>

#include <utility>

namespace {

const QString cDocument = QStringLiteral(R"({"content":{"confId":"c1",%1}})");

} // namespace

/// Notes each event at the host and each showing of the call window, with the state and the names of the commands sent.
class Moments : public QObject
{
    Q_OBJECT

public:
    explicit Moments(EngineFixture &f) : m_f(f)
    {
        f.takeJournal();
        f.whileHandled = [this](BaseEvent &event) { noteEvent(event.msgId); };
        f.manager->m_pVoipWidget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show) {
            note(QStringLiteral("shown"));
        }
        return QObject::eventFilter(watched, event);
    }

    QStringList noted;

private:
    void noteEvent(int msgId)
    {
        QString what = QString::number(msgId);
        if (msgId == MSG_GET_FRIEND_INFO || msgId == MSG_IS_EXIST_FRIEND) {
            what += ' ' + m_f.host.events.constLast().reader().take<QString>().section('@', 0, 0);
        }
        note(what);
    }

    void note(const QString &what)
    {
        const QStringList lines = m_f.takeLines();
        for (const QString &line : lines) {
            m_sent += " > " + line.section(' ', 0, 0);
        }
        noted += what + ": " + m_f.state() + m_sent;
    }

    EngineFixture &m_f;
    QString m_sent;
};

class tst_EffectOrder : public EngineTest<EngineFixture>
{
    Q_OBJECT

private slots:
    void placedCallIsSentThenSetUpThenShownThenTimed()
    {
        const Moments moments(*m_f);
        m_f->manager->callSingleUser("anna", true);
        QCOMPARE(moments.noted,
                 QStringList({"4157 anna: outgoing anna", "4337 anna: outgoing anna",
                              // The window asks for the peer's card.
                              "4157 anna: outgoing anna > CallUser", "shown: outgoing anna > CallUser"}));
        QCOMPARE(m_f->state(), QString("outgoing anna, invite"));
    }

    void acceptedCallIsSetUpThenAnsweredThenShown()
    {
        m_f->notify(Code::IncomingCall, "bert");
        const Moments moments(*m_f);
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(moments.noted,
                 QStringList({"4157 bert: incoming bert, receive", "shown: incoming bert, receive > AcceptCall"}));
    }

    void acceptedInvitationIsSetUpThenAnsweredThenShown()
    {
        m_f->manager->m_strUserId = "me";
        m_f->notify(Code::IncomingConf, cDocument.arg(R"("from":"anna")"));
        m_f->manager->m_callData.memberList = QStringList{"anna", "me", "bert"};
        const Moments moments(*m_f);
        m_f->manager->responseVoipRequest(true);
        QCOMPARE(moments.noted, QStringList({"4157 anna: incoming anna, receive", "4157 bert: incoming anna, receive",
                                             "shown: incoming anna, receive > AcceptConf"}));
    }

    void startedConferenceIsSentThenSetUpThenShownThenTimed()
    {
        m_f->manager->m_strUserId = "me";
        const Moments moments(*m_f);
        m_f->manager->callConference({"anna", "bert"}, false, "");
        const QString asked(": outgoing anna+bert");
        const QString sent(": outgoing anna+bert+me > RequestConference");
        QCOMPARE(moments.noted,
                 QStringList({"4157 anna" + asked, "4337 anna" + asked, "4157 bert" + asked, "4337 bert" + asked,
                              // The window asks for its rows.
                              "4157 anna" + sent, "4157 bert" + sent, "shown" + sent}));
        QCOMPARE(m_f->state(), QString("outgoing anna+bert+me, invite"));
    }

    void addedMemberHasARowBeforeTheRequest()
    {
        startConference(*m_f);
        const Moments moments(*m_f);
        m_f->manager->addConferenceMember({"carl"});
        const QString unsent(": outgoing anna+bert+me+carl, invite");
        // The last question is that of the row.
        QCOMPARE(moments.noted, QStringList({"4157 carl" + unsent, "4337 carl" + unsent, "4157 carl" + unsent}));
        QCOMPARE(m_f->takeLines().size(), 1);
        QCOMPARE(m_f->members().constLast(), QString("carl 0"));
    }

    void updateTakesItsMembersOneByOne()
    {
        m_f->createConference();
        const Moments moments(*m_f);
        m_f->notify(Code::ConfUpdate, cDocument.arg(R"("conventioneer":["carl","dora"])"));
        const QString carl(": outgoing anna+bert+me+carl, invite");
        const QString dora(": outgoing anna+bert+me+carl+dora, invite");
        // Each one's row, which asks for the card, then whether that one is a stranger.
        QCOMPARE(moments.noted, QStringList({"4157 carl" + carl, "4157 carl" + carl, "4337 carl" + carl,
                                             "4157 dora" + dora, "4157 dora" + dora, "4337 dora" + dora}));
    }

    void endIsToldWhenNothingRingsOrRunsAnyMore()
    {
        m_f->notify(Code::IncomingCall, "bert");
        m_f->manager->m_inviteTimer.start(60000);
        QCOMPARE(m_f->state(), QString("incoming bert, invite, receive, ring"));
        const Moments moments(*m_f);
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(moments.noted, QStringList({"4345: incoming bert", "4478: incoming bert"}));
    }

    void callThatComesInMeanwhileTakesTheWindowButNotTheCommand()
    {
        bool bCame = false;
        m_f->whileHandled = [&](BaseEvent &event) {
            if (event.msgId == MSG_IS_EXIST_FRIEND && !std::exchange(bCame, true)) {
                m_f->notify(Code::IncomingCall, "bert");
            }
        };
        m_f->manager->callSingleUser("anna", true);
        QCOMPARE(m_f->takeJournal(), QStringList({"4639 bert false false", "CallUser \"anna\" true"}));
        QCOMPARE(m_f->state(), QString("incoming bert, invite, receive, ring"));
        QVERIFY(m_f->manager->m_callData.bIsVideo);
        // The window is bert's and speaks of a call that somebody else has placed.
        QCOMPARE(m_f->host.received(MSG_GET_FRIEND_INFO).constLast().reader().take<QString>(),
                 EngineFixture::jid("bert"));
        QCOMPARE(m_f->manager->m_pVoipWidget->findChild<QLabel *>("lblStatus")->text(), QStringLiteral("正在连接..."));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EffectOrder, Widgets)
#include "tst_EffectOrder.moc"
