#pragma once

// Where the client's folders and its common INI files lie. All paths use the forward slash.
// Every call computes its path anew from the system's settings; nothing is created on the disk.
// Any thread; no state.

#include <QString>

/// The user's documents folder.
QString strSYSTEM_DOCUMENTS_LOCATION();

/// The folder of the client's INI files: "KelvarIm" in the documents folder.
QString strAPP_DOCUMENT_IM_PATH();

/// The folder of the per-user folders: "KelvarImFiles" in the documents folder.
QString strAPP_DOCUMENT_IM_FILES_PATH();

/// The INI file with the version and the window title.
QString strAPP_VERSION_FILE_PATH();

/// The INI file with the settings that all users of this computer share.
QString strAPP_INFO_FILE_PATH();
