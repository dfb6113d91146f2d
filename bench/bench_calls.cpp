// Calls between people, each work beside baresip over the same exchange and the same sound server: SIP over TLS, sound
// by Opus over SRTP, null devices. Both ends, the exchange and the sound server are processes of this machine.

#include "calls/Ear.h"
#include "calls/Mouth.h"
#include "calls/Telephones.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThread>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <memory>

namespace {

constexpr int cCalls = 21;
constexpr unsigned long cBetweenCallsMs = 400;
// A process that has had something to do looks for more for three seconds.
constexpr unsigned long cSettleMs = 4000;
constexpr unsigned long cTalkMs = 5200;
constexpr double cNanosecond = 1e-9;

TestExchange *theExchange = nullptr;

/// Two telephones that are signed in, somebody who speaks into both microphones, and ears at both ends.
template <class Pair>
struct Stage
{
    Pair pair{*theExchange};
    Mouth callersMouth{QStringLiteral("mic-") + QLatin1String(Pair::cCaller)};
    Mouth calledsMouth{QStringLiteral("mic-") + QLatin1String(Pair::cCalled)};
    Ear atMouth{QStringLiteral("mic-") + QLatin1String(Pair::cCaller)};
    Ear callersEar{SoundBox::speakerOf(QLatin1String(Pair::cCaller))};
    Ear calledsEar{SoundBox::speakerOf(QLatin1String(Pair::cCalled))};
};

template <class Pair>
std::unique_ptr<Stage<Pair>> theStage;

/// The same, made when it is first asked for; null where the two cannot sign in.
template <class Pair>
Stage<Pair> *stage()
{
    if (!theStage<Pair>) {
        auto made = std::make_unique<Stage<Pair>>();
        if (made->pair.arrive()) {
            theStage<Pair> = std::move(made);
            QThread::msleep(cSettleMs);
        }
    }
    return theStage<Pair>.get();
}

/// What processor time the process has had, in seconds.
double processorSeconds(qint64 processId)
{
    clockid_t clock{};
    timespec time{};
    if (::clock_getcpuclockid(static_cast<pid_t>(processId), &clock) != 0 || ::clock_gettime(clock, &time) != 0) {
        return 0;
    }
    return double(time.tv_sec) + double(time.tv_nsec) * cNanosecond;
}

double residentKilobytes(qint64 processId)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(processId));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.simplified().split(' ').value(1).toDouble();
        }
    }
    return 0;
}

/// The processor time of some seconds of a process's life, as a share of one core, and its memory then.
void weigh(benchmark::State &state, qint64 processId, unsigned long milliseconds)
{
    const double before = processorSeconds(processId);
    const double begin = Ear::now();
    QThread::msleep(milliseconds);
    const double seconds = Ear::now() - begin;
    state.counters["core_percent"] = 100 * (processorSeconds(processId) - before) / seconds;
    state.counters["resident_KiB"] = residentKilobytes(processId);
}

/// From a moment until the tone first began in what was heard; -1: it has not.
double firstSound(const Ear &ear, double since)
{
    const std::vector<double> begins = ear.begins(Mouth::cHertz);
    return begins.empty() ? -1 : std::max(0.0, begins.front() - since);
}

double waitForSound(const Ear &ear, double since)
{
    double sound = firstSound(ear, since);
    for (int tries = 0; sound < 0 && tries < 100; ++tries) {
        QThread::msleep(20);
        sound = firstSound(ear, since);
    }
    return sound;
}

/// From the command to call until it rings there; from the answer until both ends know of it; until both hear sound.
template <class Pair>
void call(benchmark::State &state)
{
    Stage<Pair> *both = stage<Pair>();
    if (!both) {
        return state.SkipWithError("nobody has arrived");
    }
    both->callersMouth.setPauses(false);
    both->calledsMouth.setPauses(false);
    for (auto _ : state) {
        QThread::msleep(cBetweenCallsMs);
        both->callersEar.listen(true);
        both->calledsEar.listen(true);
        QThread::msleep(cBetweenCallsMs);
        const double begin = Ear::now();
        const bool rings = both->pair.call();
        const double rang = Ear::now();
        const bool answered = rings && both->pair.answer();
        const double stood = Ear::now();
        const double sound =
            answered ? std::max(waitForSound(both->callersEar, stood), waitForSound(both->calledsEar, stood)) : -1;
        both->callersEar.listen(false);
        both->calledsEar.listen(false);
        if (!both->pair.hangUp() || sound < 0) {
            return state.SkipWithError("the call did not come about");
        }
        state.SetIterationTime(rang - begin);
        state.counters["answered_ns"] = (stood - rang) / cNanosecond;
        state.counters["sound_ns"] = sound / cNanosecond;
    }
}

