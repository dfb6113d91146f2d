#include "widgets/FocusRing.h"

#include <QAbstractScrollArea>
#include <QFocusEvent>
#include <QPainter>

namespace {

// Seen on the dark bar as on white.
constexpr QColor cRingColor(0, 92, 255);
constexpr QColor cInnerColor(255, 255, 255);
constexpr qreal cRadius = 2;

class Ring : public QWidget
{
public:
    explicit Ring(QWidget *pFrame) : QWidget(pFrame)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName(QStringLiteral("focusRing"));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        FocusRing::paint(painter, rect());
    }
};

bool isOfKeys(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

/// The window or a menu has taken or given back the focus: how the part came by it stays as it was.
bool isOfWindows(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

} // namespace

bool KeyFocus::heed(const QEvent &event)
{
    const bool bShown = isShown();
    if (event.type() == QEvent::FocusIn || event.type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
        m_bFocus = event.type() == QEvent::FocusIn;
        if (!isOfWindows(reason)) {
            m_bByKeys = m_bFocus && isOfKeys(reason);
        }
    } else if (event.type() == QEvent::MouseButtonPress) {
        m_bByKeys = false;
    }
    return isShown() != bShown;
}

bool KeyFocus::heedKey()
{
    const bool bShown = isShown();
    m_bByKeys = true;
    return isShown() != bShown;
}

FocusRing::FocusRing(QWidget *pPart, QWidget *pFrame) : QObject(pPart), m_pPart(pPart), m_pFrame(pFrame)
{
    m_pPart->installEventFilter(this);
    m_pFrame->installEventFilter(this);
}

FocusRing::FocusRing(QAbstractScrollArea *pView, std::function<QRect()> place)
    : QObject(pView), m_pPart(pView), m_pFrame(pView->viewport()), m_place(std::move(place))
{
    m_pPart->installEventFilter(this);
    m_pFrame->installEventFilter(this);
}

void FocusRing::paint(QPainter &painter, const QRect &place)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(cRingColor, 2));
    painter.drawRoundedRect(QRectF(place).adjusted(1, 1, -1, -1), cRadius, cRadius);
    painter.setPen(cInnerColor);
    painter.drawRoundedRect(QRectF(place).adjusted(2.5, 2.5, -2.5, -2.5), cRadius, cRadius);
    painter.restore();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    const bool bClicked = event->type() == QEvent::MouseButtonPress;
    const bool bChanged = (watched == m_pPart || bClicked) && m_focus.heed(*event);
    // A part that moves has its frame painted anew, so Paint stands for that.
    const bool bMoved =
        isShown() && watched == m_pFrame && (event->type() == QEvent::Resize || event->type() == QEvent::Paint);
    if (bChanged || bMoved) {
        renew();
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::heedKey()
{
    m_focus.heedKey();
    renew();
}

QRect FocusRing::place() const
{
    if (!m_place) {
        return m_pFrame->rect();
    }
    return m_place().intersected(m_pFrame->rect()).translated(m_pFrame->pos());
}

void FocusRing::renew()
{
    const QRect place = isShown() ? this->place() : QRect();
    if (!place.isEmpty() && !m_pRing) {
        // Beside the viewport and not in it, since what is in it moves when it scrolls.
        m_pRing = new Ring(m_place ? m_pPart : m_pFrame);
    }
    if (QWidget *pRing = m_pRing) {
        pRing->setGeometry(place);
        pRing->raise();
        pRing->setVisible(!place.isEmpty());
    }
}
