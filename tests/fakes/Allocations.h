#pragma once

// How many memory blocks something asks for: what work costs, counted and not timed. In a program that links this file.

#include <functional>

namespace Allocations {

/// The blocks that this thread asks for while `work` runs, whoever's code it is, enlarged ones included.
int during(const std::function<void()> &work);

} // namespace Allocations
