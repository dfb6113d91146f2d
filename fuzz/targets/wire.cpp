#include "EngineBench.h"
#include "FuzzTargets.h"

#include <algorithm>
#include <iterator>

namespace {

// Stands nowhere in UTF-8: with the letter of an act behind it, it ends a read. Any other byte behind it is input.
constexpr char cMark = '\xFF';
// Acts cost many times a line.
constexpr int cMostActs = 6;

void nothing(EngineBench &) {}

void deliver(EngineBench &)
{
    EngineBench::deliverPosted();
}

void acceptCall(EngineBench &bench)
{
    bench.manager->responseVoipRequest(true);
}

void rejectCall(EngineBench &bench)
{
    bench.manager->responseVoipRequest(false);
}

void hangUp(EngineBench &bench)
{
    bench.manager->slot_HangupCurrentCall();
}

void callUser(EngineBench &bench)
{
    bench.manager->callSingleUser(QStringLiteral("anna"), false);
}

void callVideo(EngineBench &bench)
{
    bench.manager->callSingleUser(QStringLiteral("bert"), true);
}

void callMembers(EngineBench &bench)
{
    bench.manager->callConference({QStringLiteral("anna"), QStringLiteral("bert")}, false, QString());
}

void addMembers(EngineBench &bench)
{
    bench.host.membersToAdd = QStringList{QStringLiteral("anna"), QStringLiteral("carl"), QStringLiteral("dora")};
    bench.manager->slot_AddConfMember();
}

void removeMember(EngineBench &bench)
{
    bench.manager->slot_RemoveConferenceMember(QStringLiteral("bert"));
}

void inviteAgain(EngineBench &bench)
{
    bench.manager->slot_ReInviteConfUser(QStringLiteral("anna"));
}

void muteMember(EngineBench &bench)
{
    bench.manager->slot_MuteConferenceMember(QStringLiteral("anna"), true);
}

void inviteTimeout(EngineBench &bench)
{
    bench.manager->slot_inviteCallTimeout();
}

void recevieTimeout(EngineBench &bench)
{
    bench.manager->slot_recevieCallTimeout();
}

void loseChannel(EngineBench &bench)
{
    bench.manager->slot_VoipSDKDisConnected();
}

void findChannel(EngineBench &bench)
{
    bench.manager->slot_VoipSDKConnected();
}

void showCentre(EngineBench &bench)
{
    bench.manager->showVoiceConf();
}

void silenceHost(EngineBench &bench)
{
    bench.host.bAnswers = false;
}

void haveFriend(EngineBench &bench)
{
    bench.host.friendJids.insert(QStringLiteral("anna@kelvar.im"));
}

/// What an act may bring up beside the call window.
enum Shows
{
    Nothing,
    BoxIfRefused,
    Centre,
};

struct Act
{
    char letter;
    void (*run)(EngineBench &bench);
    Shows shows = Nothing;
};

constexpr Act cActs[] = {
    {'|', nothing},
    {'.', deliver},
    {'a', acceptCall},
    {'r', rejectCall},
    {'h', hangUp},
    {'c', callUser, BoxIfRefused},
    {'v', callVideo, BoxIfRefused},
    {'k', callMembers, BoxIfRefused},
    {'+', addMembers},
    {'-', removeMember},
    {'i', inviteAgain},
    {'m', muteMember},
    {'t', inviteTimeout},
    {'T', recevieTimeout},
    {'l', loseChannel},
    {'f', findChannel},
    {'w', showCentre, Centre},
    {'s', silenceHost},
    {'F', haveFriend},
};

/// An input on its way into the engine.
class Script
{
public:
    explicit Script(const QByteArray &input) : m_input(input) {}

    void run(EngineBench &bench)
    {
        while (m_position < m_input.size()) {
            step(bench);
        }
    }

private:
    /// One read, and the act behind it.
    void step(EngineBench &bench)
    {
        QByteArray read;
        while (m_position < m_input.size()) {
            const char byte = m_input.at(m_position++);
            const Act *act = byte == cMark ? actAt(m_position) : nullptr;
            if (act) {
                ++m_position;
                bench.receive(read);
                if (isAllowed(*act, bench)) {
                    act->run(bench);
                }
                return;
            }
            read += byte;
        }
        bench.receive(read);
    }

    /// Without the window nothing else is shown either, which keeps such inputs fast. A second message box would run a
    /// second event loop, and one over the other never closes.
    static bool isAllowed(const Act &act, const EngineBench &bench)
    {
        switch (act.shows) {
        case Nothing:
            return true;
        case BoxIfRefused:
            if (!bench.manager->isExistCall() && bench.manager->m_bSocketConnected) {
                return true;
            }
            return bench.usesWindow() && bench.boxes.texts.isEmpty();
        case Centre:
            return bench.usesWindow();
        }
        return false;
    }

    const Act *actAt(int position)
    {
        if (position >= m_input.size() || m_acts == cMostActs) {
            return nullptr;
        }
        const char letter = m_input.at(position);
        const Act *act = std::find_if(std::begin(cActs), std::end(cActs),
                                      [letter](const Act &candidate) { return candidate.letter == letter; });
        if (act == std::end(cActs)) {
            return nullptr;
        }
        ++m_acts;
        return act;
    }

    const QByteArray m_input;
    int m_position = 0;
    int m_acts = 0;
};

void runScript(const QByteArray &input)
{
    EngineBench &bench = EngineBench::instance();
    Script script(input);
    // A message box runs an event loop; the next reads come while it is open.
    bench.boxes.whileOpen = [&] { script.run(bench); };
    script.run(bench);
    bench.reset();
}

} // namespace

void FuzzTargets::wire(const QByteArray &input)
{
    EngineBench::instance().begin(false);
    runScript(input);
}

void FuzzTargets::window(const QByteArray &input)
{
    EngineBench::instance().begin(true);
    runScript(input);
}
