#pragma once
// The addresses as the client's other plug-ins expect them, written out apart from the list that the getters come from.

#include "common/CUrlInfo.h"

#include <variant>
#include <vector>

enum class UrlForm
{
    Plain,
    Cached,
    Arg
};

struct ExpectedUrl
{
    const char *name;
    const char *key;
    const char *base;
    const char *path;
    UrlForm form;
    std::variant<QString (*)(), QString (*)(const QString &)> getter;

    QString defaultValue() const { return QString::fromLatin1(base) + path; }

    /// The getter's answer; `text` goes to one of the form Arg.
    QString ask(const QString &text = {}) const
    {
        return form == UrlForm::Arg ? std::get<1>(getter)(text) : std::get<0>(getter)();
    }
};

/// All of them, in no order that matters.
std::vector<ExpectedUrl> expectedUrls();

/// What each of them answers now, in the same order; those of the form Arg to "group 7".
QStringList everyAnswer();
