#pragma once

// The gallery's pages by name. GUI thread.

#include <QString>
#include <QVector>

class QWidget;

struct GalleryPage
{
    /// Names the page in the window, in the arguments and, in lower case, its picture.
    const char *name;

    /// Makes the page, which belongs to the caller or to `parent`.
    QWidget *(*create)(QWidget *parent);
};

namespace GalleryPages {

/// Every page, in the order of the window.
const QVector<GalleryPage> &all();

/// The page of that name, in any case of its letters; null for an unknown one.
const GalleryPage *find(const QString &strName);

/// The names of all pages, for a message.
QString names();

} // namespace GalleryPages
