#pragma once

// Every widget of the kit in every state. GUI thread; Qt's ownership by parent applies.

#include "Sheet.h"

class WidgetsPage : public Sheet
{
    Q_OBJECT

public:
    /// The filled page. `parent` may be null.
    explicit WidgetsPage(QWidget *parent = nullptr);
};
