#include "callprocess/RobotTable.h"

#include <algorithm>

const Robot *findRobot(const QString &id)
{
    const auto *row =
        std::find_if(ROBOTS.begin(), ROBOTS.end(), [&](const Robot &robot) { return id == QLatin1String(robot.id); });
    return row == ROBOTS.end() ? nullptr : row;
}
