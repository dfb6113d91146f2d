#pragma once

// What a trace must not keep. Any thread.

#include <QByteArray>

/// A line of the plug-in's without the secret that a user signs in with; half a line that may have one is not kept at
/// all.
QByteArray withoutSecret(const QByteArray &line);
