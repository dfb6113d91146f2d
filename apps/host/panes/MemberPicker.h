#pragma once

#include "client/ConferenceWish.h"
#include "client/ContactBook.h"

#include <QDialog>
#include <QStringList>

#include <memory>
#include <optional>

namespace Ui {
class MemberPicker;
}

/// The session plug-in's picker: a list of people with check marks, for a new conference or for further members of a
/// running one. It says above the list what the call plug-in has asked. GUI thread.
class MemberPicker : public QDialog
{
    Q_OBJECT

public:
    /// For which question the picker is opened.
    enum Purpose
    {
        NewConference, ///< the people named (user ids) are checked from the start; text and flag can be given
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

private:
    void addPeople(const ContactBook &book, Purpose purpose, const QStringList &named);
    void addPerson(const ContactBook::Entry &entry, bool bChecked);
    void showPicked();

    std::unique_ptr<Ui::MemberPicker> ui;
    std::optional<Qt::CheckState> m_pressed; // the mark at the press, when that was beside the box
};
