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
    return {iWidth, page->hasHeightForWidth() ? page->heightForWidth(iWidth) : page->sizeHint().height()};
}

QSize PageArea::minimumSizeHint() const
{
    const int iWidth = widget() == nullptr ? 0 : widget()->minimumSizeHint().width();
    return {iWidth + verticalScrollBar()->sizeHint().width(), cLeastHeight};
}
