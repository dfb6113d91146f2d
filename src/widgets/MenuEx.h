#pragma once

// The kit's pop-up menu: a QMenu with three fixed looks. The right mouse button never triggers an entry.
// GUI thread only; Qt's ownership by parent applies.

#include <QMenu>

class CMenuEx : public QMenu
{
    Q_OBJECT

public:
    /// The looks. Every other value means the plain menu.
    enum MenuType : int
    {
        /// Entries with an icon and room for it.
        IconMenu = 0,
        /// Entries with a tick.
        CheckMenu = 1,
        /// Texts only.
        PlainMenu = 2
    };

    /// An empty plain menu without a title. `parent` may be null.
    explicit CMenuEx(QWidget *parent = nullptr);

    /// An empty plain menu with `title`, which may be empty. `parent` may be null.
    explicit CMenuEx(const QString &title, QWidget *parent = nullptr);

    /// Gives the menu the style sheet of the look `type`.
    void setMenuType(MenuType type);

protected:
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};
