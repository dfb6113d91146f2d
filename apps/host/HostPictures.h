#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

/// The demo's own drawings, made by code at the screen's resolution. GUI thread.
namespace HostPictures {

/// A round head picture of `iSize` pixels with the first character of `strName`, in a colour that follows from
/// `strUid`; with a presence dot, green or grey.
QPixmap head(const QString &strName, const QString &strUid, int iSize, bool bOnline);

/// A telephone handset.
QIcon call();

/// A video camera.
QIcon video();

} // namespace HostPictures
