#pragma once

// The addresses as docs/server-addresses.md tells them to those who run the client, apart from the list that the
// getters come from.

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
    QByteArray name;
    QString key;
    QString defaultValue;
    UrlForm form;
    std::variant<QString (*)(), QString (*)(const QString &)> getter;

    /// The getter's answer; `text` goes to one of the form Arg.
    QString ask(const QString &text = {}) const
    {
        return form == UrlForm::Arg ? std::get<1>(getter)(text) : std::get<0>(getter)();
    }
};

/// All of them, in the document's order. A row that cannot be understood ends the test.
const std::vector<ExpectedUrl> &expectedUrls();

/// What each of them answers now, in the same order; those of the form Arg to "group 7".
QStringList everyAnswer();
