#include "panes/OverModal.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

OverModal::OverModal(QWidget *window) : OverModal(window, nullptr) {}

OverModal::OverModal(QWidget *window, QWindow *only)
    : QObject(window), m_pWindow(window), m_pOnly(only), m_bOnce(only != nullptr)
{
    m_pWindow->installEventFilter(this);
    follow();
}

void OverModal::liftOverCurrent(QWidget *window)
{
    QWindow *modal = QGuiApplication::modalWindow();
    if (window != nullptr && modal != nullptr) {
        new OverModal(window, modal);
    }
}

bool OverModal::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::WindowBlocked) {
        follow();
    }
    return QObject::eventFilter(watched, event);
}

void OverModal::follow()
{
    QWindow *modal = QGuiApplication::modalWindow();
    if (!m_bOnce) {
        standOver(modal);
    } else if (m_pOnly != nullptr && m_pOnly->isVisible()) {
        standOver(m_pOnly);
    } else {
        standOver(nullptr);
        deleteLater();
    }
}

void OverModal::standOver(QWindow *modal)
{
    QWindow *own = m_pWindow->windowHandle();
    if (modal != m_pOver) {
        if (m_pOver != nullptr) {
            m_pOver->disconnect(this);
        }
        m_pOver = modal;
        if (modal != nullptr) {
            // Queued: a window that hides is still counted as modal while it says so.
            connect(modal, &QWindow::visibleChanged, this, &OverModal::follow, Qt::QueuedConnection);
            connect(modal, &QObject::destroyed, this, &OverModal::follow, Qt::QueuedConnection);
        }
    }
    if (own != nullptr && modal != own && own->transientParent() != modal) {
        own->setTransientParent(modal);
    }
}
