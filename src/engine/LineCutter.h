#pragma once

// How one read of the channel is cut into lines. No state; any thread.
//
// The rule, deliberate in all its limits: take the text up to and including the first line feed as a line; remove every
// occurrence of exactly that line from the text, wherever it stands; repeat while a line feed is left; drop the rest.
// So identical lines of one read are delivered once; a line that is the tail of a later one is cut off there too
// ("a\nba\nc\n" gives "a" and "bc"); and an empty line takes all line feeds with it and loses the rest of the read.
//
// Nearly all reads are lines that plainly stand apart from each other; they stand as they came. In any other read each
// line is looked for at the ends of all later ones, which takes time with the square of the number of lines.

#include <QString>
#include <QStringList>

/// The lines that `text`, one read, delivers, each with its line feed; none when it holds no line feed.
QStringList cutLines(const QString &text);
