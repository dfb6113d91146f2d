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
    // QMessageBox gives buttons that are added no result of their own, so accepted() is sent from here.
    connect(quit, &QAbstractButton::clicked, this, &QDialog::accepted);
}
