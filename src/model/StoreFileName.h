#pragma once

// Constants alone; any thread.

/// The name of the signed-in user's store, in the user's folder.
inline constexpr const char *cStoreFileName = "localData.db";
