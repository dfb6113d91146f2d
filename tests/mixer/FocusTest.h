#pragma once

// A hall with a recording side, anew for each function, and what members do there.

#include "mixer/RecordingSide.h"

#include <QtTest>

#include <memory>

class FocusTest : public QObject
{
    Q_OBJECT

public:
    using LegId = Focus::LegId;

    std::unique_ptr<RecordingSide> side;
    std::unique_ptr<Focus::Hall> hall;

protected:
    static QStringList people(const QString &prefix, int count)
    {
        QStringList ids;
        for (int i = 0; i < count; ++i) {
            ids << prefix + QString::number(i);
        }
        return ids;
    }

    static Talk::Message word(Talk::Word saying, const QString &user = {})
    {
        Talk::Message message;
        message.saying = saying;
        message.user = user;
        return message;
    }

    static Talk::Message creation(const QString &id, const QStringList &members)
    {
        Talk::Message message = word(Talk::Word::Create);
        message.id = id;
        message.members = members;
        return message;
    }

    static Talk::Message addition(const QStringList &users)
    {
        Talk::Message message = word(Talk::Word::Add);
        message.users = users;
        return message;
    }

    /// What a member who was told of this says when he comes back.
    static Talk::Message resumption(const Talk::Message &members)
    {
        Talk::Message message = members;
        message.saying = Talk::Word::Resume;
        return message;
    }

    void make(const Focus::Limits &limits = {})
    {
        side = std::make_unique<RecordingSide>();
        hall = std::make_unique<Focus::Hall>(*side, limits);
    }

    LegId arrive(const QString &user, const Talk::Message &message)
    {
        const LegId leg = side->nextLeg();
        hall->takeArrival(leg, message.id, user, Talk::written(message));
        return leg;
    }

    void comeUp(LegId leg)
    {
        if (side->open.contains(leg)) {
            side->up.insert(leg);
        }
        hall->takeUp(leg);
    }

    void leave(LegId leg)
    {
        side->forget(leg);
        hall->takeEnd(leg);
    }

    void decline(LegId leg, int status)
    {
        side->forget(leg);
        hall->takeRefusal(leg, status);
    }

    LegId arriveAndStay(const QString &user, const Talk::Message &message)
    {
        const LegId leg = arrive(user, message);
        comeUp(leg);
        return leg;
    }

    /// The user accepts the call that rings at him.
    LegId accept(const QString &user)
    {
        const LegId leg = side->legOf(user);
        comeUp(leg);
        return leg;
    }

    void say(LegId leg, const Talk::Message &message) { hall->takeBody(leg, Talk::written(message)); }

    /// A conference "c" of "anna" with these, all of them in it, and everything told. The legs in the order of the
    /// names, hers first.
    QList<LegId> gathering(const QStringList &members)
    {
        QList<LegId> legs{arriveAndStay("anna", creation("c", members))};
        for (const QString &id : members) {
            legs << accept(id);
        }
        tellNow();
        side->bodies.clear();
        side->takeLog();
        return legs;
    }

    /// Has the timers of this name that run time out: "gather", "await", "life".
    void expire(const char *timerName)
    {
        const QList<QTimer *> timers = hall->findChildren<QTimer *>(QLatin1String(timerName));
        for (QTimer *timer : timers) {
            if (timer->isActive()) {
                timer->stop();
                QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
            }
        }
    }

    void tellNow() { expire("gather"); }

    /// What `leg` alone was told as Outcome or Denied since the last time.
    Talk::Message own(LegId leg, Talk::Word saying)
    {
        tellNow();
        for (const Talk::Message &message : side->takeBodies(leg)) {
            if (message.saying == saying) {
                return message;
            }
        }
        return {};
    }

    /// How it stands, as each of these was told last: each the same.
    Talk::Message told(const QList<LegId> &legs)
    {
        tellNow();
        QSet<QByteArray> different;
        Talk::Message last;
        for (const LegId leg : legs) {
            last = {};
            for (const Talk::Message &message : side->takeBodies(leg)) {
                last = message.saying == Talk::Word::Members ? message : last;
            }
            different.insert(Talk::written(last));
        }
        if (different.size() != 1) {
            QTest::qFail("each is told the same", __FILE__, __LINE__);
        }
        return last;
    }

private slots:
    void init() { make(); }

    void cleanup()
    {
        hall.reset();
        side.reset();
    }
};
