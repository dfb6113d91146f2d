#pragma once

// The holder of the single-sign-on session: the cookies that the passport service gave the user, and the signals that
// tell the client when they change or lapse. The host creates one, registers it with CommonData and owns it; plug-ins
// reach it through SharedContext::getPassportLoginServer. The host's login code stores the cookies, and each request
// that goes through SharedContext::CoverNetworkRequest carries the authorisation identifier of that moment. It keeps
// nothing alive by itself: refresh and expiry log their call and return, and the timers and flags stand ready for a
// refresh. On the GUI thread; there is no lock.

#include <QObject>
#include <QString>
#include <QTimer>

#include <array>

class CPassportLoginServer : public QObject
{
    Q_OBJECT

public:
    /// No cookies, nothing running.
    explicit CPassportLoginServer(QObject *pParent = nullptr);

    /// Stores the ticket-granting cookie; an empty value leaves the stored one.
    void SetPassportTGCCookie(const QString &strCookie);

    /// Stores the remember-me cookie; an empty value leaves the stored one. Emits nothing.
    void SetPassportRemCookie(const QString &strCookie);

    /// Stores the authorisation identifier; an empty value leaves the stored one.
    void SetPassportAuthIDCookie(const QString &strAuthId);

    /// The ticket-granting cookie; empty until the first was stored.
    QString GetPassportTGCCookie() const { return m_strTgcCookie; }

    /// The remember-me cookie; empty until the first was stored.
    QString GetPassportRemCookie() const { return m_strRemCookie; }

    /// The authorisation identifier that goes on every server request; empty until the first was stored.
    QString GetAuthIDByPassport() const { return m_strAuthId; }

    /// Logs the three values in clear and returns: no request, no change, no signal.
    void ManualRefreshAuthID();

    /// Logs its call and returns; emits nothing.
    void UserOverdue();

    /// Tells the client that the session ended; the cookies stay.
    void UserCookieExpire();

    /// False at all times: nothing keeps the session alive.
    bool IsPassportKeeplived() const { return m_bIsPassportKeeplived; }

signals:
    /// The remember-me cookie changed, to this value. For a refresh: storing a cookie does not emit it.
    void signal_RemCookieChanged(QString strNewCookie);
    /// The session ended: the user has to sign in again.
    void signal_UserOverdue();

protected:
    QString m_strTgcCookie;
    QString m_strRemCookie;
    QString m_strAuthId;
    int m_iKeeperState = 1;
    std::array<QTimer, 3> m_arrKeeperTimers;
    QString m_strKeeperText1;
    QString m_strKeeperText2;
    qint64 m_iKeeperCount = 0;
    bool m_bIsPassportKeeplived = false;
    std::array<bool, 10> m_arrKeeperFlags{};
};
