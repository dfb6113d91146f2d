#pragma once

// One button for each mode of the message dialog, and what the dialog returned. GUI thread; Qt's ownership by parent
// applies.

#include "Sheet.h"

struct DialogMode;
class QLabel;

class DialogsPage : public Sheet
{
    Q_OBJECT

public:
    /// The filled page. `parent` may be null.
    explicit DialogsPage(QWidget *parent = nullptr);

private:
    void addMode(const DialogMode &mode);
    void open(const DialogMode &mode, QLabel *result);
};
