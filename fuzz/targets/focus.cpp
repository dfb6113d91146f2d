#include "FuzzTargets.h"
#include "mixer/focus/Hall.h"
#include "mixer/focus/LegSide.h"

#include "conference/Talk.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QList>
#include <QSet>
#include <QTimer>

namespace {

using Focus::LegId;

constexpr Focus::Limits cNarrow{3, 6, 12, 60};
constexpr int cUsers = 8;
constexpr int cConferences = 4;

/// The legs as the focus wants them, which hold it to its promises.
class Side : public Focus::LegSide
{
public:
    LegId ring(const QString &conferenceId, const QString &userId, const QByteArray &header) override
    {
        requirePromise(Talk::read(header, Talk::Road::InviteDown).message.has_value(), "an invitation is a word");
        // This one can never be reached.
        if (userId == QLatin1String("7")) {
            return Focus::cNoLeg;
        }
        enter(++lastLeg, conferenceId);
        return lastLeg;
    }

    void answer(LegId leg) override { enter(leg, arrivals.value(leg)); }
    void refuse(LegId leg, int status, const QString &why) override
    {
        requirePromise(!open.contains(leg) && status >= 400 && !why.isEmpty(), "a refusal has its reason");
    }

    void end(LegId leg) override
    {
        requirePromise(open.remove(leg) > 0, "what is ended is there");
        up.remove(leg);
        hall->takeEnd(leg);
    }

    void setSilent(LegId leg, bool /*silent*/) override
    {
        requirePromise(up.contains(leg), "who is silenced is heard");
    }

    void send(LegId leg, const QByteArray &body) override
    {
        requirePromise(up.contains(leg), "nothing is said on a leg that is not up");
        requirePromise(Talk::read(body, Talk::Road::InfoDown).message.has_value(), "what is said is a word");
    }

    void note(const QString & /*text*/) override {}

    void forget(LegId leg)
    {
        open.remove(leg);
        up.remove(leg);
    }

    Focus::Hall *hall = nullptr;
    LegId lastLeg = Focus::cNoLeg;
    QHash<LegId, QString> arrivals; // which conference they are for
    QHash<LegId, QString> open;     // in which conference
    QSet<LegId> up;

private:
    void enter(LegId leg, const QString &conferenceId)
    {
        open.insert(leg, conferenceId);
        const QStringList places = open.values();
        requirePromise(places.count(conferenceId) <= cNarrow.members, "a conference has its limit");
    }
};

QString userOf(int number)
{
    return QString::number(number % cUsers);
}

/// Who stands for a set bit.
QStringList usersOf(int bits)
{
    QStringList users;
    for (int i = 0; i < cUsers; ++i) {
        if (((bits >> i) & 1) != 0) {
            users.append(userOf(i));
        }
    }
    return users;
}

void expire(const Focus::Hall &hall, const char *timerName)
{
    const QList<QTimer *> timers = hall.findChildren<QTimer *>(QLatin1String(timerName));
    for (QTimer *timer : timers) {
        if (timer->isActive()) {
            timer->stop();
            QMetaObject::invokeMethod(timer, "timeout");
        }
    }
}

/// A line of the input: a letter, and what it needs of three numbers and the bytes behind them.
struct Step
{
    char letter;
    int first;
    int second;
    int third;
    QByteArray rest;

    explicit Step(const QByteArray &line)
        : letter(line.isEmpty() ? '\0' : line.at(0)), first(number(line, 1)), second(number(line, 2)),
          third(number(line, 3)), rest(line.mid(4))
    {
    }

    static int number(const QByteArray &line, int place) { return place < line.size() ? uchar(line.at(place)) : 0; }
};

void arrive(Focus::Hall &hall, Side &side, const Step &step)
{
    const QString id = QString::number(step.second % cConferences);
    QByteArray header = step.rest;
    if (step.letter != 'A') {
        Talk::Message message;
        message.saying = step.letter == 'C' ? Talk::Word::Create : Talk::Word::Resume;
        message.id = id;
        message.creator = userOf(step.first);
        message.members = usersOf(step.third);
        message.connected = usersOf(step.third & 0x3f);
        message.muted = usersOf(step.third & 0x15);
        header = Talk::written(message);
    }
    side.arrivals.insert(++side.lastLeg, id);
    hall.takeArrival(side.lastLeg, id, userOf(step.first + (step.letter == 'Q' ? 1 : 0)), header);
}

void say(Focus::Hall &hall, LegId leg, const Step &step)
{
    Talk::Message message;
    message.saying = step.letter == 'K'   ? Talk::Word::Kick
                     : step.letter == 'M' ? Talk::Word::Mute
                     : step.letter == 'N' ? Talk::Word::Unmute
                                          : Talk::Word::Add;
    message.user = step.second == 'x' ? QStringLiteral("non_moderator") : userOf(step.second);
    message.users = usersOf(step.third);
    hall.takeBody(leg, Talk::written(message));
}

void takeStep(Focus::Hall &hall, Side &side, const Step &step)
{
    const LegId leg = step.first % (side.lastLeg + 1);
    switch (step.letter) {
    case 'A':
    case 'C':
    case 'R':
    case 'Q':
        arrive(hall, side, step);
        break;
    case 'U':
        if (side.open.contains(leg)) {
            side.up.insert(leg);
        }
        hall.takeUp(leg);
        break;
    case 'X':
    case 'D':
        side.forget(leg);
        step.letter == 'X' ? hall.takeEnd(leg) : hall.takeRefusal(leg, 400 + step.second);
        break;
    case 'B':
        hall.takeBody(leg, step.rest);
        break;
    case 'T':
        expire(hall, step.first == 'l' ? "life" : step.first == 'a' ? "await" : "gather");
        break;
    default:
        say(hall, leg, step);
    }
    requirePromise(hall.legCount() == side.open.size(), "a leg that is there is known");
    requirePromise(hall.legCount() <= cNarrow.legs && hall.conferenceCount() <= cNarrow.conferences, "limits hold");
}

} // namespace

void FuzzTargets::focus(const QByteArray &input)
{
    Side side;
    Focus::Hall hall(side, cNarrow);
    side.hall = &hall;
    for (const QByteArray &line : input.split('\n')) {
        takeStep(hall, side, Step(line));
    }
    const QList<LegId> left = side.open.keys();
    for (const LegId leg : left) {
        if (side.open.remove(leg) > 0) {
            hall.takeEnd(leg);
        }
    }
    expire(hall, "await");
    requirePromise(hall.conferenceCount() == 0 && hall.legCount() == 0, "a conference without legs is over");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
