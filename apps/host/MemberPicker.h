#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

class ContactBook;

namespace Ui {
class MemberPicker;
}

/// The session plug-in's picker: a list of people with check marks. GUI thread.
class MemberPicker : public QDialog
{
    Q_OBJECT

public:
    /// Lists everybody of the book but `present` (user ids), unchecked.
    MemberPicker(const ContactBook &book, const QStringList &present, QWidget *parent);
    ~MemberPicker() override;

    /// The checked people's user ids, in the order of the list.
    QStringList picked() const;

    /// Runs the dialog; returns the picked user ids, none when it was cancelled.
    static QStringList pick(const ContactBook &book, const QStringList &present, QWidget *parent);

private:
    std::unique_ptr<Ui::MemberPicker> ui;
};
