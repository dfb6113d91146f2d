#pragma once

#include "client/ContactBook.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ContactRow;
}

/// One contact in the list: head, name, presence, what calling it does, and the two call buttons. A double click or
/// Enter calls, Right and Left go to the buttons and back, the right mouse button or the Menu key opens a menu of both
/// calls. GUI thread.
class ContactRow : public QWidget
{
    Q_OBJECT

public:
    /// The row's object name is the user id.
    ContactRow(const ContactBook::Entry &entry, QWidget *parent);
    ~ContactRow() override;

    const ContactBook::Entry &entry() const { return m_entry; }

    /// Shows what is known of the same person now.
    void setEntry(const ContactBook::Entry &entry);

    /// Whether the row and its buttons are stations of the Tab key: those of one row of a list are.
    void setTabStop(bool bStop);

    /// Makes row and buttons follow `before` in the order of the Tab key; returns the last of them.
    QWidget *followInTabOrder(QWidget *before);

    /// Says why this contact cannot be called now: the buttons are disabled with it in their tips. Empty: it can be.
    void setObstacle(const QString &strReason);

    /// Draws the buttons in the colours of the current skin.
    void takeSkin();

signals:
    /// The user wants to call this contact, by voice or video.
    void callClicked(const QString &strUid, bool bVideo);
    /// The row, or a button in it, has got the focus.
    void entered();

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

    /// Leaves the keys that move through the list to the list when a button has the focus.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showEntry();
    void showWords();
    bool goSideways(int iKey);

    std::unique_ptr<Ui::ContactRow> ui;
    ContactBook::Entry m_entry;
    QString m_strObstacle;
};
