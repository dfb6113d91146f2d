#include "panes/MemberPicker.h"
#include "ui_MemberPicker.h"

#include "client/HostPictures.h"
#include "client/HostSkins.h"
#include "model/AvatarFiles.h"

#include <QPushButton>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int cHeadSize = 32;

} // namespace

MemberPicker::MemberPicker(const ContactBook &book, Purpose purpose, const QStringList &named, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::MemberPicker>())
{
    ui->setupUi(this);
    ui->listPeople->setIconSize(QSize(cHeadSize, cHeadSize));
    const bool fresh = purpose == NewConference;
    setWindowTitle(fresh ? tr("New conference") : tr("Invite to the conference"));
    ui->passedOn->setVisible(fresh);
    QStringList names;
    std::transform(named.begin(), named.end(), std::back_inserter(names),
                   [&](const QString &uid) { return book.nameOf(uid); });
    const QString who = names.join(QStringLiteral(", "));
    ui->lblAsked->setText(!fresh          ? tr("Already in the conference: %1").arg(who)
                          : who.isEmpty() ? tr("Whom to call together?")
                                          : tr("Asked for a conference with: %1").arg(who));
    addPeople(book, purpose, named);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnInvite"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    HostSkins::dress(this);
    connect(ui->listPeople, &QListWidget::itemChanged, this, &MemberPicker::showPicked);
    // A click on the name counts as one on the box. The box turns by itself and does not report the press.
    connect(ui->listPeople, &QListWidget::itemPressed, this,
            [this](const QListWidgetItem *item) { m_pressed = item->checkState(); });
    connect(ui->listPeople, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        if (item->checkState() == std::exchange(m_pressed, std::nullopt)) {
            item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        }
    });
    showPicked();
}

MemberPicker::~MemberPicker() = default;

void MemberPicker::addPeople(const ContactBook &book, Purpose purpose, const QStringList &named)
{
    const bool fresh = purpose == NewConference;
    for (const ContactBook::Entry &entry : book.entries()) {
        if (fresh || !named.contains(entry.uid)) {
            addPerson(entry, named.contains(entry.uid));
        }
    }
    for (const QString &uid : named) {
        const auto isThis = [&](const ContactBook::Entry &entry) { return entry.uid == uid; };
        if (fresh && std::none_of(book.entries().begin(), book.entries().end(), isThis)) {
            addPerson({uid, uid, "", false, Presence::Offline, QString()}, true);
        }
    }
}

void MemberPicker::addPerson(const ContactBook::Entry &entry, bool bChecked)
{
    const QString words =
        *entry.habit == '\0' ? entry.nick : entry.nick + QStringLiteral(" · ") + entry.alternative();
    auto *item = new QListWidgetItem(words, ui->listPeople);
    item->setIcon(QIcon(
        HostPictures::head(entry.nick, entry.uid, cHeadSize, entry.presence, AvatarFiles::systemAvatar(entry.photo))));
    item->setData(cUidRole, entry.uid);
    item->setData(Qt::AccessibleTextRole, QStringLiteral("%1, %2").arg(words, presenceWord(entry.presence)));
    item->setCheckState(bChecked ? Qt::Checked : Qt::Unchecked);
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
            wish.uids << item->data(cUidRole).toString();
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
