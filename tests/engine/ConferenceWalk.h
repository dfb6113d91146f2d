#pragma once

// A walk around conferences: wire lines, host commands and clicks in random order on one engine. After each it looks at
// what must always hold: lists, what belongs to which conference, the records, and the rest after an end. GUI thread.

#include "engine/RecordedEngine.h"
#include "ui/VoipWidget.h"

#include <QMap>
#include <QRandomGenerator>
#include <QSet>

class ConferenceWalk
{
public:
    /// Equal seeds give equal walks.
    explicit ConferenceWalk(quint32 seed) : m_random(seed)
    {
        engine.manager->m_strUserId = "me";
        engine.host.friendJids.insert(EngineFixture::jid("h1"));
    }

    /// Does one thing and looks. Empty when all is as it should be, else what is wrong.
    QString step();

    /// Compares the records with what the ends should have left.
    QString recordFault() const;

    RecordedEngine engine;
    /// How many calls have ended.
    int ends = 0;
    /// What the last step did: its wire line, when it was one.
    QString last;

private:
    struct Action
    {
        int weight;
        void (ConferenceWalk::*act)();
    };
    static const QList<Action> &actions();

    int upTo(int bound) { return static_cast<int>(m_random.bounded(bound)); }
    CallData &call() { return engine.manager->m_callData; }
    QString someConf();
    QString someMember();
    QStringList someHostIds();
    void line(Code code, const QString &content = QString()) { line(int(code), content); }
    void line(int code, const QString &content);
    void document(Code code);

    void update() { document(Code::ConfUpdate); }
    void left() { document(Code::ConfMemberLeft); }
    void invitation() { document(Code::IncomingConf); }
    void created();
    void addResult();
    void connected() { line(Code::CallConnected); }
    void end();
    void rejection();
    void noise();
    void single();
    void callConference();
    void answer();
    void goOnline();
    void card();
    void pick();
    void member();
    void muteAll() { engine.manager->slot_MuteAll(upTo(2) == 0); }
    void closeWindow() { engine.manager->m_pVoipWidget->close(); }
    void timeout();
    void loseChannel();

    void noteEnd(const CallData &ended);
    QString listFault();
    QString leak(const QStringList &ids, const char *where) const;
    QString endFault();

    QRandomGenerator m_random;
    int m_conf = 1;
    bool m_isEnd = false;
    QSet<QString> m_confs;
    QStringList m_connected;
    QStringList m_sentByHost;
    /// By conference id: the columns of its record; "any" for the length of a call that connected.
    QMap<QString, QStringList> m_records;
};
