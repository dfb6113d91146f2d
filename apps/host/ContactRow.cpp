#include "ContactRow.h"
#include "ui_ContactRow.h"

#include "HostPictures.h"
#include "model/AvatarFiles.h"

ContactRow::ContactRow(const ContactBook::Entry &entry, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::ContactRow>())
{
    ui->setupUi(this);
    setObjectName(entry.uid);
    // A stranger goes by the number: who that is, the client does not know yet.
    const QString name = entry.known ? entry.nick : entry.uid;
    ui->lblHead->setPixmap(HostPictures::head(entry.known ? entry.nick : QStringLiteral("?"), entry.uid, 40,
                                              entry.online,
                                              entry.known ? AvatarFiles::systemAvatar(entry.photo) : QString()));
    ui->lblName->setText(name);
    ui->lblDetail->setText(entry.known ? entry.uid + QStringLiteral(" · ") + entry.alternative
                                       : tr("not a contact") + QStringLiteral(" · ") + entry.alternative);
    ui->btnCall->setIcon(HostPictures::call());
    ui->btnVideo->setIcon(HostPictures::video());
    const QString uid = entry.uid;
    connect(ui->btnCall, &QToolButton::clicked, this, [this, uid] { emit callClicked(uid, false); });
    connect(ui->btnVideo, &QToolButton::clicked, this, [this, uid] { emit callClicked(uid, true); });
}

ContactRow::~ContactRow() = default;
