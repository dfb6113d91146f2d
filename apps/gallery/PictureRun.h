#pragma once

// Writes the gallery's pages and the modes of the message dialog as PNG files, without a window on the screen. GUI
// thread.

#include <QString>
#include <QStringList>

struct GalleryPage;

namespace PictureRun {

/// Writes the picture of `page`, or of all pages and dialog modes when it is null, to `strFolder`, which is made when
/// it is missing. The files are named after page or mode: "widgets.png", "dialog-question.png". False, with a text in
/// `strError`, when a file cannot be written.
bool write(const QString &strFolder, const GalleryPage *page, QString *strError);

/// The names of the files that a run of all pages writes. For tests.
QStringList files();

} // namespace PictureRun
