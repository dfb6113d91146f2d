#include "callprocess/RobotTable.h"

#include <algorithm>

const Robot *findRobot(const QString &id)
{
    const auto *row =
        std::find_if(cRobots.begin(), cRobots.end(), [&](const Robot &robot) { return id == QLatin1String(robot.id); });
    return row == cRobots.end() ? nullptr : row;
}
