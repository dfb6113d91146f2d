#include "panes/ContactPane.h"

#include "ui_ContactPane.h"

#include <QKeyEvent>
#include <QToolButton>

ContactPane::ContactPane(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::ContactPane>())
{
    ui->setupUi(this);
    ui->editSearch->installEventFilter(this);
    nameClearButton();
    showObstacle();
    connect(ui->editSearch, &QLineEdit::textChanged, this, &ContactPane::search);
    connect(ui->contactArea, &ContactList::callClicked, this, &ContactPane::callWanted);
    connect(ui->contactArea, &ContactList::leftUpwards, this, &ContactPane::startSearch);
    connect(ui->btnConference, &QPushButton::clicked, this, &ContactPane::conferenceWanted);
    connect(ui->btnCallNumber, &QPushButton::clicked, this, &ContactPane::callNumber);
    connect(ui->editNumber, &QLineEdit::returnPressed, this, &ContactPane::callNumber);
    connect(ui->editNumber, &QLineEdit::textChanged, this, &ContactPane::showObstacle);
}

ContactPane::~ContactPane() = default;

void ContactPane::fill(const ContactBook &book)
{
    ui->contactArea->add(book.entries());
    ui->contactArea->followInTabOrder(ui->editSearch);
    search();
}

void ContactPane::startSearch()
{
    ui->editSearch->setFocus(Qt::ShortcutFocusReason);
    ui->editSearch->selectAll();
}

void ContactPane::takeSkin()
{
    ui->contactArea->takeSkin();
}

void ContactPane::search()
{
    showFound(ui->contactArea->filter(ui->editSearch->text()));
}

void ContactPane::showPerson(const ContactBook::Entry &entry)
{
    showFound(ui->contactArea->showPerson(entry));
}

void ContactPane::showFound(int iRows)
{
    ui->contactArea->setVisible(iRows > 0);
    ui->lblNoMatch->setVisible(iRows == 0);
}

void ContactPane::callNumber()
{
    const QString number = ui->editNumber->text().trimmed();
    // The number stays where it cannot be called now.
    if (number.isEmpty() || !m_strObstacle.isEmpty()) {
        return;
    }
    ui->editNumber->clear();
    emit callWanted(number, false);
}

void ContactPane::setObstacle(const QString &strReason)
{
    m_strObstacle = strReason;
    ui->contactArea->setObstacle(strReason);
    showObstacle();
}

void ContactPane::showObstacle()
{
    const bool bFree = m_strObstacle.isEmpty();
    const bool bNumber = !ui->editNumber->text().trimmed().isEmpty();
    ui->btnConference->setEnabled(bFree);
    ui->btnConference->setToolTip(bFree ? tr("Call several people together") : m_strObstacle);
    ui->btnCallNumber->setEnabled(bFree && bNumber);
    ui->btnCallNumber->setToolTip(!bFree    ? m_strObstacle
                                  : bNumber ? tr("Call this number")
                                            : tr("Enter a number first"));
    for (QWidget *button : {static_cast<QWidget *>(ui->btnConference), static_cast<QWidget *>(ui->btnCallNumber)}) {
        button->setAccessibleDescription(button->toolTip());
    }
}

void ContactPane::nameClearButton()
{
    // The button is the edit field's own part, so the form cannot name it.
    auto *button = ui->editSearch->findChild<QToolButton *>();
    button->setObjectName(QStringLiteral("btnClearSearch"));
    button->setAccessibleName(tr("Clear the search"));
    button->setToolTip(button->accessibleName());
}

void ContactPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        nameClearButton();
        showObstacle();
    }
    QWidget::changeEvent(event);
}

bool ContactPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        ui->contactArea->enter();
        return true;
    case Qt::Key_Escape:
        ui->editSearch->clear();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}
