#include "panes/PageArea.h"

#include <QScrollBar>

namespace {

// Some rows, above and below which the rest is scrolled away.
constexpr int cLeastHeight = 120;

} // namespace

PageArea::PageArea(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize PageArea::sizeHint() const
{
    const QWidget *page = widget();
    if (page == nullptr) {
        return QScrollArea::sizeHint();
    }
    const int iWidth = qMax(page->sizeHint().width(), window()->minimumWidth());
    // The area scrolls below the page's least size, which knows nothing of lines that are broken.
    const int iLeast = qMax(page->sizeHint().height(), page->minimumSizeHint().height());
    return {iWidth, qMax(iLeast, page->heightForWidth(iWidth))};
}

QSize PageArea::minimumSizeHint() const
{
    const int iWidth = widget() == nullptr ? 0 : widget()->minimumSizeHint().width();
    return {iWidth + verticalScrollBar()->sizeHint().width(), cLeastHeight};
}
