#pragma once

// Public entry points with the shape of a call library's direct callbacks. The local socket has taken their place and
// nothing in the plug-in calls them: deliberately kept for whoever else does. Both make sure that the call manager
// exists, and belong to the GUI thread.

#include <QString>

/// Acts on a notification as if it had come over the socket.
void voipCallback(int iCode, QString result);

/// Takes a tracking record; it is written to the debug log only.
void voipLogCallback(QString url, QString value);
