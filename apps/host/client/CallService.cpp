#include "client/CallService.h"

#include "client/CallProcess.h"
#include "traffic/TraceFolder.h"
#include "traffic/WireWords.h"

#include "common/CLogManger.h"
#include "wire/Commands.h"
#include "wire/Notifications.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <iterator>
#include <utility>

namespace {

constexpr int cLookEveryMs = 250;
// The plug-in's own start: it tries once, and again after a second.
constexpr int cGraceMs = 5000;
// How long a registration may go without an answer.
constexpr int cAnswerMs = 5000;
// After each pause a try. The first comes at once, so that the plug-in, which looks after one second, finds it.
constexpr int cPausesMs[] = {0, 2000, 4000, 8000, 16000, 30000, 60000};
constexpr int cLastWaitMs = 5000;
constexpr int cSteadyMs = 60000;

void log(const QString &strWords)
{
    CLogManger::instance()->printLog(CustomLog::Warn, LOG_LOCATION, strWords);
}

CallChannel::Trace ownTrace()
{
    const QString file = TraceFolder::file();
    return {file.isEmpty() ? CallChannel::Trace::None : CallChannel::Trace::File, file};
}

bool isCommand(const QJsonObject &line, Wire::Command command)
{
    return line.value(QLatin1String(Wire::cKeyMessageType)).toString() == QLatin1String(Wire::nameOf(command));
}

} // namespace

CallService::CallService(QObject *parent)
    : QObject(parent), m_pauses(std::begin(cPausesMs), std::end(cPausesMs)), m_place(ownTrace())
{
    m_timer.setInterval(cLookEveryMs);
    connect(&m_timer, &QTimer::timeout, this, &CallService::look);
}

int CallService::secondsToNext() const
{
    if (m_state != Lost || m_iAttempt == 0 || m_iAttempt >= attempts()) {
        return 0;
    }
    const qint64 left = m_pauses.at(std::size_t(m_iAttempt)) - m_sinceTry.elapsed();
    return int(qMax<qint64>(0, left + 999) / 1000);
}

void CallService::setWanted(bool bWanted)
{
    m_bWanted = bWanted;
    m_iAttempt = 0;
    m_sinceTry.invalidate();
    m_sinceConnected.invalidate();
    m_iPeer = 0;
    if (bWanted) {
        m_sinceWanted.start();
        m_timer.start();
    } else {
        m_timer.stop();
    }
    setState(bWanted ? Coming : Off);
}

void CallService::startNow()
{
    if (m_state == Lost || m_state == GivenUp) {
        m_iAttempt = 0;
        m_sinceTry.invalidate();
        setState(Lost);
        look();
    }
}

void CallService::look()
{
    if (!m_bWanted) {
        return;
    }
    takePeer();
    readTrace();
    setState(m_iPeer != 0 ? connectedState() : lonelyState());
}

void CallService::end(bool bTold)
{
    m_bWanted = false;
    m_timer.stop();
    if (!bTold) {
        CallProcess(QFile::decodeName(qgetenv(TraceFolder::cVariable))).terminate();
    }
}

void CallService::setState(State state)
{
    const State before = std::exchange(m_state, state);
    const int seconds = std::exchange(m_iSeconds, secondsToNext());
    if (before != state && state == Lost) {
        log(QStringLiteral("call service lost"));
    } else if (before != state && state == GivenUp) {
        log(QStringLiteral("call service given up after %1 tries").arg(m_iAttempt));
    } else if (before != state && state == Ready) {
        m_sinceReady.start();
    }
    if (before != state || seconds != m_iSeconds) {
        emit changed();
    }
}

void CallService::takePeer()
{
    const qint64 peer = CallChannel::peer();
    if (m_iPeer == peer) {
        return;
    }
    if (peer == 0) {
        // What it has said to its last comes before its end. Lines of a new one count only from here on.
        readTrace();
    }
    const qint64 before = std::exchange(m_iPeer, peer);
    m_bFlag = false;
    m_bTraced = false;
    if (before != 0) {
        emit lost();
    }
    if (peer != 0) {
        m_sinceConnected.start();
        m_place = CallChannel::traceOf(peer);
        emit changed();
    }
}

void CallService::readTrace()
{
    if (m_pTrace == nullptr || m_pTrace->file() != m_place.file) {
        m_pTrace = std::make_unique<WireTrace>(m_place.file);
    }
    if (m_place.file.isEmpty()) {
        return;
    }
    const QList<WireLine> lines = m_pTrace->readNew();
    for (const WireLine &line : lines) {
        const QStringList parts = WireWords::split(line.text);
        for (const QString &part : parts) {
            heed(line.direction, part);
        }
    }
}

void CallService::heed(WireLine::Direction direction, const QString &strText)
{
    if (direction == WireLine::Event) {
        // The connection before tells nothing of this one.
        const bool begins = strText == QLatin1String("connected");
        m_bFlag = m_bFlag && !begins;
        m_bTraced = m_bTraced && !begins;
        return;
    }
    const QJsonObject line = QJsonDocument::fromJson(strText.toUtf8()).object();
    const int code = line.value(QLatin1String(Wire::cKeyResultCode)).toInt(-1);
    if (direction == WireLine::FromPlugin) {
        const bool registers = isCommand(line, Wire::Command::RegeditUser);
        m_bTraced = m_bTraced || registers;
        m_bFlag = m_bFlag && !registers && !isCommand(line, Wire::Command::UnReg);
    } else if (code == int(Wire::Code::SdkFlag)) {
        m_bFlag = line.value(QLatin1String(Wire::cKeyContent)).toString() == QLatin1String("true");
    } else if (code == int(Wire::Code::CallConnected)) {
        emit callConnected();
    }
}

CallService::State CallService::connectedState()
{
    if (m_state == Ready && m_iAttempt > 0 && m_sinceReady.hasExpired(cSteadyMs)) {
        m_iAttempt = 0;
        m_sinceTry.invalidate();
    }
    const bool late = m_sinceConnected.hasExpired(cAnswerMs);
    // Without a trace the connection is all that can be known.
    const bool silent = m_place.kind != CallChannel::Trace::File || !QFile::exists(m_place.file);
    if (m_bFlag || silent || (!m_bTraced && late)) {
        return Ready;
    }
    if (late) {
        return Unregistered;
    }
    return m_state == Off || m_state == Coming ? Coming : Returning;
}

CallService::State CallService::lonelyState()
{
    const bool isFresh = !m_sinceConnected.isValid() && m_iAttempt == 0 && !m_sinceWanted.hasExpired(cGraceMs);
    if (CallChannel::isListening()) {
        return isFresh ? Coming : Returning;
    }
    return isFresh ? Coming : tryAgain();
}

CallService::State CallService::tryAgain()
{
    if (m_state == GivenUp) {
        return GivenUp;
    }
    if (m_iAttempt >= attempts()) {
        return m_sinceTry.hasExpired(cLastWaitMs) ? GivenUp : Lost;
    }
    if (!m_sinceTry.isValid() || m_sinceTry.hasExpired(m_pauses.at(std::size_t(m_iAttempt)))) {
        ++m_iAttempt;
        m_sinceTry.start();
        m_bMissing = !CallProcess(QString()).start();
        log(QStringLiteral("call process started again, try %1 of %2").arg(m_iAttempt).arg(attempts()));
        emit changed();
    }
    return Lost;
}
