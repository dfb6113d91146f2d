#pragma once

#include <QString>

/// Entry points with the shape of a call library's direct callbacks. The local socket has taken their place and nothing
/// in the plug-in calls them; they are kept for a library that is linked in. Both create the call manager. GUI thread.

/// Acts on a notification as if it had come over the socket.
void voipCallback(int iCode, QString result);

/// Takes a tracking record of the call library; it is written to the debug log only.
void voipLogCallback(QString url, QString value);
