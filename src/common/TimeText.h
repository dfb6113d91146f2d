#pragma once
// Times as texts for the user's eye.
// Any thread; no state.

#include <QString>

class TimeText
{
public:
    /// `iSeconds` as "hh:mm:ss". Hours can run past 99; of a negative time each negative part keeps its sign behind a
    /// "0".
    static QString GetTimeString(qint64 iSeconds);
};
