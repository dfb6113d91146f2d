#pragma once

// Whether what windows leave transparent shows what lies below them. GUI thread; no state.

namespace Compositor {

/// True when a compositor manages the screen now, and where there is no X server to ask.
bool isRunning();

} // namespace Compositor
