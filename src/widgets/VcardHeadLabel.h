#pragma once

// The label of a contact's round head picture. GUI thread only; Qt's ownership by parent applies.

#include <QLabel>

class VcardHeadLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label. `parent` may be null.
    explicit VcardHeadLabel(QWidget *parent = nullptr);

    /// Shows the picture at `path`, cut to a circle as wide as the label; call it again after a change of the width. A
    /// file whose suffix does not tell what it holds is renamed. A path that holds no picture gives the default head.
    void setHeadPictrue(const QString &path);
};
