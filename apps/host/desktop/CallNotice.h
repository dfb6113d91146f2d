#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QSystemTrayIcon;

/// A notification of the desktop for a call that rings, for whoever looks elsewhere: by the desktop's service of
/// notifications, where there is none by an icon in its tray, where there is no tray either not at all. Nothing here
/// waits for the desktop. GUI thread; one for the process.
class CallNotice : public QObject
{
    Q_OBJECT

public:
    explicit CallNotice(QObject *parent = nullptr);

    /// Takes the notice away.
    ~CallNotice() override;

    /// Shows the notice; one that is still there changes over to this one. Both texts are plain.
    void show(const QString &strTitle, const QString &strText);

    /// Takes it away.
    void withdraw();

    /// Whether a notice is asked for.
    bool isShown() const { return m_bShown; }

signals:
    /// The user has chosen the notice.
    void chosen();

private slots:
    // Of the service: what was pressed on a notice, and that one has gone.
    void actionInvoked(uint id, const QString &strAction);
    void notificationClosed(uint id, uint reason);

private:
    void listen();
    void showInTray(const QString &strTitle, const QString &strText);
    static void close(uint id);

    bool m_bListens = false;
    bool m_bShown = false;
    int m_iTurn = 0; // counts what was shown and taken away, so that a late answer finds out that it is late
    uint m_id = 0;   // of the service
    std::unique_ptr<QSystemTrayIcon> m_pTray;
};
