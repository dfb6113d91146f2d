#pragma once

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>

class QWidget;

/// Where a window stands: whole on a screen, however small that is, at the start where the user left it the last time.
/// The place is kept in the user's settings, in pixels of the scale that the client runs at. GUI thread; it belongs to
/// the window.
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    /// The key of the main window's place in the user's file: "x,y,width,height", and ",maximized" behind it.
    static constexpr const char *cMainKey = "/windowSetting/mainWindow";

    /// The part of the first screen that a client keeps to.
    enum class Side
    {
        Whole,
        Left, ///< a half, beside another client
        Right
    };

    /// Looks after `window`, which is not shown yet, and puts it where the settings have it under `strKey`, or in the
    /// middle of the first screen with the size that it has. One that keeps to a side fills that, wherever it was
    /// before, and its place is not remembered.
    WindowPlace(QWidget *window, const QString &strKey, Side side = Side::Whole);

    /// That part of `screen`.
    static QRect part(const QRect &screen, Side side);

    /// `wanted`, made smaller and moved as far as it takes to stand within one of `screens`: the one that it shares
    /// most with, the first where it shares nothing with any. `wanted` itself when there is no screen.
    static QRect fit(const QRect &wanted, const QList<QRect> &screens);

    /// What a screen has for a window's inside, when the frame around it has its usual size.
    static QRect insideOf(const QRect &screen);

    /// The insides of all screens, the first one first.
    static QList<QRect> insides();

    /// Writes the place down; `iGrown` is by how much the window is wider than the user made it.
    void remember(int iGrown) const;

protected:
    /// Fits the window to the frame that the window manager has given it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restore();
    void fitFrame();

    QWidget *m_pWindow;
    QString m_strKey;
    Side m_side;
    bool m_bPlaced = false;
};
