#pragma once

#include "client/ConferenceWish.h"
#include "client/ContactBook.h"

#include <QDialog>
#include <QList>
#include <QStringList>

#include <memory>
#include <optional>

namespace Ui {
class MemberPicker;
}
class QListWidgetItem;

/// The session plug-in's picker: a list of people with check marks, for a new conference or for further members of a
/// running one. It says above the list what the call plug-in has asked. A filter leaves those that it finds, as the
/// search of the contacts does, and takes no mark away; a number that is no contact can be put on the list. In the
/// filter's field Down and Enter lead into the list and Escape empties it. GUI thread.
class MemberPicker : public QDialog
{
    Q_OBJECT

public:
    /// For which question the picker is opened.
    enum Purpose
    {
        NewConference, ///< the people named (user ids) are checked from the start; text and flag can be given, under
                       ///< "More"
        MoreMembers    ///< the people named are in the conference and left out of the list
    };

    /// The item data of a row that holds the user id.
    static constexpr int cUidRole = Qt::UserRole;

    MemberPicker(const ContactBook &book, Purpose purpose, const QStringList &named, QWidget *parent);
    ~MemberPicker() override;

    /// What has been picked: the checked people in the order of the list, text and flag. Without text and flag for
    /// further members.
    ConferenceWish wish() const;

    /// Runs the dialog for a new conference; nothing when it was cancelled or nobody was picked.
    static std::optional<ConferenceWish> pickNew(const ContactBook &book, const QStringList &named, QWidget *parent);

    /// Runs the dialog for further members; returns the picked user ids, none when it was cancelled.
    static QStringList pickMore(const ContactBook &book, const QStringList &present, QWidget *parent);

protected:
    /// The keys of the fields.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpNumber();
    void setUpFilter();
    void filter();
    bool filterKey(int iKey);
    void enterList();
    void addNumbers();
    QString refusal(const QString &strUid) const;
    void pick(const QString &strUid);
    QListWidgetItem *find(const QString &strUid) const;
    void addPeople(const ContactBook &book, Purpose purpose, const QStringList &named);
    void addNumber(const QString &strUid);
    void addPerson(const ContactBook::Entry &entry, bool bChecked);
    void showPicked();

    std::unique_ptr<Ui::MemberPicker> ui;
    const QString m_strOwnUid;
    QStringList m_present;                   // whom the list leaves out
    QList<ContactBook::Entry> m_people;      // those of the list, in its order
    std::optional<Qt::CheckState> m_pressed; // the mark at the press, when that was beside the box
};
