#pragma once

#include <QObject>

class CallWatch;
class QMainWindow;
class QStatusBar;

/// The way back to the plug-in's call window, which may be minimised or stand behind others: a click on the status bar
/// of the client's window leads there while a call is on. What this user begins is brought to the front at once; and a
/// call window that is higher than the screen is put where its lower end, with the buttons, is seen. All of that by
/// what any window can be told from outside: one that the plug-in hides stays hidden. GUI thread; it belongs to the
/// client's window, and the watch must outlive it.
class WayToCall : public QObject
{
    Q_OBJECT

public:
    WayToCall(QMainWindow &window, const CallWatch &calls);

    /// Brings the call window to the front and asks for the keyboard; nothing happens while the plug-in shows none.
    static void go();

protected:
    /// The click on the status bar, and the call window's coming.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void accompany();
    void showWay();

    QStatusBar *m_pBar;
    const CallWatch &m_calls;
};
