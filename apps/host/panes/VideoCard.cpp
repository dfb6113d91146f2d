#include "panes/VideoCard.h"

#include "ui_VideoCard.h"

#include "client/ContactBook.h"
#include "client/HostPictures.h"

#include <QEvent>
#include <QWindow>

namespace {

constexpr int cHeadSize = 100;

/// Whoever has a picture puts a widget into the page.
bool hasSurface(const QWidget *page)
{
    return !page->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).isEmpty();
}

} // namespace

VideoCard::VideoCard(const ContactBook &book, QWidget *parent)
    : QWidget(parent,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus),
      ui(std::make_unique<Ui::VideoCard>()), m_book(book)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_StyledBackground);
    winId();
    windowHandle()->installEventFilter(this);
}

VideoCard::~VideoCard() = default;

void VideoCard::accompany(QWidget *callWindow, const QString &strUid)
{
    leave();
    auto *page = callWindow == nullptr ? nullptr : callWindow->findChild<QWidget *>(QStringLiteral("playFramWidget"));
    if (page == nullptr) {
        return;
    }
    m_strUid = strUid;
    m_pCallWindow = callWindow;
    m_pPage = page;
    m_pCallWindow->installEventFilter(this);
    m_pPage->installEventFilter(this);
    showPerson();
    follow();
}

void VideoCard::leave()
{
    if (m_pCallWindow != nullptr) {
        m_pCallWindow->removeEventFilter(this);
    }
    if (m_pPage != nullptr) {
        m_pPage->removeEventFilter(this);
    }
    m_pCallWindow = nullptr;
    m_pPage = nullptr;
    hide();
}

void VideoCard::showPerson()
{
    const QString name = m_book.nameOf(m_strUid);
    ui->lblHead->setPixmap(HostPictures::head(name, m_strUid, cHeadSize, m_book.presenceOf(m_strUid),
                                              m_book.card(m_strUid)->m_strPhotoPath));
    ui->lblName->setText(name);
    setWindowTitle(tr("Video call with %1").arg(name));
    setAccessibleName(windowTitle());
    setAccessibleDescription(ui->lblWhy->text());
    adjustSize();
}

void VideoCard::follow()
{
    const QWidget *window = m_pCallWindow;
    const QWidget *page = m_pPage;
    if (window == nullptr || page == nullptr || !page->isVisible() || window->isMinimized() || hasSurface(page)) {
        hide();
        return;
    }
    // A transient window stays above its call window, and below what is above that.
    windowHandle()->setTransientParent(window->windowHandle());
    QRect place = rect();
    place.moveCenter(page->mapToGlobal(page->rect().center()));
    move(place.topLeft());
    show();
}

void VideoCard::followLater()
{
    QMetaObject::invokeMethod(this, &VideoCard::follow, Qt::QueuedConnection);
}

void VideoCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        if (m_pPage != nullptr) {
            showPerson();
            follow();
        }
    }
    QWidget::changeEvent(event);
}

/// Says once more that the card takes no mouse: a window manager that has put a frame around it hears of that only when
/// it changes, and until then the frame takes the mouse.
void VideoCard::leaveMouse()
{
    windowHandle()->setFlag(Qt::WindowTransparentForInput, false);
    windowHandle()->setFlag(Qt::WindowTransparentForInput, true);
}

bool VideoCard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == windowHandle()) {
        if (event->type() == QEvent::Expose && windowHandle()->isExposed()) {
            leaveMouse();
        }
        return QWidget::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Hide:
        follow();
        break;
    case QEvent::ZOrderChange:
    case QEvent::WindowActivate:
        // Without a window manager nobody keeps the card above, so it raises itself.
        if (isVisible()) {
            raise();
        }
        break;
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
        // The window is not yet as it will be, and a child that comes is no widget yet.
        followLater();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
