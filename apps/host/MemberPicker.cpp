#include "MemberPicker.h"
#include "ui_MemberPicker.h"

#include "ContactBook.h"
#include "HostPictures.h"

#include <QPushButton>

#include <algorithm>

namespace {

constexpr int uidRole = Qt::UserRole;
constexpr int headSize = 32;

} // namespace

MemberPicker::MemberPicker(const ContactBook &book, Purpose purpose, const QStringList &named, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::MemberPicker>()), m_book(book)
{
    ui->setupUi(this);
    ui->listPeople->setIconSize(QSize(headSize, headSize));
    const bool fresh = purpose == NewConference;
    setWindowTitle(fresh ? tr("New conference") : tr("Invite to the conference"));
    ui->passedOn->setVisible(fresh);
    QStringList names;
    std::transform(named.begin(), named.end(), std::back_inserter(names),
                   [&](const QString &uid) { return book.nameOf(uid); });
    ui->lblAsked->setText((fresh ? tr("A new conference with: %1") : tr("Already in the conference: %1"))
                              .arg(names.isEmpty() ? tr("nobody yet") : names.join(QStringLiteral(", "))));
    for (const ContactBook::Entry &entry : book.entries()) {
        if (fresh || !named.contains(entry.uid)) {
            addPerson(entry.uid, entry.alternative, named.contains(entry.uid));
        }
    }
    if (fresh) {
        const auto isListed = [&](const QString &uid) {
            return std::any_of(book.entries().begin(), book.entries().end(),
                               [&](const ContactBook::Entry &entry) { return entry.uid == uid; });
        };
        for (const QString &uid : named) {
            if (!isListed(uid)) {
                addPerson(uid, QString(), true);
            }
        }
    }
    connect(ui->listPeople, &QListWidget::itemChanged, this, &MemberPicker::showPicked);
    showPicked();
}

MemberPicker::~MemberPicker() = default;

void MemberPicker::addPerson(const QString &strUid, const QString &strDetail, bool bChecked)
{
    const QString name = m_book.nameOf(strUid);
    auto *item = new QListWidgetItem(strDetail.isEmpty() ? name : name + QStringLiteral(" · ") + strDetail);
    item->setIcon(QIcon(HostPictures::head(name, strUid, headSize, true)));
    item->setData(uidRole, strUid);
    item->setCheckState(bChecked ? Qt::Checked : Qt::Unchecked);
    ui->listPeople->addItem(item);
}

void MemberPicker::showPicked()
{
    const int count = wish().uids.size();
    QPushButton *ok = ui->buttonBox->button(QDialogButtonBox::Ok);
    ok->setEnabled(count > 0);
    ok->setText(count > 0 ? tr("Invite (%1)").arg(count) : tr("Invite"));
}

ConferenceWish MemberPicker::wish() const
{
    ConferenceWish wish;
    for (int row = 0; row < ui->listPeople->count(); ++row) {
        const QListWidgetItem *item = ui->listPeople->item(row);
        if (item->checkState() == Qt::Checked) {
            wish.uids << item->data(uidRole).toString();
        }
    }
    wish.text = ui->editText->text();
    wish.flag = ui->boxFlag->isChecked();
    return wish;
}

std::optional<ConferenceWish> MemberPicker::pickNew(const ContactBook &book, const QStringList &named, QWidget *parent)
{
    MemberPicker picker(book, NewConference, named, parent);
    return picker.exec() == QDialog::Accepted ? std::make_optional(picker.wish()) : std::nullopt;
}

QStringList MemberPicker::pickMore(const ContactBook &book, const QStringList &present, QWidget *parent)
{
    MemberPicker picker(book, MoreMembers, present, parent);
    return picker.exec() == QDialog::Accepted ? picker.wish().uids : QStringList();
}
