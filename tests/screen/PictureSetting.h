#pragma once

// What a compared picture of the program's windows rests on, the same on every machine: style, palette, font, cursor,
// and the shipped files below the working directory, where the program looks for them. GUI thread.

#include <QString>
#include <QStringList>

class ContactFixture;

class PictureSetting
{
public:
    /// Sets all of it for the whole program. `files` are shipped files, by their paths below the folder of the
    /// resources; the icon font, the default head and the contacts' heads come in any case. The text tells what is
    /// missing, empty when all is there. What ships for dense screens comes with each.
    static QString prepare(const QStringList &files = {});

    /// Three contacts with heads, ann, bob and cat, and one with a name of a hundred characters, long.
    static void addContacts(ContactFixture &contacts);
};
