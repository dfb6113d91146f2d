#pragma once

// The mark of the keyboard's focus. It shows only where keys brought the focus or moved it, so that who uses the mouse
// alone never sees one. GUI thread only.

#include <QObject>
#include <QPointer>
#include <QRect>

#include <functional>

class QAbstractScrollArea;
class QPainter;
class QWidget;

/// Whether a part that has the focus shows it.
class KeyFocus
{
public:
    /// Takes note of an event of the part: focus in and out, a press of the mouse; others change nothing. True when
    /// isShown has changed.
    bool heed(const QEvent &event);

    /// A key has moved the focus within the part. True when isShown has changed.
    bool heedKey();

    /// Whether the part has the focus by keys.
    bool isShown() const { return m_bFocus && m_bByKeys; }

private:
    bool m_bFocus = false;
    bool m_bByKeys = false;
};

class FocusRing : public QObject
{
    Q_OBJECT

public:
    /// From now on, while `pPart` has the focus by keys, a ring shows inside `pFrame`, which is the part itself or
    /// holds it. Both outlive the object, whose parent is `pPart`.
    FocusRing(QWidget *pPart, QWidget *pFrame);

    /// The same for a part of `pView`'s contents: the ring shows at `place`, in the viewport's coordinates, as far as
    /// it is in sight. An empty place shows none.
    FocusRing(QAbstractScrollArea *pView, std::function<QRect()> place);

    /// The place has changed without a new painting of the frame.
    void renew();

    /// A key has moved the focus within the part, or given it.
    void heedKey();

    /// Whether the part has the focus by keys.
    bool isShown() const { return m_focus.isShown(); }

    /// Draws the ring just inside `place`.
    static void paint(QPainter &painter, const QRect &place);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QRect place() const;

    QWidget *m_pPart;
    QWidget *m_pFrame;
    std::function<QRect()> m_place; ///< none is the whole frame
    QPointer<QWidget> m_pRing;      ///< made when first shown; a child of the frame
    KeyFocus m_focus;
};
