#pragma once

/// Makes the host's commands known to the mailbox, which stands below the engine and cannot name them. Before the first
/// event is delivered; again does no harm. Creates nothing. GUI thread only.
void enterHostCommands();
