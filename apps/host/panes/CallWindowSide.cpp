#include "panes/CallWindowSide.h"

#include "screen/WindowProbe.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

CallWindowSide::CallWindowSide(WindowPlace::Side side, QObject *parent) : QObject(parent), m_side(side)
{
    if (m_side != WindowPlace::Side::Whole) {
        qApp->installEventFilter(this);
    }
}

bool CallWindowSide::eventFilter(QObject *watched, QEvent *event)
{
    // It comes before the window manager knows of the window.
    if (event->type() == QEvent::Show && watched == WindowProbe::callWindow()) {
        auto *window = static_cast<QWidget *>(watched);
        const QRect half = WindowPlace::part(QGuiApplication::primaryScreen()->availableGeometry(), m_side);
        QRect place(QPoint(), window->size());
        place.moveCenter(half.center());
        place.moveBottom(half.bottom());
        window->move(place.topLeft());
    }
    return QObject::eventFilter(watched, event);
}
