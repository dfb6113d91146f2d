#pragma once

#include "panes/WindowPlace.h"

#include <QObject>

/// Keeps the plug-in's call window to the client's own half of the screen, at its foot, where the window would come up
/// anywhere else. It watches the application. GUI thread.
class CallWindowSide : public QObject
{
    Q_OBJECT

public:
    /// The whole screen: no effect.
    explicit CallWindowSide(WindowPlace::Side side, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    WindowPlace::Side m_side;
};
