#include "panes/WindowPlace.h"

#include "client/HostSettings.h"
#include "client/SettingsFile.h"

#include "common/settings/ConfigFile.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// What a window manager puts around a window, as far as it is not known yet.
constexpr QMargins cUsualFrame(4, 30, 4, 6);
constexpr int cNumbers = 4;
const QString cMaximized = QStringLiteral("maximized");

int area(const QRect &rect)
{
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

} // namespace

WindowPlace::WindowPlace(QWidget *window, const QString &strKey, Side side)
    : QObject(window), m_pWindow(window), m_strKey(strKey), m_side(side)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (m_side == Side::Whole || screen == nullptr) {
        restore();
    } else {
        const QRect inside = insideOf(part(screen->availableGeometry(), m_side));
        const QSize size(inside.width(), qMin(inside.height(), m_pWindow->height()));
        m_pWindow->setGeometry(QRect(inside.topLeft(), size));
    }
    m_pWindow->installEventFilter(this);
}

QRect WindowPlace::fit(const QRect &wanted, const QList<QRect> &screens)
{
    if (screens.isEmpty()) {
        return wanted;
    }
    const auto shares = [&](const QRect &one, const QRect &other) {
        return area(one.intersected(wanted)) < area(other.intersected(wanted));
    };
    const QRect screen = *std::max_element(screens.begin(), screens.end(), shares);
    QRect fitted(wanted.topLeft(), wanted.size().boundedTo(screen.size()));
    fitted.moveLeft(qBound(screen.left(), fitted.left(), screen.right() + 1 - fitted.width()));
    fitted.moveTop(qBound(screen.top(), fitted.top(), screen.bottom() + 1 - fitted.height()));
    return fitted;
}

QRect WindowPlace::part(const QRect &screen, Side side)
{
    if (side == Side::Whole) {
        return screen;
    }
    QRect half(screen.topLeft(), QSize(screen.width() / 2, screen.height()));
    if (side == Side::Right) {
        half.moveRight(screen.right());
    }
    return half;
}

QRect WindowPlace::insideOf(const QRect &screen)
{
    return screen.marginsRemoved(cUsualFrame);
}

QList<QRect> WindowPlace::insides()
{
    QList<QRect> insides;
    const QList<QScreen *> screens = QGuiApplication::screens();
    std::transform(screens.begin(), screens.end(), std::back_inserter(insides),
                   [](const QScreen *screen) { return insideOf(screen->availableGeometry()); });
    return insides;
}

void WindowPlace::restore()
{
    const QStringList words = SettingsFile::read(HostSettings::userFile(), m_strKey).split(QLatin1Char(','));
    QList<int> numbers;
    for (int word = 0; word < qMin(cNumbers, words.size()); ++word) {
        bool bNumber = false;
        const int number = words.at(word).toInt(&bNumber);
        if (bNumber) {
            numbers << number;
        }
    }
    const QList<QRect> screens = insides();
    QRect wanted(QPoint(), m_pWindow->size());
    wanted.moveCenter(screens.isEmpty() ? QPoint() : screens.first().center());
    if (numbers.size() == cNumbers && numbers.at(2) > 0 && numbers.at(3) > 0) {
        wanted = QRect(QPoint(numbers.at(0), numbers.at(1)),
                       QSize(numbers.at(2), numbers.at(3)).expandedTo(m_pWindow->minimumSizeHint()));
    }
    m_pWindow->setGeometry(fit(wanted, screens));
    if (words.last() == cMaximized) {
        m_pWindow->setWindowState(Qt::WindowMaximized);
    }
}

void WindowPlace::remember(int iGrown) const
{
    if (m_side != Side::Whole || HostSettings::userFile().isEmpty()) {
        return;
    }
    const bool bMaximized = m_pWindow->isMaximized() || m_pWindow->isFullScreen();
    const QRect place = bMaximized ? m_pWindow->normalGeometry() : m_pWindow->geometry();
    QStringList words;
    for (const int number : {place.x(), place.y(), place.width() - iGrown, place.height()}) {
        words << QString::number(number);
    }
    if (bMaximized) {
        words << cMaximized;
    }
    ConfigFile::changeConfigValue(HostSettings::userFile(), m_strKey, words.join(QLatin1Char(',')));
}

bool WindowPlace::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        m_bPlaced = false;
        QTimer::singleShot(0, this, &WindowPlace::fitFrame);
    } else if (event->type() == QEvent::WindowActivate && !std::exchange(m_bPlaced, true)) {
        // Now the frame is there for sure.
        QTimer::singleShot(0, this, &WindowPlace::fitFrame);
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlace::fitFrame()
{
    const QRect frame = m_pWindow->frameGeometry();
    if (m_pWindow->isMaximized() || m_pWindow->isFullScreen() || m_pWindow->screen() == nullptr) {
        return;
    }
    const QRect fitted = fit(frame, {part(m_pWindow->screen()->availableGeometry(), m_side)});
    if (fitted != frame) {
        m_pWindow->resize(m_pWindow->size() - (frame.size() - fitted.size()));
        m_pWindow->move(fitted.topLeft());
    }
}
