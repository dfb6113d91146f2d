#include "WireTrace.h"

#include <QFile>
#include <QRegularExpression>

namespace {

bool parseLine(const QString &strLine, WireLine *line)
{
    // "  123 < {...}": milliseconds, direction, text.
    static const QRegularExpression form(QStringLiteral("^\\s*\\d+ ([<>=!]) (.*)$"));
    const QRegularExpressionMatch match = form.match(strLine);
    if (!match.hasMatch()) {
        return false;
    }
    const QChar mark = match.captured(1).at(0);
    line->direction = mark == QLatin1Char('<')   ? WireLine::FromPlugin
                      : mark == QLatin1Char('>') ? WireLine::ToPlugin
                                                 : WireLine::Event;
    line->text = match.captured(2);
    return true;
}

} // namespace

QList<WireLine> WireTrace::readNew()
{
    QList<WireLine> lines;
    QFile file(m_strFile);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(m_iRead)) {
        return lines;
    }
    const QByteArray bytes = file.readAll();
    m_iRead += bytes.size();
    m_rest += bytes;
    int begin = 0;
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n', begin)) {
        WireLine line;
        if (parseLine(QString::fromUtf8(m_rest.mid(begin, end - begin)), &line)) {
            lines.append(line);
        }
        begin = end + 1;
    }
    m_rest.remove(0, begin);
    return lines;
}
