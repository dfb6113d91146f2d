#pragma once

#include <QString>
#include <QStringList>

/// What the user wants of a new conference. A value.
struct ConferenceWish
{
    QStringList uids;  ///< whom to call, without oneself
    QString text;      ///< handed through to the call process; nobody on the way reads it
    bool flag = false; ///< the same
};
