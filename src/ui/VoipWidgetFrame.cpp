// The call window without a system frame: how the mouse moves and resizes it, its full screen, and the events that it
// watches.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include "common/pictures/IconGlyphs.h"
#include "common/system/ScreenPlace.h"
#include "widgets/MyRubberBand.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <array>

namespace {

struct CursorRow
{
    CVoipWidget::MouseState state;
    Qt::CursorShape shape;
};

constexpr std::array<CursorRow, 9> cCursors{{
    {CVoipWidget::NoEdge, Qt::ArrowCursor},
    {CVoipWidget::LeftEdge, Qt::SizeHorCursor},
    {CVoipWidget::TopEdge, Qt::SizeVerCursor},
    {CVoipWidget::TopLeftCorner, Qt::SizeFDiagCursor},
    {CVoipWidget::RightEdge, Qt::SizeHorCursor},
    {CVoipWidget::TopRightCorner, Qt::SizeBDiagCursor},
    {CVoipWidget::BottomEdge, Qt::SizeVerCursor},
    {CVoipWidget::BottomLeftCorner, Qt::SizeBDiagCursor},
    {CVoipWidget::BottomRightCorner, Qt::SizeFDiagCursor},
}};

const QString cFaceColor = QStringLiteral("255,255,255");

} // namespace

CVoipWidget::MouseState CVoipWidget::cursorState(int x, int y) const
{
    return static_cast<MouseState>(EdgeDrag::edgesAt({x, y}, size()));
}

void CVoipWidget::setCursorStyle(MouseState state)
{
    Qt::CursorShape shape = Qt::ArrowCursor;
    for (const CursorRow &row : cCursors) {
        if (row.state == state) {
            shape = row.shape;
        }
    }
    if (cursor().shape() != shape) {
        setCursor(shape);
    }
}

void CVoipWidget::followCursor(const QPoint &position)
{
    m_mouseState = m_bGeometryLocked ? NoEdge : cursorState(position.x(), position.y());
    setCursorStyle(m_mouseState);
}

// A mouse move over a part of the window reaches the window only when the part tracks the mouse and lets the move pass.
// Hover events come for all parts. Without them, an edge would stay in force after the cursor has moved from it onto
// such a part.
bool CVoipWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        if (!m_bLeftPressed) {
            followCursor(static_cast<QHoverEvent *>(event)->pos());
        }
        return true;
    case QEvent::HoverLeave:
        return true;
    default:
        return QWidget::event(event);
    }
}

void CVoipWidget::showRubberBand(const QRect &rect)
{
    if (m_pRubberBand == nullptr) {
        m_pRubberBand = new MyRubberBand(QRubberBand::Rectangle, QApplication::desktop()->window());
    }
    m_pRubberBand->setGeometry(rect);
    m_pRubberBand->show();
}

void CVoipWidget::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton || m_bGeometryLocked) {
        m_bLeftPressed = false;
        return;
    }
    m_bLeftPressed = true;
    m_dragOffset = event->globalPos() - frameGeometry().topLeft();
    m_bResized = false;
    if (m_mouseState != NoEdge) {
        showRubberBand(frameGeometry());
    }
}

void CVoipWidget::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    if (!m_bLeftPressed) {
        followCursor(event->pos());
        return;
    }
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    if (m_mouseState != NoEdge) {
        dragEdges(event->globalPos());
    } else {
        dragWindow(event->globalPos());
    }
}

void CVoipWidget::dragEdges(const QPoint &cursor)
{
    m_bResized = true;
    m_rubberRect = EdgeDrag::resized(m_mouseState, QRect(pos(), size()), cursor, ScreenPlace::workArea(), m_rubberRect);
    showRubberBand(m_rubberRect.normalized());
}

void CVoipWidget::dragWindow(const QPoint &cursor)
{
    m_bResized = false;
    if (!m_bGeometryLocked && cursor != m_dragOffset) {
        move(EdgeDrag::moved(cursor, m_dragOffset, ScreenPlace::workArea()));
    }
}

void CVoipWidget::mouseReleaseEvent(QMouseEvent *event)
{
    QWidget::mouseReleaseEvent(event);
    m_bLeftPressed = false;
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_dragOffset = QPoint(0, 0);
    if (m_pRubberBand != nullptr) {
        m_pRubberBand->hide();
    }
    m_mouseState = NoEdge;
    if (m_bResized) {
        setGeometry(m_rubberRect);
    }
}

void CVoipWidget::slot_WindowChangeButtonClicked()
{
    if (m_bFullScreen) {
        m_bFullScreen = false;
        setGeometry(m_normalGeometry);
        ui->titleWidget->show();
        ui->btnChangeWindow->setIconFont(IconGlyph::text(IconGlyph::FullScreen), CIconButtonEx::LargeGlyph,
                                         CIconButtonEx::HoverStyle);
        ui->btnChangeWindow->setIconColor(cFaceColor);
        ui->btnChangeWindow->setToolTip(tr("fullscreen"));
    } else {
        m_bFullScreen = true;
        m_normalGeometry = frameGeometry();
        ui->titleWidget->hide();
        setGeometry(EdgeDrag::overWorkArea(ScreenPlace::workArea()));
        ui->btnChangeWindow->setIconFont(IconGlyph::text(IconGlyph::Restore), CIconButtonEx::LargeGlyph,
                                         CIconButtonEx::HoverStyle);
        ui->btnChangeWindow->setIconColor(cFaceColor);
        ui->btnChangeWindow->setToolTip(tr("restore"));
    }
    nameParts();
}

bool CVoipWidget::eventFilter(QObject *obj, QEvent *event)
{
    // A key press comes here for the control that has the focus and, because nobody takes it, once more for the window,
    // with no other event in between. Only the first of the two asks.
    const bool bAskedAlready = obj == this && m_pAskedEscape == event;
    m_pAskedEscape = nullptr;
    switch (event->type()) {
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape) {
            return QWidget::eventFilter(obj, event);
        }
        if (!bAskedAlready && askToEndTheCall()) {
            slot_HangUpCall();
        }
        // Set last, because the events that the window gets while the question is open set it back.
        if (obj != this) {
            m_pAskedEscape = event;
        }
        return false;
    case QEvent::Leave:
        // Deliberate: the window and its controls keep the look they have under the cursor.
        return true;
    default:
        return QWidget::eventFilter(obj, event);
    }
}
