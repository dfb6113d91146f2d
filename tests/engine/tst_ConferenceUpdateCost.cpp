// What an update of very many new members costs: what it asks of the system and of the host, and its processor time.

#include "ProcessorClock.h"

#include "engine/ConferenceContent.h"
#include "fakes/EngineFixture.h"

#include <QTest>

#include <algorithm>
#include <atomic>
#include <ctime>
#include <dlfcn.h>

namespace {

constexpr int cMembers = 10000;
// Four times as much is measured, on a machine of any speed; a copy of the members for each of them is far above.
constexpr double cMostTimesTheQuestions = 6;
// Rounds that are measured, and more of them while others fill the caches.
constexpr int cRounds = 7;
constexpr int cMostRounds = 40;
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
        f.notify(Code::ConfUpdate, content);
        QCOMPARE(f.members().size(), cMembers + 2);
        // Once a second, and however slow the machine is, it is no matter of minutes.
        QVERIFY2(zoneLookUps < cMembers / 10, qPrintable(QString::number(zoneLookUps.load())));
    }

    void hostIsAskedTheSameOfEachMember()
    {
        EngineFixture f;
        f.createConference();
        f.host.events.clear();
        f.notify(Code::ConfUpdate, update());
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

    // Beside a host whose answers stand ready, the least that an update of strangers takes.
    void costIsInProportionToTheQuestions()
    {
        const QString content = update();
        const FriendData unknown;
        double dUpdate = 1e9;
        double dQuestions = 1e9;
        // What nothing else disturbed of some rounds is what the work itself takes.
        bool bInProportion = false;
        for (int i = 0; i < cRounds || (i < cMostRounds && !bInProportion); ++i) {
            EngineFixture f;
            f.createConference();
            f.host.bRecords = false;
            f.host.rawAnswers = {{MSG_IS_EXIST_FRIEND, packPayload(false)},
                                 {MSG_GET_FRIEND_INFO, packPayload(qint64(reinterpret_cast<quintptr>(&unknown)))}};
            const ProcessorClock updateClock;
            f.notify(Code::ConfUpdate, content);
            dUpdate = std::min(dUpdate, updateClock.seconds());
            QCOMPARE(f.members().size(), cMembers + 2);
            const ProcessorClock questionClock;
            askTheHost(f.host);
            dQuestions = std::min(dQuestions, questionClock.seconds());
            bInProportion = dUpdate < cMostTimesTheQuestions * dQuestions;
        }
        QVERIFY2(bInProportion, qPrintable(QStringLiteral("%1 s beside %2 s").arg(dUpdate).arg(dQuestions)));
    }

private:
    /// The questions of such an update, without anything else.
    static void askTheHost(FakeHost &host)
    {
        for (int i = 0; i < cMembers; ++i) {
            const QString strJid = EngineFixture::jid(uid(i));
            for (const EMsgId question : {MSG_GET_FRIEND_INFO, MSG_GET_FRIEND_INFO, MSG_IS_EXIST_FRIEND}) {
                BaseEvent event(question, QString(), QString(), false);
                event.data = packPayload(strJid);
                QCoreApplication::sendEvent(&host, &event);
                PayloadReader(event.data).take<qint64>();
            }
        }
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceUpdateCost, Widgets)
#include "tst_ConferenceUpdateCost.moc"
