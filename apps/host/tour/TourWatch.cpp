#include "tour/TourWatch.h"

#include "screen/WindowProbe.h"
#include "session/HostSession.h"

#include "wire/Commands.h"
#include "wire/Notifications.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

namespace {

void sayFrom(const QString &strWho, const QString &strWhat)
{
    TourWatch::say(QStringLiteral("        %1 %2").arg(strWho, -19).arg(strWhat));
}

bool isCommand(const WireLine &line, const QString &strType, const QString &strPart)
{
    return line.direction == WireLine::FromPlugin &&
           line.text.contains(QStringLiteral("\"%1\":\"%2\"").arg(QLatin1String(Wire::cKeyMessageType), strType)) &&
           line.text.contains(strPart);
}

} // namespace

TourWatch::TourWatch(HostSession &session, const QString &strTraceFile) : m_trace(strTraceFile)
{
    connect(&session, &HostSession::eventPassed, this, &TourWatch::noteEvent);
    connect(&session.mailbox(), &HostMailbox::callFinished, this,
            [this](const CallRecord &record) { m_records.append(record); });
}

void TourWatch::say(const QString &strLine)
{
    const QByteArray bytes = strLine.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

void TourWatch::mark()
{
    look();
    m_lines.clear();
    m_events.clear();
    m_records.clear();
}

void TourWatch::look()
{
    const QList<WireLine> lines = m_trace.readNew();
    for (const WireLine &line : lines) {
        m_lines.append(line);
        sayFrom(line.direction == WireLine::FromPlugin ? QStringLiteral("plug-in -> VoipSDK")
                : line.direction == WireLine::ToPlugin ? QStringLiteral("VoipSDK -> plug-in")
                                                       : QStringLiteral("VoipSDK"),
                line.text);
    }
    const QString window = WindowProbe::callWindowWords();
    if (window != m_strWindow) {
        m_strWindow = window;
        sayFrom(QStringLiteral("call window"), window);
    }
}

void TourWatch::noteEvent(bool bFromPlugin, int iMsgId, const QString &strWords, const QString &strAnswer)
{
    const QString words = strAnswer.isEmpty() ? strWords : strWords + QStringLiteral(" => ") + strAnswer;
    m_events.append({bFromPlugin, iMsgId, words});
    sayFrom(bFromPlugin ? QStringLiteral("plug-in -> host") : QStringLiteral("host -> plug-in"), words);
}

bool TourWatch::commanded(const QString &strType, const QString &strPart) const
{
    return commandCount(strType, strPart) > 0;
}

int TourWatch::commandCount(const QString &strType, const QString &strPart) const
{
    return int(std::count_if(m_lines.begin(), m_lines.end(),
                             [&](const WireLine &line) { return isCommand(line, strType, strPart); }));
}

int TourWatch::firstCommand(const QString &strType) const
{
    for (int i = 0; i < m_lines.size(); ++i) {
        if (isCommand(m_lines.at(i), strType, QString())) {
            return i;
        }
    }
    return -1;
}

bool TourWatch::commandedInOrder(const QString &strFirst, const QString &strSecond) const
{
    const int first = firstCommand(strFirst);
    return first >= 0 && first < firstCommand(strSecond);
}

bool TourWatch::quitLine() const
{
    return std::any_of(m_lines.begin(), m_lines.end(), [](const WireLine &line) {
        return line.direction == WireLine::FromPlugin && line.text == QLatin1String(Wire::cQuitLine);
    });
}

bool TourWatch::notified(int iCode) const
{
    const QRegularExpression code(
        QStringLiteral("\"%1\":\\s*%2\\b").arg(QLatin1String(Wire::cKeyResultCode)).arg(iCode));
    return std::any_of(m_lines.begin(), m_lines.end(), [&](const WireLine &line) {
        return line.direction == WireLine::ToPlugin && line.text.contains(code);
    });
}

bool TourWatch::happened(const QString &strPart) const
{
    return std::any_of(m_lines.begin(), m_lines.end(), [&](const WireLine &line) {
        return line.direction == WireLine::Event && line.text.contains(strPart);
    });
}

bool TourWatch::passed(bool bFromPlugin, int iMsgId, const QString &strPart) const
{
    return std::any_of(m_events.begin(), m_events.end(), [&](const PassedEvent &event) {
        return event.fromPlugin == bFromPlugin && event.msgId == iMsgId && event.words.contains(strPart);
    });
}

bool TourWatch::told(int iMsgId, const QString &strPart) const
{
    return passed(true, iMsgId, strPart);
}

bool TourWatch::asked(int iMsgId, const QString &strPart) const
{
    return passed(false, iMsgId, strPart);
}

bool TourWatch::recorded(int iResult, bool bCaller, bool bConnected) const
{
    return std::any_of(m_records.begin(), m_records.end(), [&](const CallRecord &record) {
        return record.result == iResult && record.caller == bCaller && record.connected == bConnected;
    });
}
