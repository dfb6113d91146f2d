#pragma once

#include <QWidget>

#include <memory>

class ContactBook;

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
    /// Gives the focus to the search field.
    void startSearch();
    /// Draws the contacts in the colours of the current skin.
    void takeSkin();

signals:
    void callWanted(const QString &strUid, bool bVideo);
    void conferenceWanted();

protected:
    void changeEvent(QEvent *event) override;
    /// The search field's keys.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void search();
    void callNumber();
    void nameClearButton();

    std::unique_ptr<Ui::ContactPane> ui;
};
