#pragma once

#include <QScrollArea>

/// A page of a window, as large as what stands on it wants to be; where the window has less room it is scrolled down.
/// GUI thread.
class PageArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit PageArea(QWidget *parent = nullptr);

    /// Of all lines that are broken at the width that the page wants.
    QSize sizeHint() const override;

    /// Wide enough never to be scrolled sideways.
    QSize minimumSizeHint() const override;

protected:
    /// Keeps the page off the bar by which it is scrolled.
    bool eventFilter(QObject *watched, QEvent *event) override;
};
