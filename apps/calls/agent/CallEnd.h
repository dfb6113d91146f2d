#pragma once

// How a call ended, as SIP tells it. Values only.

#include <QString>

struct CallEnd
{
    int status = 0;         ///< of SIP, 0 where there was none: 486, 603, ...
    bool mediaLost = false; ///< nothing was heard of the far end for too long
    QString why;            ///< for an operator, may be empty
};
