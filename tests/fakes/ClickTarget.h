#pragma once

// Where a click on a widget lands. GUI thread.

#include <QWidget>

/// The innermost visible widget at the centre of `pWidget`: one of its parts, or the widget itself.
inline QWidget *clickTarget(QWidget *pWidget)
{
    QWidget *pPart = pWidget->childAt(pWidget->rect().center());
    return pPart != nullptr ? pPart : pWidget;
}
