// Works the plug-in for a long time in one process, with the built module and the built call process, and fails when it
// holds more at the end than near the start, or has lost or kept what it should not.

#include "soak/FastClock.h"
#include "soak/Footprint.h"
#include "soak/ObjectCensus.h"
#include "soak/SoakClient.h"
#include "soak/Workload.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

#include <cstdlib>
#include <unistd.h>

namespace {

// A robot answers within some ten milliseconds then, and lets it ring for three tenths of a second.
constexpr int cFullSpeed = 100;
constexpr int cWarmUpCalls = 100;
constexpr int cWarmUpHours = 1;
// What is held is shown after each of them.
constexpr int cParts = 10;
// After so many parts everything that is made on a first need has been needed, glyphs of the fonts above all.
constexpr int cSettlingParts = 2;
constexpr qint64 cMostGrowthPercent = 1;
// Lists keep the room of the longest that they have been: the log's queue, the queues of events.
constexpr qint64 cKeptRoomBytes = qint64(96) * 1024;
// Qt makes a few objects on a first need that comes later.
constexpr int cLateObjects = 8;

struct Plan
{
    int calls = 10000;
    int conferences = 1000;
    int hours = 0; // of simulated time; when given, it is the whole work
};

QTextStream &out()
{
    static QTextStream s_out(stdout);
    return s_out;
}

void say(const QString &text)
{
    out() << text << '\n';
    out().flush();
}

Plan readPlan(const QCoreApplication &app)
{
    Plan plan;
    QCommandLineParser options;
    options.setApplicationDescription(
        QStringLiteral("Works the call plug-in for a long time and watches what it holds."));
    options.addHelpOption();
    const auto number = [&](const QString &name, const QString &text, int preset) {
        options.addOption({name, text, QStringLiteral("N"), QString::number(preset)});
    };
    number(QStringLiteral("calls"), QStringLiteral("single calls at full speed"), plan.calls);
    number(QStringLiteral("conferences"), QStringLiteral("conferences among them"), plan.conferences);
    number(QStringLiteral("hours"), QStringLiteral("hours of simulated time in place of the calls"), plan.hours);
    options.process(app);
    plan.calls = options.value(QStringLiteral("calls")).toInt();
    plan.conferences = options.value(QStringLiteral("conferences")).toInt();
    plan.hours = options.value(QStringLiteral("hours")).toInt();
    return plan;
}

Footprint measure(SoakClient &client, const QString &when)
{
    client.settle();
    Footprint print = Footprint::now();
    say(when + QStringLiteral(": ") + print.text());
    return print;
}

/// Runs calls and conferences in even shares until so many of both are done.
class Shares
{
public:
    Shares(Workload &work, const Plan &plan) : m_work(work), m_plan(plan) {}

