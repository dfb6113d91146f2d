#pragma once

// The modes of the message dialog, with what each is shown with in the gallery. GUI thread.

#include <QString>
#include <QVector>

class ErrorMessage;

struct DialogMode
{
    /// Names the mode's picture; lower case, no blanks.
    const char *id;
    /// What the mode is for.
    const char *use;

    /// Runs the dialog in this mode and gives what it returned, as a text. The hot key modes return at once.
    QString (*run)(ErrorMessage &dialog);

    /// Does what leads to the look that is meant, once the dialog is shown; null where showing is enough.
    void (*act)(ErrorMessage &dialog);
};

namespace DialogModes {

/// Every mode, in the order of the dialog's operations.
const QVector<DialogMode> &all();

} // namespace DialogModes
