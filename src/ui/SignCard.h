#pragma once

// When and where the lists ask the host for a person's signature card: after the cursor has rested on a head for a
// while, at the list's left edge beside that head. The host may destroy the list while it takes a request. No state;
// GUI thread only.

class QModelIndex;
class QPoint;
class QRect;
class QString;
class QTimer;
class QWidget;

/// How long the cursor rests on a head before its card comes, in milliseconds.
constexpr int cSignDelay = 500;

/// The jid that the card of the user in the cell `index` is asked for by.
QString signCardJid(const QModelIndex &index);

/// Where on the screen the card of a head belongs that stands at `head` in `view`.
QPoint signCardPlace(const QWidget &view, const QRect &head);

/// Asks for the card of `strJid` at `place`, then stops `delay`, a member of `view`, unless that is destroyed by then.
void showSignCard(const QWidget &view, QTimer &delay, const QString &strJid, const QPoint &place);

/// Stops `delay` and takes the card away. False when `view` is destroyed by then.
bool cancelSignCard(const QWidget &view, QTimer &delay);
