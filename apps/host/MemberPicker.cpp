#include "MemberPicker.h"
#include "ui_MemberPicker.h"

#include "ContactBook.h"

MemberPicker::MemberPicker(const ContactBook &book, const QStringList &present, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::MemberPicker>())
{
    ui->setupUi(this);
    for (const ContactBook::Entry &entry : book.entries()) {
        if (present.contains(entry.uid)) {
            continue;
        }
        auto *item = new QListWidgetItem(book.nameOf(entry.uid), ui->listPeople);
        item->setData(Qt::UserRole, entry.uid);
        item->setCheckState(Qt::Unchecked);
    }
}

MemberPicker::~MemberPicker() = default;

QStringList MemberPicker::picked() const
{
    QStringList uids;
    for (int row = 0; row < ui->listPeople->count(); ++row) {
        const QListWidgetItem *item = ui->listPeople->item(row);
        if (item->checkState() == Qt::Checked) {
            uids << item->data(Qt::UserRole).toString();
        }
    }
    return uids;
}

QStringList MemberPicker::pick(const ContactBook &book, const QStringList &present, QWidget *parent)
{
    MemberPicker picker(book, present, parent);
    return picker.exec() == QDialog::Accepted ? picker.picked() : QStringList();
}
