#include "MainWindow.h"
#include "ui_MainWindow.h"

#include "ContactBook.h"
#include "ContactRow.h"
#include "HappeningsPanel.h"
#include "HostPictures.h"
#include "HostSession.h"
#include "MemberPicker.h"
#include "TraceFolder.h"

#include <QCloseEvent>
#include <QShortcut>

MainWindow::MainWindow(HostSession &session, const ContactBook &book)
    : ui(std::make_unique<Ui::MainWindow>()), m_session(session), m_book(book), m_records(book), m_prompt(book),
      m_signature(book)
{
    ui->setupUi(this);
    fillHeader();
    fillContacts();
    setUpRecords();
    setUpHappenings();
    connectSession();
    showNotice();
    showOnline(m_session.isOnline());
    connect(ui->btnOnline, &QPushButton::clicked, this, [this](bool bChecked) { m_session.setOnline(bChecked); });
    connect(ui->btnCallNumber, &QPushButton::clicked, this, &MainWindow::callNumber);
    connect(ui->btnConference, &QPushButton::clicked, this, [this] { startConference(QStringList()); });
    connect(ui->btnCentre, &QPushButton::clicked, &m_session, &HostSession::showConferenceCentre);
    connect(ui->editNumber, &QLineEdit::returnPressed, this, &MainWindow::callNumber);
    connect(ui->editNumber, &QLineEdit::textChanged, this,
            [this](const QString &strText) { ui->btnCallNumber->setEnabled(!strText.trimmed().isEmpty()); });
}

MainWindow::~MainWindow() = default;

void MainWindow::fillHeader()
{
    ui->lblOwnName->setText(m_book.nameOf(ContactBook::ownUid()));
    ui->lblOwnUid->setText(ContactBook::ownUid());
}

void MainWindow::fillContacts()
{
    for (const ContactBook::Entry &entry : m_book.entries()) {
        auto *row = new ContactRow(entry, ui->contactRows);
        connect(row, &ContactRow::callClicked, this, &MainWindow::call);
        ui->contactRowsLayout->addWidget(row);
    }
    ui->contactRowsLayout->addStretch();
}

void MainWindow::setUpRecords()
{
    ui->tableRecords->setModel(&m_records);
    QHeaderView *header = ui->tableRecords->horizontalHeader();
    header->setSectionResizeMode(CallRecordModel::Who, QHeaderView::Stretch);
    header->resizeSection(CallRecordModel::Direction, 130);
    for (const int column :
         {CallRecordModel::Outcome, CallRecordModel::Connected, CallRecordModel::Duration, CallRecordModel::EndedAt}) {
        header->resizeSection(column, 84);
    }
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->tableRecords->verticalHeader()->setDefaultSectionSize(32);
}

void MainWindow::setUpHappenings()
{
    auto *panel = new HappeningsPanel(m_session, TraceFolder::file(), this);
    panel->hide();
    ui->splitter->addWidget(panel);
    ui->happeningsButton->setText(panel->windowTitle());
    connect(panel, &QWidget::windowTitleChanged, ui->happeningsButton, &QAbstractButton::setText);
    connect(ui->happeningsButton, &QAbstractButton::toggled, panel, &QWidget::setVisible);
    const auto *shortcut = new QShortcut(Qt::CTRL + Qt::SHIFT + Qt::Key_H, this);
    connect(shortcut, &QShortcut::activated, ui->happeningsButton, &QAbstractButton::toggle);
}

void MainWindow::connectSession()
{
    HostMailbox &mailbox = m_session.mailbox();
    connect(&m_session, &HostSession::onlineChanged, this, &MainWindow::showOnline);
    connect(&mailbox, &HostMailbox::callFinished, this, &MainWindow::showRecord);
    connect(&mailbox, &HostMailbox::callIncoming, this, [this](const QString &strUid, bool bConference, bool bVideo) {
        statusBar()->showMessage(tr("%1 is calling").arg(m_book.nameOf(strUid)));
        m_prompt.prompt(strUid, bConference, bVideo);
    });
    connect(&mailbox, &HostMailbox::promptWithdrawn, &m_prompt, &IncomingPrompt::withdraw);
    connect(&m_prompt, &IncomingPrompt::answered, this, [this](const QString &strUid, bool bAccept) {
        const QString name = m_book.nameOf(strUid);
        statusBar()->showMessage(bAccept ? tr("Call of %1 accepted").arg(name) : tr("Call of %1 rejected").arg(name));
        m_session.answerCall(bAccept);
    });
    connect(&mailbox, &HostMailbox::conferenceWanted, this, &MainWindow::startConference);
    connect(&mailbox, &HostMailbox::signatureShown, &m_signature, &SignatureCard::showCard);
    connect(&mailbox, &HostMailbox::signatureHidden, &m_signature, &QWidget::hide);
    mailbox.setMemberPicker(
        [this](const QStringList &present) { return MemberPicker::pickMore(m_book, present, this); });
}

void MainWindow::call(const QString &strUid, bool bVideo)
{
    statusBar()->showMessage(tr("Calling %1").arg(m_book.nameOf(strUid)));
    m_session.callUser(strUid, bVideo);
}

void MainWindow::startConference(const QStringList &named)
{
    if (const std::optional<ConferenceWish> wish = MemberPicker::pickNew(m_book, named, this)) {
        statusBar()->showMessage(tr("Starting a conference with %n other(s)", nullptr, wish->uids.size()));
        m_session.callConference(*wish);
    }
}

void MainWindow::callNumber()
{
    const QString number = ui->editNumber->text().trimmed();
    if (number.isEmpty()) {
        return;
    }
    ui->editNumber->clear();
    call(number, false);
}

void MainWindow::showOnline(bool bOnline)
{
    const QString name = m_book.nameOf(ContactBook::ownUid());
    ui->lblOwnHead->setPixmap(HostPictures::head(name, ContactBook::ownUid(), 44, bOnline,
                                                 m_book.card(ContactBook::ownUid())->m_strPhotoPath));
    ui->btnOnline->setChecked(bOnline);
    ui->btnOnline->setText(bOnline ? tr("Online") : tr("Offline"));
    statusBar()->showMessage(bOnline ? tr("Signed in as %1").arg(name) : tr("Signed out"));
}

void MainWindow::showNotice()
{
    const QStringList &reports = m_session.store().reports();
    ui->lblNotice->setText(reports.join(QLatin1Char('\n')));
    ui->lblNotice->setVisible(!reports.isEmpty());
}

void MainWindow::showRecord(const CallRecord &record)
{
    m_records.add(record);
    const QString words = tr("Call with %1: %2").arg(m_book.nameOf(record.uid), outcomeWord(record.result));
    statusBar()->showMessage(record.connected ? words + tr(" after %1").arg(durationText(record.seconds)) : words);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_prompt.hide();
    m_signature.hide();
    m_session.quit();
    QMainWindow::closeEvent(event);
}
