#include "happenings/HappeningsFeed.h"

#include "session/HostSession.h"
#include "traffic/EventWords.h"
#include "traffic/WireWords.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace {

constexpr int cLookEveryMs = 100;

Happening::Way wayOf(WireLine::Direction direction)
{
    switch (direction) {
    case WireLine::FromPlugin:
        return Happening::PluginToProcess;
    case WireLine::ToPlugin:
        return Happening::ProcessToPlugin;
    default:
        return Happening::InProcess;
    }
}

} // namespace

HappeningsFeed::HappeningsFeed(HostSession &session, const QString &strTraceFile, HappeningsModel &model,
                               QObject *parent)
    : QObject(parent), m_model(model), m_trace(strTraceFile)
{
    connect(&session, &HostSession::eventPassed, this, &HappeningsFeed::noteEvent);
    connect(&m_timer, &QTimer::timeout, this, &HappeningsFeed::look);
    m_timer.start(cLookEveryMs);
}

void HappeningsFeed::follow(const QString &strTraceFile)
{
    if (m_trace.file() != strTraceFile) {
        look();
        m_trace = WireTrace(strTraceFile);
    }
}

void HappeningsFeed::setPaused(bool bPaused)
{
    m_bPaused = bPaused;
    look();
}

void HappeningsFeed::clear()
{
    m_waiting.clear();
}

void HappeningsFeed::look()
{
    if (!m_trace.file().isEmpty()) {
        const QList<WireLine> lines = m_trace.readNew();
        for (const WireLine &line : lines) {
            noteLine(line);
        }
    }
    const bool news = std::exchange(m_bNews, false);
    if (m_waiting.empty() || (m_bPaused && !news)) {
        return;
    }
    if (m_bPaused) {
        emit taken();
        return;
    }
    std::deque<Happening> batch;
    batch.swap(m_waiting);
    std::stable_sort(batch.begin(), batch.end(),
                     [](const Happening &one, const Happening &other) { return one.time < other.time; });
    // The times of lines are estimates: none stands before what is shown already.
    for (Happening &row : batch) {
        m_iLastTime = row.time = qMax(row.time, m_iLastTime);
    }
    emit aboutToTake();
    m_model.append(std::move(batch));
    emit taken();
}

void HappeningsFeed::noteEvent(bool bFromPlugin, int iMsgId, const QString &strWords, const QString &strAnswer,
                               const QByteArray &payload, const QByteArray &reply)
{
    const auto msgId = EMsgId(iMsgId);
    Happening happening;
    happening.time = QDateTime::currentMSecsSinceEpoch();
    happening.kind = EventWords::isKnown(msgId) ? Happening::Event : Happening::Error;
    happening.way = bFromPlugin ? Happening::PluginToClient : Happening::ClientToPlugin;
    happening.sentence = EventWords::say(msgId, payload, reply);
    happening.raw = strAnswer.isEmpty() ? strWords : strWords + QStringLiteral(" => ") + strAnswer;
    happening.raw = ShownText::plain(m_mask.masked(happening.raw), HappeningsModel::cLongestRaw);
    add(std::move(happening));
}

void HappeningsFeed::noteLine(const WireLine &line)
{
    const QStringList parts = WireWords::split(line.text);
    for (const QString &part : parts) {
        m_mask.learn(WireWords::secretOf(part));
        WireLine one = line;
        one.text = part;
        const WireWords::Said said = WireWords::say(one, m_mask);
        const QString masked = m_mask.masked(part);
        Happening happening;
        happening.time = line.time;
        happening.kind = said.bad ? Happening::Error : Happening::Wire;
        happening.way = wayOf(line.direction);
        happening.sentence = said.sentence;
        happening.raw =
            ShownText::plain(masked, HappeningsModel::cLongestRaw, line.isCut ? line.length : masked.size());
        add(std::move(happening));
    }
}

void HappeningsFeed::add(Happening happening)
{
    m_bNews = true;
    m_waiting.push_back(std::move(happening));
    if (m_waiting.size() > HappeningsModel::cCapacity) {
        m_waiting.pop_front();
        m_model.countDropped(1);
    }
}
