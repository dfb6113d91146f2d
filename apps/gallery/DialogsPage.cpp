#include "DialogsPage.h"

#include "DialogModes.h"
#include "DialogPicture.h"

#include "widgets/ErrorMessage.h"
#include "widgets/PushButtonEx.h"

#include <QLabel>

DialogsPage::DialogsPage(QWidget *parent) : Sheet(parent)
{
    section(QStringLiteral("ErrorMessage"), {QStringLiteral("open"), QStringLiteral("look"), QStringLiteral("result")});
    for (const DialogMode &mode : DialogModes::all()) {
        addMode(mode);
    }
}

void DialogsPage::addMode(const DialogMode &mode)
{
    auto *button = new PushButtonEx;
    button->setFixedSize(70, 30);
    button->setText(QStringLiteral("Open"));
    auto *result = new QLabel;
    connect(button, &PushButtonEx::clicked, this, [this, &mode, result] { open(mode, result); });
    row(QString::fromLatin1(mode.use), {button, picture(DialogPicture::of(mode)), result});
}

void DialogsPage::open(const DialogMode &mode, QLabel *result)
{
    std::unique_ptr<ErrorMessage> dialog = DialogPicture::create(window());
    connect(dialog.get(), &ErrorMessage::signal_OpenSysSetUi, result,
            [result] { result->setText(QStringLiteral("the settings were asked for")); });
    const QString returned = mode.run(*dialog);
    result->setText(returned);
    if (dialog->isVisible()) {
        // A hot key mode: it belongs to the window and goes when it is closed.
        dialog.release()->setAttribute(Qt::WA_DeleteOnClose);
    }
}
