#include "panes/MemberPicker.h"

#include "ui_MemberPicker.h"

#include "client/ContactSearch.h"
#include "client/HostPictures.h"
#include "client/HostSkins.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int cHeadSize = 32;
// What a window's frame and the desktop's edges need around the picker.
constexpr QSize cScreenMargin(20, 50);

} // namespace

MemberPicker::MemberPicker(const ContactBook &book, Purpose purpose, const QStringList &named, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::MemberPicker>()), m_strOwnUid(book.ownUid())
{
    ui->setupUi(this);
    resize(size().boundedTo(QGuiApplication::primaryScreen()->availableSize() - cScreenMargin));
    ui->listPeople->setIconSize(QSize(cHeadSize, cHeadSize));
    const bool fresh = purpose == NewConference;
    setWindowTitle(fresh ? tr("New conference") : tr("Invite to the conference"));
    ui->btnMore->setVisible(fresh);
    QStringList names;
    std::transform(named.begin(), named.end(), std::back_inserter(names),
                   [&](const QString &uid) { return book.nameOf(uid); });
    const QString who = names.join(QStringLiteral(", "));
    ui->lblAsked->setText(!fresh          ? tr("Already in the conference: %1").arg(who)
                          : who.isEmpty() ? tr("Whom to call together?")
                                          : tr("Asked for a conference with: %1").arg(who));
    m_present = fresh ? QStringList() : named;
    addPeople(book, purpose, named);
    setUpFilter();
    setUpNumber();
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

void MemberPicker::setUpFilter()
{
    // The button is the edit field's own part, so the form cannot name it.
    auto *button = ui->editFilter->findChild<QToolButton *>();
    button->setObjectName(QStringLiteral("btnClearFilter"));
    button->setAccessibleName(tr("Clear the filter"));
    button->setToolTip(button->accessibleName());
    ui->editFilter->installEventFilter(this);
    connect(ui->editFilter, &QLineEdit::textChanged, this, &MemberPicker::filter);
}

void MemberPicker::setUpNumber()
{
    const auto show = [this] {
        const bool isEmpty = ui->editNumber->text().trimmed().isEmpty();
        ui->btnAdd->setEnabled(!isEmpty);
        ui->btnAdd->setToolTip(isEmpty ? tr("Enter a number first") : tr("Put it on the list"));
    };
    ui->editNumber->installEventFilter(this);
    connect(ui->editNumber, &QLineEdit::textChanged, this, show);
    connect(ui->btnAdd, &QPushButton::clicked, this, &MemberPicker::addNumbers);
    show();
}

void MemberPicker::filter()
{
    int found = 0;
    for (int row = 0; row < m_people.size(); ++row) {
        const bool isFound = ContactSearch::finds(m_people.at(row), ui->editFilter->text());
        ui->listPeople->item(row)->setHidden(!isFound);
        found += isFound ? 1 : 0;
    }
    ui->listPeople->setVisible(found > 0);
    ui->lblNoMatch->setVisible(found == 0);
}

/// Gives the focus to the list, with the first of those that are shown as the current one.
void MemberPicker::enterList()
{
    for (int row = 0; row < ui->listPeople->count(); ++row) {
        if (!ui->listPeople->item(row)->isHidden()) {
            ui->listPeople->setCurrentRow(row);
            ui->listPeople->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

bool MemberPicker::filterKey(int iKey)
{
    switch (iKey) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        enterList();
        return true;
    case Qt::Key_Escape:
        // With nothing to empty it is the window's key.
        if (!ui->editFilter->text().isEmpty()) {
            ui->editFilter->clear();
            return true;
        }
        return false;
    default:
        return false;
    }
}

bool MemberPicker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == ui->editFilter) {
        return filterKey(key);
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && ui->btnAdd->isEnabled()) {
        // Elsewhere Enter invites.
        addNumbers();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

/// Why that number cannot be invited; empty when it can.
QString MemberPicker::refusal(const QString &strUid) const
{
    return strUid == m_strOwnUid        ? tr("%1 is your own number.").arg(strUid)
           : m_present.contains(strUid) ? tr("%1 is in the conference already.").arg(strUid)
                                        : QString();
}

void MemberPicker::addNumbers()
{
    // No user id has such a character: the store keeps them in a list with commas.
    static const QRegularExpression between(QStringLiteral("[,;，；、\\s]+"));
    const QStringList numbers = ui->editNumber->text().split(between, Qt::SkipEmptyParts);
    QStringList refused;
    QStringList reasons;
    for (const QString &number : numbers) {
        const QString uid = ContactBook::uidOf(number);
        const QString reason = refusal(uid);
        if (!reason.isEmpty()) {
            refused << number;
            reasons << reason;
        } else if (!uid.isEmpty()) {
            pick(uid);
        }
    }
    ui->editNumber->setText(refused.join(QLatin1Char(' ')));
    ui->lblNumberNote->setText(reasons.join(QLatin1Char(' ')));
    ui->lblNumberNote->setVisible(!reasons.isEmpty());
    if (!reasons.isEmpty()) {
        QAccessibleEvent alert(ui->lblNumberNote, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

/// Checks that person, who is put on the list where needed, and shows it.
void MemberPicker::pick(const QString &strUid)
{
    if (find(strUid) == nullptr) {
        addNumber(strUid);
    }
    QListWidgetItem *item = find(strUid);
    item->setCheckState(Qt::Checked);
    ui->editFilter->clear();
    ui->listPeople->setCurrentItem(item);
    ui->listPeople->scrollToItem(item);
}

QListWidgetItem *MemberPicker::find(const QString &strUid) const
{
    const auto found = std::find_if(m_people.begin(), m_people.end(),
                                    [&](const ContactBook::Entry &entry) { return entry.uid == strUid; });
    return found == m_people.end() ? nullptr : ui->listPeople->item(int(std::distance(m_people.begin(), found)));
}

void MemberPicker::addPeople(const ContactBook &book, Purpose purpose, const QStringList &named)
{
    const bool fresh = purpose == NewConference;
    for (const ContactBook::Entry &entry : book.entries()) {
        if (fresh || !named.contains(entry.uid)) {
            addPerson(entry, named.contains(entry.uid));
        }
    }
    for (const QString &uid : named) {
        if (fresh && find(uid) == nullptr) {
            addNumber(uid);
        }
    }
}

/// Puts somebody on the list, checked, of whom nothing is known but the number.
void MemberPicker::addNumber(const QString &strUid)
{
    addPerson({strUid, strUid, "", false, Presence::Offline, QString()}, true);
}

void MemberPicker::addPerson(const ContactBook::Entry &entry, bool bChecked)
{
    QStringList words{entry.shownName(), entry.uid, entry.alternative()};
    words.removeAll(QString());
    words.removeDuplicates();
    m_people.append(entry);
    auto *item = new QListWidgetItem(words.join(QStringLiteral(" · ")), ui->listPeople);
    item->setIcon(QIcon(HostPictures::head(entry, cHeadSize)));
    item->setData(cUidRole, entry.uid);
    item->setData(Qt::AccessibleTextRole, withPresence(item->text(), entry.presence));
    item->setCheckState(bChecked ? Qt::Checked : Qt::Unchecked);
}

void MemberPicker::showPicked()
{
    const int count = wish().uids.size();
    ui->btnInvite->setEnabled(count > 0);
    ui->btnInvite->setText(count > 0 ? tr("&Invite (%1)").arg(count) : tr("&Invite"));
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
