#pragma once

// The label of the dialog's hot key page that looks like a link while the mouse is over it. From the mouse's first
// visit on it shows words of its own ("modifyhotkey"), whatever text was set. GUI thread only; Qt's ownership by
// parent.

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
