#pragma once

#include "client/ContactBook.h"
#include "client/Presence.h"

#include <QIcon>
#include <QPixmap>
#include <QString>

/// The demo's own drawings, made by code at the screen's resolution. GUI thread.
namespace HostPictures {

/// A round head picture of `iSize` pixels with a presence dot, if that is known: the picture of the file `strPhoto`,
/// or, where that is empty, the default head's or no picture, the first character of `strName` in a colour that follows
/// from `strUid`.
QPixmap head(const QString &strName, const QString &strUid, int iSize, Presence presence, const QString &strPhoto);

/// The head of somebody in a list; of a stranger nothing is known yet.
QPixmap head(const ContactBook::Entry &entry, int iSize);

/// The file of the picture that stands for the programs in the desktop's lists of windows.
QString windowIcon();

/// A telephone handset.
QIcon call(const QColor &colour);

/// A video camera.
QIcon video(const QColor &colour);

/// A filled circle of `iSize` pixels.
QIcon swatch(const QColor &colour, int iSize);

} // namespace HostPictures
