#pragma once

#include "fakes/EngineFixture.h"
#include "flow/CallModel.h"
#include "flow/WireNoise.h"
#include "model/VcardInfo.h"

/// One engine, its model, and what is done to both: host commands, clicks, timeouts, wire lines, losses of the channel,
/// as the seed has it. GUI thread.
class Walk
{
public:
    explicit Walk(quint32 seed);

    /// Does one thing. Its name stands in `last`.
    void step();

    /// Why the engine does not stand as the model after the last step; empty when it does. Takes out what both have
    /// said.
    QString fault();

    EngineFixture engine;
    CallModel model{"me"};
    WireNoise noise;
    /// What was done last.
    QString last;
    /// While a message box is open nothing may open another one.
    bool boxIsOpen = false;

private:
    struct Action
    {
        int weight;
        void (Walk::*act)();
    };
    static const QList<Action> &actions();

    template <class... Fields>
    QByteArray command(EMsgId id, const Fields &...fields);

    void callSingleUser();
    void callConference();
    void answer();
    void setOnline();
    void query();
    void updateCard();
    void showCentre();
    void exit();
    void takeLine();
    void hangUp();
    void closeWindow();
    void timeouts();
    void addMembers();
    void changeMember();
    void muteAll();
    void device();
    void loseOrFindChannel();

    VoipManageProbe &manager() { return *engine.manager; }
    void holdReconnection();

    QByteArray m_answer;
    VcardInfo m_card;
};
