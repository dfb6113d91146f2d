#include "engine/LineCutter.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <list>
#include <map>
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

/// A set of hashes, in a table of at least twice its size.
class HashSet
{
public:
    explicit HashSet(int count)
    {
        while ((std::size_t{1} << (64 - m_shift)) < 2 * static_cast<std::size_t>(count) + 1)
            --m_shift;
        m_places.resize(std::size_t{1} << (64 - m_shift));
    }
    bool contains(quint64 hash) const { return m_places[placeOf(hash)] == hash; }
    void insert(quint64 hash) { m_places[placeOf(hash)] = hash; }

private:
    /// Where the hash stands, or the empty place that waits for it.
    std::size_t placeOf(quint64 hash) const
    {
        auto place = static_cast<std::size_t>(hash >> m_shift);
        while (m_places[place] != 0 && m_places[place] != hash)
            place = (place + 1) & (m_places.size() - 1);
        return place;
    }

    int m_shift = 63;
    std::vector<quint64> m_places;
};

/// Whether no line is empty or ends with an earlier one, so that nothing is removed. One pass over the text: each
/// line's tails are hashed, and those as long as an earlier line are looked up. Equal hashes of different texts only
/// give a false "no".
bool standApart(const QStringList &lines)
{
    constexpr quint64 factor = 0x9E3779B97F4A7C15;
    HashSet earlier(lines.size());
    std::vector<char> lengths;
    for (const QString &line : lines) {
        const auto length = static_cast<std::size_t>(line.size()) - 1;
        if (lengths.size() <= length)
            lengths.resize(length + 1);
        quint64 hash = 1;
        const QChar *const end = line.constData() + length;
        for (std::size_t tail = 1; tail <= length; ++tail) {
            hash = (hash + (end - tail)->unicode()) * factor;
            if (lengths[tail] != 0 && earlier.contains(hash))
                return false;
        }
        if (length == 0)
            return false;
        earlier.insert(hash);
        lengths[length] = 1;
    }
    return true;
}

} // namespace

QStringList cutLines(const QString &text)
{
    const QStringList lines = plainLines(text);
    return standApart(lines) ? lines : LineCutter().cut(text);
}
