#pragma once

// Whether what windows leave transparent shows what lies below them. GUI thread, while a QGuiApplication stands; no
// state.

namespace Compositor {

/// True when a compositor manages the application's X screen, as far as the event loop has heard of its coming and
/// going; true where windows do not live on an X server.
bool isRunning();

} // namespace Compositor
