#pragma once

// The selection rectangle of the picture tools: a dotted frame with an open inside. GUI thread only; Qt's ownership by
// parent applies.

#include <QRubberBand>

class MyRubberBand : public QRubberBand
{
    Q_OBJECT

public:
    /// A hidden band of that shape. Without a parent it is a window of its own.
    explicit MyRubberBand(Shape shape, QWidget *parent = nullptr);

protected:
    /// Paints four dotted bars along the edges of the event's rectangle and leaves the inside as it is.
    void paintEvent(QPaintEvent *event) override;
};
