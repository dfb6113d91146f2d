#pragma once

// A label of several lines that shows whole lines only: a text without the room that it needs ends with "…" at the end
// of a line. text() stays whole. GUI thread only; Qt's ownership by parent applies.

#include <QLabel>

class MessageLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label. `parent` may be null.
    explicit MessageLabel(QWidget *parent = nullptr);

    /// How far down from the label's top edge lines may reach, in pixels; at first, and with any value beyond it, to
    /// its bottom edge.
    void setLowestLine(int iBottom);

    /// Whether the whole text shows in the label's present size.
    bool hasRoom() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect place() const;
    bool isMarkup() const;

    int m_iLowestLine = QWIDGETSIZE_MAX;
};
