#pragma once

// Comparisons of texts: versions, members of joined lists, and the key that sorts names.
// Any thread; no state.

#include <QString>

class TextCompare
{
public:
    /// Whether version `strA` is older than `strB`: their parts between "." are compared as numbers, as many as both
    /// have; one that is no number counts 0. A version that only lacks the other's last parts is not older.
    static bool compareVersion(const QString &strA, const QString &strB);

    /// Whether `strTarget` is one of the parts of `strText` between separators. Both lose the blanks around them, the
    /// parts keep theirs; false if either is empty then.
    static bool combareString(const QString &strText, const QString &strSeparator, const QString &strTarget);

    /// A key that orders by plain comparison: punctuation, digits, then letters, each small one directly before its
    /// capital; what is not ASCII comes last and stays as it is.
    static QString getSortText(const QString &strText);
};
