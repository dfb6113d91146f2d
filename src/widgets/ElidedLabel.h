#pragma once

// A label of one line that ends in "…" when its text is wider than its place, so that a long name from the network
// never pushes its neighbours out of the window. text() stays whole. GUI thread only; Qt's ownership by parent applies.

#include <QLabel>

class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label for plain text. `parent` may be null.
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// The text as it fits into the label now: whole, or cut and ended with "…".
    QString shownText() const;

    /// The room of the whole text as one line.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
