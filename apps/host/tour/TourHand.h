#pragma once

#include "screen/ScreenPointer.h"
#include "screen/WindowProbe.h"

#include <QObject>
#include <QQueue>

#include <functional>

/// The tour's hand on the mouse: does what it is told one thing after the other, each as soon as the screen allows it.
/// The window is brought to the front, the pointer goes to the place, and only when the program has heard from the X
/// server that the pointer is there the button is pressed. After a click the pointer goes out of the way, so that
/// nothing below it changes its look. GUI thread.
class TourHand : public QObject
{
    Q_OBJECT

public:
    /// Where to: asked again and again until the widget is there.
    using Finder = std::function<WindowProbe::Spot()>;

    TourHand();

    /// Whether there is a mouse to be moved.
    bool isReady() const { return m_pointer.isReady(); }

    /// Clicks, `iTimes` times in quick succession.
    void click(const Finder &where, Qt::MouseButton button = Qt::LeftButton, int iTimes = 1);

    /// Moves there and stays.
    void hover(const Finder &where);

    /// Takes the pointer out of the way, into the lower right corner of the screen.
    void rest();

    /// Whether everything has been done.
    bool isIdle() const { return m_gestures.isEmpty(); }

    /// Goes on with what is to be done; to be called often.
    void work();

signals:
    /// Everything has been done, and what the last click changes at once has changed.
    void done();

protected:
    /// Sees the pointer arrive, and the button go down and come up.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Phase
    {
        Waiting,  ///< for the place to be there
        Reaching, ///< the pointer is on its way
        Arrived,
        Pressed
    };
    struct Gesture
    {
        Finder where;
        Qt::MouseButton button;
        int times; ///< 0: no click
    };

    void reach(const WindowProbe::Spot &spot, const QPoint &place);
    void press(const Gesture &gesture);
    void finish();
    bool isInPlace() const;
    void settle();

    ScreenPointer m_pointer;
    QQueue<Gesture> m_gestures;
    Phase m_phase = Waiting;
    const QObject *m_pWindow = nullptr; // only compared
    QPoint m_place;
    int m_iPatience = 0;    // calls of work() until the present phase is taken for lost
    bool m_bBeside = false; // where the pointer has been sent last
    int m_iReleases = 0;    // still to come
    bool m_bPressSeen = false;
};
