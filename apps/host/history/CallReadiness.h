#pragma once

#include <QObject>
#include <QString>

/// Whether a call can be placed now, and if not, why: what every control that would place one shows. GUI thread.
class CallReadiness : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the user is signed in; false before.
    void setSignedIn(bool bSignedIn);
    /// Whether there is a call, in any state; false before.
    void setInCall(bool bInCall);
    /// Whether the call service can be reached; true before.
    void setServed(bool bServed);

    /// Whether a call can be placed.
    bool isReady() const { return m_bSignedIn && m_bServed && !m_bInCall; }
    /// The reason, in the client's language, a sentence; empty while a call can be placed.
    QString reason() const;

signals:
    /// isReady() or reason() may answer otherwise.
    void changed();

private:
    void set(bool &bMember, bool bValue);

    bool m_bSignedIn = false;
    bool m_bInCall = false;
    bool m_bServed = true;
};
