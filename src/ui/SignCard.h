#pragma once

// When and where the lists ask the host for a person's signature card: after the cursor has rested on a head for a
// while, at the list's left edge beside that head. Pure functions; GUI thread only.

#include <QPoint>

class QRect;
class QWidget;

/// How long the cursor rests on a head before its card comes, in milliseconds.
constexpr int cSignDelay = 500;

/// Where on the screen the card of a head belongs that stands at `head` in `view`.
QPoint signCardPlace(const QWidget &view, const QRect &head);
