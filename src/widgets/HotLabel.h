#pragma once

// The label of the dialog's hot key page that behaves like a link: under the mouse its words become one. The words are
// fixed, the text set by a form is replaced at the first visit of the mouse. GUI thread only; Qt's ownership by parent.

#include <QLabel>

class HotLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label. `parent` may be null.
    explicit HotLabel(QWidget *parent = nullptr);

signals:
    /// The left mouse button was released over the label. `name` is the text shown at that moment, with its link tags.
    void signal_clickNameLabel(QString name);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};
