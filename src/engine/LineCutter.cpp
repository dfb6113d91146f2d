#include "engine/LineCutter.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <limits>
#include <list>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// Orders texts by their last character, then the one before, and so on: a text stands before all that end with it.
struct ByTail
{
    bool operator()(const QString &left, const QString &right) const
    {
        return std::lexicographical_compare(left.crbegin(), left.crend(), right.crbegin(), right.crend());
    }
};

int commonTail(const QString &left, const QString &right)
{
    const auto ends = std::mismatch(left.crbegin(), left.crend(), right.crbegin(), right.crend());
    return static_cast<int>(std::distance(left.crbegin(), ends.first));
}

/// What stands in front of a line because the line before it lost its line feed: visible to removals after `round`.
struct Front
{
    int round;
    QString text;
};

using Fronts = std::list<Front>;

/// `own` with everything from `begin` to `end` in front of it; what came later stands further in front.
QString withFronts(Fronts::const_iterator begin, Fronts::const_iterator end, const QString &own)
{
    QString whole;
    while (end != begin)
        whole += (--end)->text;
    return whole + own;
}

/// One removal that hits a line: its round, and how many characters it takes off the line's end.
struct Cut
{
    static constexpr int never = std::numeric_limits<int>::max();
    int round = never;
    int length = 0;
};

class LineCutter
{
public:
    QStringList cut(const QString &text);

private:
    bool deliver(const QString &own);
    void earliestCut(const QString &content, int visibleAfter, int longerThan, Cut &best) const;
    Cut cutOf(const QString &own) const;
    void glueToNext(const QString &own, const Cut &cut);

    QStringList m_delivered;
    /// The delivered lines without their line feed, and the rounds in which each was taken.
    std::map<QString, std::vector<int>, ByTail> m_rounds;
    /// In front of the next line, in the order in which they came there.
    Fronts m_fronts;
};

QStringList LineCutter::cut(const QString &text)
{
    int start = 0;
    for (int end = text.indexOf(QLatin1Char('\n')); end >= 0; end = text.indexOf(QLatin1Char('\n'), start)) {
        if (!deliver(text.mid(start, end - start)))
            break;
        start = end + 1;
    }
    return m_delivered;
}

/// Takes the next line of the read. False when an empty line has ended the work.
bool LineCutter::deliver(const QString &own)
{
    const Cut cut = cutOf(own);
    if (cut.round != Cut::never) {
        glueToNext(own, cut);
        return true;
    }
    const QString line = withFronts(m_fronts.cbegin(), m_fronts.cend(), own);
    m_fronts.clear();
    m_delivered.append(line + QLatin1Char('\n'));
    m_rounds[line].push_back(m_delivered.size());
    return !line.isEmpty();
}

/// Looks through the delivered lines that `content` ends with, longest first, and keeps in `best` the earliest round
/// after `visibleAfter`. Lines of at most `longerThan` characters do not count.
void LineCutter::earliestCut(const QString &content, int visibleAfter, int longerThan, Cut &best) const
{
    QString tail = content;
    while (tail.size() > longerThan) {
        auto row = m_rounds.upper_bound(tail);
        if (row == m_rounds.cbegin())
            return;
        --row;
        const int common = commonTail(row->first, tail);
        if (common < row->first.size()) {
            tail = tail.right(common);
            continue;
        }
        if (common <= longerThan)
            return;
        const auto round = std::upper_bound(row->second.cbegin(), row->second.cend(), visibleAfter);
        if (round != row->second.cend() && *round < best.round)
            best = {*round, common};
        tail = tail.right(common - 1);
    }
}

/// The first removal that hits the line `own` with what has come to stand in front of it by then.
Cut LineCutter::cutOf(const QString &own) const
{
    Cut best;
    earliestCut(own, 0, 0, best);
    QString content = own;
    for (const Front &front : m_fronts) {
        if (best.round <= front.round + 1)
            break;
        const auto longer = m_rounds.upper_bound(content);
        if (longer == m_rounds.cend() || !longer->first.endsWith(content))
            break;
        const int reached = content.size();
        content.prepend(front.text);
        earliestCut(content, front.round, reached, best);
    }
    return best;
}

/// The removal takes the line's end and its line feed: what is left, and what comes to stand before it later, goes to
/// the front of the next line.
void LineCutter::glueToNext(const QString &own, const Cut &cut)
{
    const auto later = std::find_if(m_fronts.cbegin(), m_fronts.cend(),
                                    [&cut](const Front &front) { return front.round >= cut.round; });
    QString rest = withFronts(m_fronts.cbegin(), later, own);
    rest.chop(cut.length);
    m_fronts.erase(m_fronts.cbegin(), later);
    if (!rest.isEmpty())
        m_fronts.push_front({cut.round, rest});
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

/// Hashes of texts, in a table of at least twice their number.
class HashSet
{
public:
    explicit HashSet(int count)
    {
        while (m_table.size() < 2 * static_cast<std::size_t>(count) + 1)
            m_table.resize(2 * m_table.size());
    }

    /// False when the hash is there already, or is the one that marks empty places.
    bool insert(std::size_t hash)
    {
        std::size_t place = hash & (m_table.size() - 1);
        while (m_table[place] != 0 && m_table[place] != hash)
            place = (place + 1) & (m_table.size() - 1);
        return std::exchange(m_table[place], hash) != hash;
    }

private:
    std::vector<std::size_t> m_table = std::vector<std::size_t>(2);
};

/// Whether `start`, which stands at the start of `line`, stands elsewhere in it as well.
bool occursAgain(const QString &line, QStringView start)
{
    for (int at = line.indexOf(start.front(), 1); at >= 0; at = line.indexOf(start.front(), at + 1)) {
        if (QStringView(line).mid(at).startsWith(start))
            return true;
    }
    return false;
}

/// Whether it is plain that none of the lines is empty or ends with an earlier one: all begin alike, nowhere else does
/// this beginning stand, so that no line is the tail of a longer one, and all are different.
bool standApart(const QStringList &lines)
{
    constexpr int beginning = 4;
    if (lines.isEmpty() || lines.first().size() <= beginning)
        return false;
    const QStringView start = QStringView(lines.first()).left(beginning);
    HashSet hashes(lines.size());
    return std::all_of(lines.cbegin(), lines.cend(), [&](const QString &line) {
        const std::u16string_view text(QStringView(line).utf16(), static_cast<std::size_t>(line.size()));
        return line.startsWith(start) && !occursAgain(line, start) &&
               hashes.insert(std::hash<std::u16string_view>()(text));
    });
}

} // namespace

QStringList cutLines(const QString &text)
{
    const QStringList lines = plainLines(text);
    return standApart(lines) ? lines : LineCutter().cut(text);
}
