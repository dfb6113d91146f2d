#pragma once

// The selection rectangle of the picture tools: a dotted frame with an open inside. GUI thread only; Qt's ownership by
// parent applies.

#include <QRubberBand>

class MyRubberBand : public QRubberBand
{
    Q_OBJECT

public:
    /// A hidden band of that shape. Without a parent, or with the desktop's, it is a window of its own, cut to its four
    /// bars: what lies below stays in sight inside of them and between their dots, with and without a compositor.
    explicit MyRubberBand(Shape shape, QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;

    /// Paints four dotted bars along the edges of the event's rectangle and leaves the inside as it is.
    void paintEvent(QPaintEvent *event) override;

private:
    void cutToTheBars();

    bool m_bComposited = false; ///< asked anew whenever the band shows
};
