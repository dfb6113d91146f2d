#pragma once

// A window's picture beside the committed one of that name. GUI thread; no state.
// With VOIP_REMAKE_PICTURES set in the environment the committed picture is written anew instead of compared.

#include <QImage>
#include <QString>

class QWidget;

class ComparedPicture
{
public:
    /// What `pWindow` paints now, on a plain backdrop that shows where the window is transparent.
    static QImage of(QWidget *pWindow);

    /// The committed picture of that name for the screen's density; null when there is none.
    static QImage committed(const QString &strName);

    /// How many pixels differ by more than a shade. Every pixel counts when the sizes differ.
    static int differingPixels(const QImage &one, const QImage &other);

    /// Compares `picture` with the committed one: an empty text when they match, else what is wrong. A picture that
    /// does not match is saved in the build folder.
    static QString complaint(const QString &strName, const QImage &picture);
};
