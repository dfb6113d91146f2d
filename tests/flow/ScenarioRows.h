#pragma once

#include "flow/ScenarioRun.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <functional>

/// Something that is done or waited for; false when it cannot be done or does not come.
struct Step
{
    QString name;
    std::function<bool(ScenarioRun &)> run;
};

/// One scenario and what comes of it.
struct Row
{
    QString scenario;
    QString story; ///< what happens, beyond what the scenario's name says
    QList<Step> steps;
    QStringList wire;   ///< the commands, as CallTrace shows them, between the registration and the line "quit"
    QStringList events; ///< the host events of the call's course, as EngineFixture shows them
    int exitCode = 0;
};

/// What user and host do while the ready scenarios are played; a scenario may have more rows than one.
QList<Row> scenarioRows();

/// A call that the host places to `uid`, up and shown in its window.
Step call(const QString &uid);

/// The user presses a button of the call window.
Step press(const char *button);

/// The call is up on both sides.
Step untilConnected();

/// The call is over on this side: nothing of it is left.
Step untilIdle();

Q_DECLARE_METATYPE(Step)
Q_DECLARE_METATYPE(Row)
