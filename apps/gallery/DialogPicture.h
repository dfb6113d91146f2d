#pragma once

// The message dialog as the gallery makes it, and its picture without a window on the screen. GUI thread.

#include <QPixmap>

#include <memory>

struct DialogMode;
class ErrorMessage;
class QWidget;

namespace DialogPicture {

/// A fresh dialog with the client's two usual words. `parent` may be null.
std::unique_ptr<ErrorMessage> create(QWidget *parent);

/// What the dialog looks like in that mode. A nested event loop runs meanwhile.
QPixmap of(const DialogMode &mode);

} // namespace DialogPicture
