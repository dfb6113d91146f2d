#pragma once

// The label of a contact's round head picture. GUI thread only; Qt's ownership by parent applies.

#include <QLabel>

class VcardHeadLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label. `parent` may be null.
    explicit VcardHeadLabel(QWidget *parent = nullptr);

    /// Shows the picture at `path`, cut to a circle as wide as the label. A path that holds no picture gives the
    /// neutral head.
    void setHeadPictrue(const QString &path);
};
