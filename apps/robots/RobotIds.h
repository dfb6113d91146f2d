#pragma once

// The user ids of the robots, for the programs that call them or have them as contacts, and that of the user who calls.
// Rows of robots/Robots.def. Constants alone, without Qt; any thread.

#include <array>

namespace Robots {

#define ROBOT(word, id, name, reply, replyAfter, hangsUpAfter, then, thenAfter) inline constexpr const char *word = id;
#include "robots/Robots.def"
#undef ROBOT

/// All of them, in the order of the table.
inline constexpr std::array cIds{
#define ROBOT(word, id, name, reply, replyAfter, hangsUpAfter, then, thenAfter) word,
#include "robots/Robots.def"
#undef ROBOT
};

/// The user who has the robots as contacts; none of them.
inline constexpr const char *cOwnUser = "30010000";

} // namespace Robots
