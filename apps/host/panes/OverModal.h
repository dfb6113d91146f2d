#pragma once

#include <QObject>
#include <QPointer>

class QWidget;
class QWindow;

/// Keeps a window usable while others are modal: as long as one is, the window counts as its child, and a modal window
/// leaves its own children alone. Nothing of the modal window changes: it stays open, and takes mouse and keys as
/// before. GUI thread; it belongs to the window.
class OverModal : public QObject
{
    Q_OBJECT

public:
    /// Keeps `window` usable whichever windows are or become modal.
    explicit OverModal(QWidget *window);

    /// Keeps `window` usable over the window that is modal now, until that goes. A window that becomes modal later
    /// blocks it as ever. Does nothing while none is modal, or for a null `window`.
    static void liftOverCurrent(QWidget *window);

protected:
    /// The window shows itself, or another has become modal.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    OverModal(QWidget *window, QWindow *only);
    void follow();
    void standOver(QWindow *modal);

    QWidget *m_pWindow;
    QPointer<QWindow> m_pOnly; // the one that it is lifted over; null: over every one
    QPointer<QWindow> m_pOver;
    bool m_bOnce;
};
