#pragma once

// The plug-in's commands, said in its place: an expectation of a scenario turned into the line that meets it. Values
// only.

#include "callprocess/Scenario.h"

#include <QByteArray>
#include <QString>

/// Who speaks where the scenario leaves it open.
struct PluginUser
{
    QString id;
    QString nickName;
    QString registration;
};

/// The line, with its line feed, that the plug-in writes to meet the Expect or Await: the parameters that the scenario
/// names as it has them, and for each of the others what such a command usually has. A user id that an earlier
/// RegeditUser named is the caller's business to put into `user`.
QByteArray pluginLine(const Statement &statement, const PluginUser &user);

/// A command in the plug-in's own writing: compact, keys sorted, everything but ASCII escaped; with its line feed.
QByteArray commandLine(const QString &name, const QJsonArray &parameters);
