#pragma once

/// The client starts a call process detached but with its own streams. Whoever reads those to their end must not have
/// to wait for that process too: standard input and output, and unless it is to be kept standard error, lead nowhere
/// afterwards. Main thread, once.
void letGoOfStreams(bool keepStandardError);
