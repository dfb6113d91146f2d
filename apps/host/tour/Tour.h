#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class QWidget;
class TourHand;
class TourWatch;

/// How long the effects of a usual step may take on a machine that is busy with other work, in milliseconds.
inline constexpr int cUsualLimitMs = 60000;

/// One thing that must be seen to happen in a step.
struct TourCheck
{
    QString words;
    std::function<bool()> seen;
};

/// One step of the tour: what is done, what must then be seen, and of which window a picture is taken.
struct TourStep
{
    QString title;
    /// Tried until it says that it has been done; must not open an event loop of its own. What it tells the hand is
    /// done before anything is looked for. Empty for a step that only waits: what was seen since the last action counts
    /// for it.
    std::function<bool()> act;
    /// Each needs to be seen once, in any order.
    QList<TourCheck> checks;
    int limitMs = cUsualLimitMs;
    /// Name of the picture without ".png"; empty for none.
    QString picture = QString();
    /// The window to take; one that gives null fails the step.
    std::function<QWidget *()> pictureOf = nullptr;
};

/// Runs the steps one after the other, by a timer, so that the program under way is never blocked, and says each as it
/// is seen to have happened. It ends at the first step that lacks an effect after its time limit. GUI thread.
class Tour : public QObject
{
    Q_OBJECT

public:
    /// Pictures go to the folder `strFolder`. Watch and hand must outlive the tour.
    Tour(TourWatch &watch, TourHand &hand, QList<TourStep> steps, const QString &strFolder);

    void start();

signals:
    /// The tour is over; false when a step lacked an effect.
    void finished(bool bOk);

protected:
    /// Sees what may change a window.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Phase
    {
        Beginning,
        Waiting,
        Settling
    };

    void tick();
    void begin();
    void wait();
    void act();
    bool hasActed() const;
    void lookFor();
    void sayMissing() const;
    void settle();
    void end(bool bOk);
    bool takePicture();
    const TourStep &step() const { return m_steps.at(m_iStep); }

    TourWatch &m_watch;
    TourHand &m_hand;
    QList<TourStep> m_steps;
    QString m_strFolder;
    QTimer m_timer;
    QElapsedTimer m_clock;
    Phase m_phase = Beginning;
    int m_iStep = 0;
    bool m_bActed = false;
    bool m_bLooking = false; // will look once more, behind the event that is being dealt with
    QList<bool> m_seen;
};
