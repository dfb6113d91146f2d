#include "traffic/WireTrace.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr qint64 cMostAtOnce = Q_INT64_C(8) * 1024 * 1024;
constexpr qint64 cPieceSize = Q_INT64_C(256) * 1024;
constexpr int cLongestLine = 64 * 1024;

bool parseLine(const QString &strLine, WireLine *line)
{
    // "  123 < {...}": milliseconds, direction, text.
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,15}) ([<>=!]) "));
    const QRegularExpressionMatch match = form.match(strLine);
    if (!match.hasMatch()) {
        return false;
    }
    const QChar mark = match.captured(2).at(0);
    line->direction = mark == QLatin1Char('<')   ? WireLine::FromPlugin
                      : mark == QLatin1Char('>') ? WireLine::ToPlugin
                                                 : WireLine::Event;
    line->complaint = mark == QLatin1Char('!');
    line->time = match.captured(1).toLongLong();
    line->text = strLine.mid(match.capturedEnd());
    return true;
}

} // namespace

QList<WireLine> WireTrace::readNew()
{
    QList<WireLine> lines;
    QFile file(m_strFile);
    // A pipe's or a device's records are for whoever reads there, and to open a pipe waits for its writer.
    if (!QFileInfo(m_strFile).isFile() || !file.open(QIODevice::ReadOnly)) {
        return lines;
    }
    if (file.size() < m_iRead) {
        *this = WireTrace(m_strFile);
    }
    const qint64 end = qMin(file.size(), m_iRead + cMostAtOnce);
    file.seek(m_iRead);
    while (m_iRead < end) {
        const QByteArray bytes = file.read(qMin(cPieceSize, end - m_iRead));
        if (bytes.isEmpty()) {
            break;
        }
        m_iRead += bytes.size();
        take(bytes, &lines);
    }
    setTimes(&lines);
    return lines;
}

void WireTrace::take(const QByteArray &bytes, QList<WireLine> *lines)
{
    int begin = 0;
    while (begin < bytes.size()) {
        const int found = bytes.indexOf('\n', begin);
        const int end = found < 0 ? bytes.size() : found;
        m_rest += bytes.mid(begin, qMin(end - begin, cLongestLine - m_rest.size()));
        m_iRestLength += end - begin;
        if (found >= 0) {
            endLine(lines);
        }
        begin = end + 1;
    }
}

void WireTrace::endLine(QList<WireLine> *lines)
{
    WireLine line;
    if (parseLine(QString::fromUtf8(m_rest.constData(), m_rest.size()), &line)) {
        line.length = m_iRestLength;
        line.isCut = m_iRestLength > m_rest.size();
        lines->append(line);
    }
    m_rest.clear();
    m_iRestLength = 0;
}

void WireTrace::setTimes(QList<WireLine> *lines)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const QFileInfo info(m_strFile);
    const qint64 previousStart = m_iStart;
    int endOfPrevious = 0;
    int begin = 0;
    for (int i = 0; i < lines->size(); ++i) {
        // The count begins anew with each call process.
        if (lines->at(i).time < m_iLastTime) {
            endOfPrevious = begin == 0 ? i : endOfPrevious;
            begin = i;
            m_iStart = 0;
        }
        m_iLastTime = lines->at(i).time;
    }
    // The file's time of change is that of its last line, so the start can be reckoned back from it. The file system's
    // clock ticks coarsely and lags, so the latest start found this way is nearest to the truth.
    if (!lines->isEmpty() && info.size() == m_iRead && m_rest.isEmpty()) {
        m_iStart = qMax(m_iStart, qMin(now, info.lastModified().toMSecsSinceEpoch()) - m_iLastTime);
    }
    qint64 next = now;
    for (int i = lines->size() - 1; i >= 0; --i) {
        const qint64 known = i < endOfPrevious ? previousStart : 0;
        const qint64 start = i >= begin ? m_iStart : known;
        WireLine &line = (*lines)[i];
        line.time = start == 0 ? next : qMin(next, start + line.time);
        next = line.time;
    }
}
