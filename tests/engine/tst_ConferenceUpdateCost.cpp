// What an update of very many new members costs: what it asks of the system and of the host, and its processor time.

#include "ConferenceContent.h"
#include "ProcessorClock.h"
#include "fakes/EngineFixture.h"

#include <QTest>

#include <algorithm>

#include <atomic>
#include <ctime>
#include <dlfcn.h>

namespace {

constexpr int cMembers = 10000;
std::atomic<int> zoneLookUps{0};

QString uid(int iNumber)
{
    return QStringLiteral("3001%1").arg(iNumber);
}

QString update()
{
    QStringList ids;
    for (int i = 0; i < cMembers; ++i) {
        ids << uid(i);
    }
    return conferenceContent(QStringLiteral(R"("confId":"c1","conventioneer":["%1"])").arg(ids.join("\",\"")));
}

} // namespace

/// Stands before the system's own, which looks at the zone's file each time.
extern "C" Q_DECL_EXPORT tm *localtime_r(const time_t *time, tm *result)
{
    ++zoneLookUps;
    static const auto real = reinterpret_cast<tm *(*)(const time_t *, tm *)>(dlsym(RTLD_NEXT, "localtime_r"));
    return real(time, result);
}

class tst_ConferenceUpdateCost : public QObject
{
    Q_OBJECT

private slots:
    void zoneIsNotLookedUpForEachMember()
    {
        EngineFixture f;
        f.createConference();
        const QString content = update();
        zoneLookUps = 0;
        f.notify(12, content);
        QCOMPARE(f.members().size(), cMembers + 2);
        // Once a second, and however slow the machine is, it is no matter of minutes.
        QVERIFY2(zoneLookUps < cMembers / 10, qPrintable(QString::number(zoneLookUps.load())));
    }

    void hostIsAskedTheSameOfEachMember()
    {
        EngineFixture f;
        f.createConference();
        f.host.events.clear();
        f.notify(12, update());
        const QList<ReceivedEvent> events = f.host.events;
        QCOMPARE(events.size(), 3 * cMembers);
        for (int i = 0; i < cMembers; ++i) {
            // For the row, then for the stranger's test.
            const int wanted[] = {MSG_GET_FRIEND_INFO, MSG_GET_FRIEND_INFO, MSG_IS_EXIST_FRIEND};
            for (int question = 0; question < 3; ++question) {
                const ReceivedEvent &event = events.at(3 * i + question);
                QCOMPARE(event.msgId, wanted[question]);
                QCOMPARE(event.reader().take<QString>(), EngineFixture::jid(uid(i)));
            }
        }
    }

    // Beside a host whose answers stand ready. The least of some rounds is what the work itself takes.
    void clientStandsStillForLessThanATenthOfASecond()
    {
        const QString content = update();
        const FriendData unknown;
        double dLeast = 1;
        for (int i = 0; i < 5; ++i) {
            EngineFixture f;
            f.createConference();
            f.host.bRecords = false;
            f.host.rawAnswers = {{MSG_IS_EXIST_FRIEND, packPayload(false)},
                                 {MSG_GET_FRIEND_INFO, packPayload(qint64(reinterpret_cast<quintptr>(&unknown)))}};
            const ProcessorClock clock;
            f.notify(12, content);
            dLeast = std::min(dLeast, clock.seconds());
            QCOMPARE(f.members().size(), cMembers + 2);
        }
        QVERIFY2(dLeast < 0.1 * VOIP_TIMES_SLOWER, qPrintable(QString::number(dLeast)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceUpdateCost, Widgets)
#include "tst_ConferenceUpdateCost.moc"