/// Each time from the mouth until it is heard, the middle one; -1 where it was not heard three times.
double middleDelay(const Ear &mouth, const Ear &ear)
{
    std::vector<double> delays;
    const std::vector<double> heard = ear.begins(Mouth::cHertz);
    for (const double said : mouth.begins(Mouth::cHertz)) {
        const auto next = std::upper_bound(heard.begin(), heard.end(), said);
        if (next != heard.end()) {
            delays.push_back(*next - said);
        }
    }
    const auto middle = delays.begin() + std::ptrdiff_t(delays.size() / 2);
    std::nth_element(delays.begin(), middle, delays.end());
    return delays.size() < 3 ? -1 : *middle;
}

/// A call that goes on: how late what is said is heard, and what it costs.
template <class Pair>
void talk(benchmark::State &state)
{
    Stage<Pair> *both = stage<Pair>();
    if (!both) {
        return state.SkipWithError("nobody has arrived");
    }
    both->callersMouth.setPauses(true);
    both->calledsMouth.setPauses(true);
    for (auto _ : state) {
        if (!both->pair.call() || !both->pair.answer()) {
            return state.SkipWithError("the call did not come about");
        }
        QThread::msleep(cSettleMs);
        both->atMouth.listen(true);
        both->calledsEar.listen(true);
        weigh(state, both->pair.processId(), cTalkMs);
        const double delay = middleDelay(both->atMouth, both->calledsEar);
        both->atMouth.listen(false);
        both->calledsEar.listen(false);
        if (!both->pair.hangUp() || delay < 0) {
            return state.SkipWithError("nothing was heard");
        }
        state.SetIterationTime(delay);
    }
}

/// Signed in, without a call.
template <class Pair>
void idle(benchmark::State &state)
{
    Stage<Pair> *both = stage<Pair>();
    if (!both) {
        return state.SkipWithError("nobody has arrived");
    }
    for (auto _ : state) {
        QThread::msleep(cSettleMs);
        weigh(state, both->pair.processId(), cTalkMs);
        state.SetIterationTime(1);
    }
}

/// The first sign-in of a process: connection, certificate, challenge, answer.
template <class Somebody>
void signIn(benchmark::State &state)
{
    for (auto _ : state) {
        Somebody somebody(*theExchange, QStringLiteral("500"));
        if (!somebody.start()) {
            return state.SkipWithError("the telephone does not start");
        }
        const double begin = Ear::now();
        if (!somebody.signIn()) {
            return state.SkipWithError("not registered");
        }
        state.SetIterationTime(Ear::now() - begin);
    }
}

/// The exchange is started anew after its death; from then on until the user is registered.
void comeBack(benchmark::State &state)
{
    for (auto _ : state) {
        TestExchange own;
        OurPerson somebody(own, QStringLiteral("500"));
        if (!own.start() || !somebody.start() || !somebody.signIn() || !own.kill() || !somebody.hears("17 false")) {
            return state.SkipWithError("the exchange did not die");
        }
        QThread::msleep(cSettleMs);
        const double begin = Ear::now();
        if (!own.start() || !somebody.hears("17 true")) {
            return state.SkipWithError("not registered again");
        }
        state.SetIterationTime(Ear::now() - begin);
    }
}

BENCHMARK(call<OurPair>)->Iterations(1)->Repetitions(cCalls)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(call<BaresipPair>)->Iterations(1)->Repetitions(cCalls)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(signIn<OurPerson>)->Iterations(1)->Repetitions(cCalls)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(signIn<BaresipPerson>)->Iterations(1)->Repetitions(cCalls)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(talk<OurPair>)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(talk<BaresipPair>)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(idle<OurPair>)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(idle<BaresipPair>)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(comeBack)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    // Whatever a work writes goes to the folder that the run has made for this program.
    QDir::setCurrent(QDir::tempPath());
    const QCoreApplication application(argc, argv);
    SoundBox sound;
    TestExchange exchange;
    theExchange = &exchange;
    if (!exchange.start() || !sound.start({QStringLiteral("100"), QStringLiteral("200"), QStringLiteral("300"),
                                           QStringLiteral("400"), QStringLiteral("500")})) {
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    theStage<OurPair>.reset();
    theStage<BaresipPair>.reset();
    return 0;
}
