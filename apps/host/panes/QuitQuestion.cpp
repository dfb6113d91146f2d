#include "panes/QuitQuestion.h"

#include <QAbstractButton>
#include <QPushButton>

QuitQuestion::QuitQuestion(QWidget *parent)
    : QMessageBox(QMessageBox::Question, tr("Quit"), tr("A call is on."), QMessageBox::NoButton, parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("QuitQuestion"));
    setInformativeText(tr("Quitting ends it."));
    const QPushButton *quit = addButton(tr("&Quit"), QMessageBox::AcceptRole);
    QPushButton *stay = addButton(tr("&Keep the call"), QMessageBox::RejectRole);
    setDefaultButton(stay);
    setEscapeButton(stay);
    // The box's own result for buttons that are not its own says nothing.
    connect(quit, &QAbstractButton::clicked, this, &QDialog::accepted);
}
