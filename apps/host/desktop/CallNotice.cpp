#include "desktop/CallNotice.h"

#include "client/HostPictures.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QSystemTrayIcon>
#include <QVariantMap>

#include <utility>

namespace {

constexpr const char *cService = "org.freedesktop.Notifications";
constexpr const char *cPath = "/org/freedesktop/Notifications";
// What a click on the notice itself is called.
constexpr const char *cDefaultAction = "default";
constexpr uchar cCritical = 2;
// It goes with the call, not by itself.
constexpr int cStays = 0;
// A service that is slower than this has missed the call.
constexpr int cAnswerMs = 5000;

QDBusMessage callOf(const char *pMethod, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(QLatin1String(cService), QLatin1String(cPath),
                                                       QLatin1String(cService), QLatin1String(pMethod));
    call.setArguments(arguments);
    return call;
}

/// The client rings itself, and the notice is of no use later.
QVariantMap hints()
{
    return {{QStringLiteral("urgency"), QVariant::fromValue(cCritical)},
            {QStringLiteral("category"), QStringLiteral("call.incoming")},
            {QStringLiteral("desktop-entry"), QStringLiteral("kelvarim-demo")},
            {QStringLiteral("suppress-sound"), true},
            {QStringLiteral("transient"), true}};
}

} // namespace

CallNotice::CallNotice(QObject *parent) : QObject(parent) {}

CallNotice::~CallNotice()
{
    withdraw();
}

void CallNotice::show(const QString &strTitle, const QString &strText)
{
    listen();
    m_bShown = true;
    const int iTurn = ++m_iTurn;
    // Its text may be read as markup.
    const QDBusMessage call = callOf(
        "Notify", {QStringLiteral("KelvarIM"), m_id, QStringLiteral("kelvarim-demo"), strTitle, strText.toHtmlEscaped(),
                   QStringList{QLatin1String(cDefaultAction), tr("Show")}, hints(), cStays});
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call, cAnswerMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, iTurn, strTitle, strText] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        const bool isLate = iTurn != m_iTurn;
        if (reply.isError()) {
            // Nor is there a tray where nobody answered: to find out about it Qt would wait for the same bus.
            if (!isLate && reply.error().type() != QDBusError::NoReply) {
                showInTray(strTitle, strText);
            }
        } else if (!isLate) {
            m_id = reply.value();
        } else if (reply.value() != m_id) {
            close(reply.value());
        }
    });
}

void CallNotice::withdraw()
{
    if (!std::exchange(m_bShown, false)) {
        return;
    }
    ++m_iTurn;
    if (m_id != 0) {
        close(std::exchange(m_id, 0));
    }
    if (m_pTray != nullptr) {
        m_pTray->hide();
        // The tray icon may be the sender of the signal that is running.
        m_pTray.release()->deleteLater();
    }
}

void CallNotice::listen()
{
    if (std::exchange(m_bListens, true)) {
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    for (const auto &[signal, slot] : {std::pair("ActionInvoked", SLOT(actionInvoked(uint, QString))),
                                       std::pair("NotificationClosed", SLOT(notificationClosed(uint, uint)))}) {
        // From whichever service: to find out whose the name is Qt would wait for the bus, be it stalled.
        bus.connect(QString(), QLatin1String(cPath), QLatin1String(cService), QLatin1String(signal), this, slot);
    }
}

void CallNotice::actionInvoked(uint id, const QString &)
{
    if (id != 0 && id == m_id) {
        emit chosen();
    }
}

void CallNotice::notificationClosed(uint id, uint)
{
    // The user has put it away; the call still rings.
    if (id == m_id) {
        m_id = 0;
    }
}

void CallNotice::close(uint id)
{
    QDBusConnection::sessionBus().send(callOf("CloseNotification", {id}));
}

void CallNotice::showInTray(const QString &strTitle, const QString &strText)
{
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        return;
    }
    m_pTray = std::make_unique<QSystemTrayIcon>(QIcon(HostPictures::windowIcon()));
    m_pTray->setToolTip(strTitle + QLatin1Char(' ') + strText);
    connect(m_pTray.get(), &QSystemTrayIcon::activated, this, &CallNotice::chosen);
    connect(m_pTray.get(), &QSystemTrayIcon::messageClicked, this, &CallNotice::chosen);
    m_pTray->show();
    m_pTray->showMessage(strTitle, strText, QSystemTrayIcon::Information);
}
