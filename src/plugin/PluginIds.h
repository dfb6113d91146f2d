#pragma once

// The ids by which events name the host's plug-ins. They are compared as exact text: the mix of upper and lower case is
// part of the value.

#include <QString>

/// This plug-in: 38 characters, upper-case hexadecimal in braces.
const QString &voipPluginId();

/// The session plug-in: incoming-call prompt, call records, picker for conference members.
const QString &sessionPluginId();

/// The contact plug-in: who a jid is.
const QString &contactPluginId();

/// The vCard plug-in: cards of users that are not contacts.
const QString &vcardPluginId();

/// The message-box plug-in: takes away the prompt of a call.
const QString &msgBoxPluginId();

/// The signature-list plug-in: the card shown beside a head image.
const QString &signListPluginId();
