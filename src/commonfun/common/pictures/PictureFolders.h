#pragma once

// The folders in which the client keeps pictures of its own: heads, watermarks and icons of file types. Every call
// computes its path anew from the user's settings; nothing is created on the disk. GUI thread.

#include <QString>

namespace PictureFolders {

/// The folder of the head images, ending with one slash: "designHeadImage" in the user's folder when the settings name
/// one that exists, else in the user's folder below the documents folder.
QString headImages();

/// The folder of the watermarks, absolute, ending with one slash: "waterMark" in the user's folder, which need not
/// exist; without one in the settings it is that below the documents folder.
QString waterMarks();

/// The folder of the icons of file types, absolute, ending with one slash.
QString icons();

/// The same for the cloud's file lists.
QString cloudIcons();

} // namespace PictureFolders
