#pragma once

#include "client/ContactBook.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ContactPane;
}

/// The left half of the main window: search field, contacts, and below them a number to call and the way to a
/// conference. In the search field Down and Enter lead into the list and Escape empties it. GUI thread.
class ContactPane : public QWidget
{
    Q_OBJECT

public:
    explicit ContactPane(QWidget *parent = nullptr);
    ~ContactPane() override;

    /// Puts the book's contacts into the list.
    void fill(const ContactBook &book);

    /// Shows what is known of that contact now.
    void showPerson(const ContactBook::Entry &entry);

    /// Gives the focus to the search field.
    void startSearch();

    /// Says why nobody can be called now: every button that would is disabled with it in its tip. Empty when one can.
    void setObstacle(const QString &strReason);

    /// Draws the contacts in the colours of the current skin.
    void takeSkin();

signals:
    /// The user wants to call `strUid`, of a contact or as it was typed, by voice or video.
    void callWanted(const QString &strUid, bool bVideo);
    /// The button for a new conference was pressed.
    void conferenceWanted();

protected:
    void changeEvent(QEvent *event) override;

    /// The search field's keys.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void search();
    void showFound(int iRows);
    void callNumber();
    void nameClearButton();
    void showObstacle();

    std::unique_ptr<Ui::ContactPane> ui;
    QString m_strObstacle;
};
