#include "engine/LineCutter.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// Compares from the end: the lines of a read often begin alike.
bool endsWith(const QString &text, const QString &tail)
{
    return text.size() >= tail.size() && std::equal(tail.crbegin(), tail.crend(), text.crbegin());
}

/// All lines of a read with their line feeds, as if none removed another.
QStringList plainLines(const QString &text)
{
    QStringList lines;
    int start = 0;
    for (int end = text.indexOf(QLatin1Char('\n')); end >= 0; end = text.indexOf(QLatin1Char('\n'), start)) {
        lines.append(text.mid(start, end + 1 - start));
        start = end + 1;
    }
    return lines;
}

/// Whether `start`, which stands at the start of `line`, stands elsewhere in it as well.
bool occursAgain(const QString &line, QStringView start)
{
    for (int at = line.indexOf(start.front(), 1); at >= 0; at = line.indexOf(start.front(), at + 1)) {
        if (QStringView(line).mid(at).startsWith(start)) {
            return true;
        }
    }
    return false;
}

/// Whether it is plain that none of the lines is empty or ends with an earlier one: all begin alike, nowhere else does
/// this beginning stand, so that no line is the tail of a longer one, and all are different.
bool standApart(const QStringList &lines)
{
    constexpr int beginning = 4;
    if (lines.isEmpty() || lines.first().size() <= beginning) {
        return false;
    }
    const QStringView start = QStringView(lines.first()).left(beginning);
    std::vector<std::size_t> hashes;
    hashes.reserve(static_cast<std::size_t>(lines.size()));
    for (const QString &line : lines) {
        if (!line.startsWith(start) || occursAgain(line, start)) {
            return false;
        }
        const std::u16string_view text(QStringView(line).utf16(), static_cast<std::size_t>(line.size()));
        hashes.push_back(std::hash<std::u16string_view>()(text));
    }
    std::sort(hashes.begin(), hashes.end());
    return std::adjacent_find(hashes.cbegin(), hashes.cend()) == hashes.cend();
}

/// The rule, on lines: since a line ends with its line feed, it stands in the rest at the ends of lines only. What is
/// left of a line whose end is removed has no line feed any more and stands in front of the next line.
QStringList cutByTheRule(QStringList rest)
{
    QStringList delivered;
    while (!rest.isEmpty()) {
        const QString line = rest.takeFirst();
        QString front;
        auto kept = rest.begin();
        for (QString &next : rest) {
            if (endsWith(next, line)) {
                front += next.leftRef(next.size() - line.size());
                continue;
            }
            if (!front.isEmpty()) {
                next.prepend(std::exchange(front, QString()));
            }
            kept->swap(next);
            ++kept;
        }
        rest.erase(kept, rest.end());
        delivered.append(line);
    }
    return delivered;
}

} // namespace

QStringList cutLines(const QString &text)
{
    const QStringList lines = plainLines(text);
    return standApart(lines) ? lines : cutByTheRule(lines);
}
