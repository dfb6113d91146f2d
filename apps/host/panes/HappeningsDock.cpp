#include "panes/HappeningsDock.h"

#include "happenings/HappeningsPanel.h"
#include "panes/WindowPlace.h"

#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>

#include <utility>

namespace {

// On a small screen the window of its own leaves the contacts in sight.
constexpr double cShareOfSmallScreen = 0.7;
constexpr QMargins cMargins(8, 0, 8, 0);

QRect insideOfScreen(const QWidget *window)
{
    return WindowPlace::insideOf(window->screen()->availableGeometry());
}

} // namespace

HappeningsDock::HappeningsDock(HappeningsPanel *panel, QMainWindow *window)
    : QDockWidget(window), m_pWindow(window), m_pPanel(panel)
{
    setObjectName(QStringLiteral("happeningsDock"));
    // On the smallest screens it is scrolled.
    auto *area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setMinimumWidth(panel->minimumWidth());
    area->setWidget(panel);
    setWidget(area);
    panel->setContentsMargins(cMargins);
    // The dock's title says the same.
    panel->findChild<QWidget *>(QStringLiteral("lblTitle"))->hide();
    setWindowTitle(panel->windowTitle());
    connect(panel, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    connect(this, &QDockWidget::topLevelChanged, this, [this](bool bFloats) {
        if (bFloats) {
            shrinkWindow();
        }
    });
    m_pWindow->addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
}

bool HappeningsDock::isRoomInside() const
{
    const int separator = style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, this);
    return insideOfScreen(m_pWindow).width() >=
           m_pWindow->centralWidget()->minimumWidth() + separator + m_pPanel->minimumSizeHint().width();
}

void HappeningsDock::setShown(bool bShown)
{
    if (!bShown) {
        hide();
        shrinkWindow();
        return;
    }
    const bool bRoom = isRoomInside();
    setAllowedAreas(bRoom ? Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea : Qt::NoDockWidgetArea);
    if (!bRoom) {
        floatBeside();
    } else if (!isFloating()) {
        growWindow();
    }
    show();
}

/// The window grows as far as the screen has room, to the right first.
void HappeningsDock::growWindow()
{
    if (m_pWindow->isMaximized() || m_pWindow->isFullScreen()) {
        return;
    }
    const QRect inside = insideOfScreen(m_pWindow);
    const int wanted =
        m_pPanel->sizeHint().width() + style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, this);
    QRect place = m_pWindow->geometry();
    m_iGrown = qBound(0, inside.width() - place.width(), wanted);
    place.setWidth(place.width() + m_iGrown);
    m_pWindow->resize(place.size());
    const QPoint fitted = WindowPlace::fit(place, {inside}).topLeft();
    if (fitted != place.topLeft()) {
        m_pWindow->move(m_pWindow->pos() + fitted - place.topLeft());
    }
}

void HappeningsDock::shrinkWindow()
{
    const int grown = std::exchange(m_iGrown, 0);
    if (grown > 0 && !m_pWindow->isMaximized() && !m_pWindow->isFullScreen()) {
        // Until then the window's layout still keeps the panel's room.
        QTimer::singleShot(0, m_pWindow, [window = m_pWindow, grown] {
            window->layout()->activate();
            window->resize(window->width() - grown, window->height());
        });
    }
}

void HappeningsDock::floatBeside()
{
    setFloating(true);
    const QRect inside = insideOfScreen(m_pWindow);
    QRect place(QPoint(), m_pPanel->sizeHint().boundedTo(inside.size() * cShareOfSmallScreen));
    place.setSize(place.size().expandedTo(minimumSizeHint()));
    place.moveBottomRight(inside.bottomRight());
    setGeometry(WindowPlace::fit(place, {inside}));
}
