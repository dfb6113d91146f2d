#pragma once

/// How long a test waits for what another process or the screen owes it, in milliseconds: more than a machine needs
/// that is busy with other work. What comes sooner is taken at once, so only what never comes costs that much.
inline constexpr int cPatienceMs = 60000;
