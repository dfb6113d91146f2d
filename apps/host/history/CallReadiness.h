#pragma once

#include <QObject>
#include <QString>

/// Whether a call can be placed now, and if not, why: what every control that would place one shows. GUI thread.
class CallReadiness : public QObject
{
    Q_OBJECT

public:
    /// How far the call service is.
    enum class Service
    {
        Reached,
        Awaited, ///< it is not there yet, and comes by itself
        Lost
    };

    /// What call there is.
    enum class Call
    {
        None,
        On,  ///< in any state
        Lost ///< it is over, and its window is still open
    };

    using QObject::QObject;

    /// Whether the user is signed in; false before.
    void setSignedIn(bool bSignedIn);

    /// What call there is; none before.
    void setCall(Call call);

    /// How far the call service is; reached before.
    void setService(Service service);

    /// Whether a call can be placed.
    bool isReady() const { return m_bSignedIn && m_service == Service::Reached && m_call == Call::None; }

    /// The reason, in the client's language, a sentence; empty while a call can be placed.
    QString reason() const;

signals:
    /// isReady() or reason() may answer otherwise.
    void changed();

private:
    template <typename Value>
    void set(Value &member, Value value);

    bool m_bSignedIn = false;
    Call m_call = Call::None;
    Service m_service = Service::Reached;
};
