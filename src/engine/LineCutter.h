#pragma once

// How one read of the channel is cut into lines. No state; any thread.
//
// The rule, deliberate in all its limits: take the text up to and including the first line feed as a line; remove every
// occurrence of exactly that line from the text, wherever it stands; repeat while a line feed is left; drop the rest.
// So identical lines of one read are delivered once; a line that is the tail of a later one is cut off there too
// ("a\nba\nc\n" gives "a" and "bc"); and an empty line takes all line feeds with it and loses the rest of the read.
//
// The work grows with the text, not with the square of its lines: a line is not searched for in what follows. Where it
// is plain that no line ends with an earlier one, as in nearly all reads, the lines stand as they came; else each later
// line asks once which of the delivered lines has cut it first.

#include <QString>
#include <QStringList>

/// The lines that `text`, one read, delivers, each with its line feed; none when it holds no line feed.
QStringList cutLines(const QString &text);
