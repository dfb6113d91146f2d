#pragma once

// All conferences of a mixer. It is told what becomes of the legs, and says through LegSide what is to become of them.
// Owned by the mixer; main thread.

#include "mixer/focus/Conference.h"
#include "mixer/focus/LegBook.h"
#include "mixer/focus/LegSide.h"
#include "mixer/focus/Limits.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <map>
#include <memory>

namespace Focus {

class Hall : public QObject
{
    Q_OBJECT

public:
    /// `side` outlives the hall.
    explicit Hall(LegSide &side, const Limits &limits = {}, QObject *parent = nullptr);
    ~Hall() override;

    /// A new leg, not answered yet: `userId`, who has proved to be that, calls the conference `conferenceId` with this
    /// in the header. It is answered or refused at once.
    void takeArrival(LegId leg, const QString &conferenceId, const QString &userId, const QByteArray &header);

    // Of a leg that is in no conference any more the following four have no effect.

    /// A leg is up: its member hears and is heard.
    void takeUp(LegId leg);

    /// A leg that rang was declined, with a status of SIP.
    void takeRefusal(LegId leg, int status);

    /// A leg has ended, by its member or by a loss.
    void takeEnd(LegId leg);

    /// The body of an INFO came on a leg, any bytes.
    void takeBody(LegId leg, const QByteArray &body);

    int conferenceCount() const { return static_cast<int>(m_conferences.size()); }
    int legCount() const { return m_book.count(); }

private:
    void open(LegId leg, const QString &userId, const Talk::Message &message);
    QString refusalOf(const Talk::Message &message, const QString &userId, int *status) const;
    void close(const QString &id);
    void noteArrival(const QString &text);
    void closeNotes();

    template <class Action>
    void withConferenceOf(LegId leg, const Action &action);

    LegSide &m_side;
    Limits m_limits;
    LegBook m_book;
    QTimer m_noteTimer;
    int m_arrivalNotes = 0;                                       // since it was started
    std::map<QString, std::unique_ptr<Conference>> m_conferences; // by id
};

} // namespace Focus