    void runUntil(int calls)
    {
        while (m_calls < calls) {
            m_calls += m_work.nextCall();
            while (qint64(m_conferences) * m_plan.calls < qint64(m_calls) * m_plan.conferences) {
                m_work.nextConference();
                ++m_conferences;
            }
        }
    }
    int calls() const { return m_calls; }
    int conferences() const { return m_conferences; }

private:
    Workload &m_work;
    const Plan &m_plan;
    int m_calls = 0;
    int m_conferences = 0;
};

/// What was held at the four moments that count.
struct Course
{
    Footprint start;
    Footprint early;   ///< after the first hundred calls, or the first hour
    Footprint settled; ///< when everything that is made on a first need has been needed
    Footprint late;
};

void runCalls(SoakClient &client, Workload &work, const Plan &plan, Course &course)
{
    Shares shares(work, plan);
    const auto after = [&](int calls) {
        shares.runUntil(calls);
        return measure(
            client, QStringLiteral("after %1 calls and %2 conferences").arg(shares.calls()).arg(shares.conferences()));
    };
    const std::int64_t start = FastClock::realMs();
    course.early = after(cWarmUpCalls);
    course.settled = after(qMax(cWarmUpCalls, plan.calls * cSettlingParts / cParts));
    for (int part = cSettlingParts + 1; part < cParts; ++part) {
        after(int(qint64(plan.calls) * part / cParts));
    }
    course.late = after(plan.calls);
    const double seconds = double(FastClock::realMs() - start) / 1000;
    say(QStringLiteral("%1 calls and %2 conferences in %3 s, %4 a second")
            .arg(shares.calls())
            .arg(shares.conferences())
            .arg(seconds, 0, 'f', 1)
            .arg((shares.calls() + shares.conferences()) / seconds, 0, 'f', 1));
}

void runHours(SoakClient &client, Workload &work, const Plan &plan, Course &course)
{
    const std::int64_t start = FastClock::realMs();
    for (int hour = 1; hour <= plan.hours; ++hour) {
        work.hour();
        const Footprint print = measure(client, QStringLiteral("after %1 h").arg(hour));
        if (hour == cWarmUpHours) {
            course.early = print;
        }
        if (hour == qMax(cWarmUpHours, plan.hours * cSettlingParts / cParts)) {
            course.settled = print;
        }
        course.late = print;
    }
    say(QStringLiteral("%1 hours in %2 s").arg(plan.hours).arg(double(FastClock::realMs() - start) / 1000, 0, 'f', 1));
}

QString ratio(qint64 late, qint64 early)
{
    return QStringLiteral("%1 %").arg(100.0 * double(late) / double(early), 0, 'f', 3);
}

/// Whether what is held at the end is what it was.
bool isHeld(const Course &course)
{
    bool held = true;
    const auto check = [&](const char *what, qint64 now, qint64 most) {
        if (now > most) {
            say(QStringLiteral("FAILED: %1: %2, at most %3 expected").arg(QLatin1String(what)).arg(now).arg(most));
            held = false;
        }
    };
    const Footprint &late = course.late;
    if (Footprint::isHeapKnown()) {
        say(QStringLiteral("resident memory: %1 of the early one; heap in use: %2 of the early, %3 of the settled one")
                .arg(ratio(late.residentBytes, course.early.residentBytes),
                     ratio(late.heapBytes, course.early.heapBytes), ratio(late.heapBytes, course.settled.heapBytes)));
        check("resident memory", late.residentBytes, course.early.residentBytes * (100 + cMostGrowthPercent) / 100);
        check("heap in use", late.heapBytes,
              course.settled.heapBytes * (100 + cMostGrowthPercent) / 100 + cKeptRoomBytes);
    }
    check("descriptors", late.descriptors, course.early.descriptors);
    check("windows", late.windows, course.start.windows);
    check("objects", late.objectCount(), course.early.objectCount() + cLateObjects);
    // Deliberate: nothing stops the call window's clock once a call was connected.
    QStringList timers = course.start.timers + QStringList{QStringLiteral("QTimer:CVoipWidget 1000 ms")};
    timers.sort();
    if (late.timers != timers) {
        say(QStringLiteral("FAILED: timers: %1; expected: %2")
                .arg(late.timers.join(QStringLiteral(", ")), timers.join(QStringLiteral(", "))));
        held = false;
    }
    return held;
}

void tellMoreObjects(const Footprint &early, const Footprint &late)
{
    for (auto kind = late.objects.cbegin(); kind != late.objects.cend(); ++kind) {
        const int before = early.objects.value(kind.key());
        if (kind.value() > before) {
            say(QStringLiteral("more objects: %1, %2 and not %3").arg(kind.key()).arg(kind.value()).arg(before));
        }
    }
}

bool run(const Plan &plan)
{
    SoakClient client(plan.hours > 0 ? SoakClient::workPace : cFullSpeed);
    client.start();
    Course course;
    course.start = measure(client, QStringLiteral("at the start"));
    Workload work(client);
    if (plan.hours > 0) {
        runHours(client, work, plan, course);
    } else {
        runCalls(client, work, plan, course);
    }
    say(QStringLiteral("events left undeleted by contract and taken off: %1 of the prompt, %2 of the card, %L3 bytes")
            .arg(client.undeleted.taken(MSG_CLOSE_AV_MSGBOX))
            .arg(client.undeleted.taken(MSG_CLOSE_SIGN_LIST))
            .arg(client.undeleted.takenBytes()));
    say(QStringLiteral("given up early: %1").arg(client.givenUp));
    tellMoreObjects(course.early, course.late);
    return isHeld(course);
}

} // namespace

int main(int argc, char **argv)
{
    // Pieces that a thread keeps for itself, some hundred KiB of them, would count as given out.
    if (!qEnvironmentVariableIsSet("GLIBC_TUNABLES")) {
        qputenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0");
        execv("/proc/self/exe", argv);
    }
    ObjectCensus::start();
    int status = EXIT_FAILURE;
    // The day's work has the clock run fast from before the event loop is made; who asks for hours says so first.
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]).startsWith("--hours")) {
            FastClock::pace(SoakClient::workPace);
        }
    }
    const QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    try {
        if (run(readPlan(app))) {
            say(QStringLiteral("held"));
            status = EXIT_SUCCESS;
        }
    } catch (const SoakFailure &failure) {
        say(QStringLiteral("FAILED: ") + QString::fromStdString(failure.what()));
    }
    return status;
}
