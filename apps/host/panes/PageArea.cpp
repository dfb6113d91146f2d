#include "panes/PageArea.h"

#include <QEvent>
#include <QScrollBar>

namespace {

// Some rows, above and below which the rest is scrolled away.
constexpr int cLeastHeight = 120;
constexpr int cGap = 8;

} // namespace

PageArea::PageArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->installEventFilter(this);
}

QSize PageArea::sizeHint() const
{
    const QWidget *page = widget();
    if (page == nullptr) {
        return QScrollArea::sizeHint();
    }
    const int iWidth = qMax(page->sizeHint().width(), window()->minimumWidth());
    // A page's least size takes no account of labels that wrap, so the height for this width is asked for as well.
    const int iLeast = qMax(page->sizeHint().height(), page->minimumSizeHint().height());
    return {iWidth, qMax(iLeast, page->heightForWidth(iWidth))};
}

QSize PageArea::minimumSizeHint() const
{
    const int iWidth = widget() == nullptr ? 0 : widget()->minimumSizeHint().width();
    return {iWidth + verticalScrollBar()->sizeHint().width(), cLeastHeight};
}

bool PageArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == verticalScrollBar() && (event->type() == QEvent::Show || event->type() == QEvent::Hide)) {
        setViewportMargins(0, 0, event->type() == QEvent::Show ? cGap : 0, 0);
    }
    return QScrollArea::eventFilter(watched, event);
}
