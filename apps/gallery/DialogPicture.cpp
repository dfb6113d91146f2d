#include "DialogPicture.h"

#include "DialogModes.h"

#include "widgets/ErrorMessage.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

QPixmap take(ErrorMessage &dialog, const DialogMode &mode)
{
    if (mode.act != nullptr) {
        mode.act(dialog);
    }
    const QPixmap picture = dialog.grab();
    dialog.close();
    return picture;
}

} // namespace

std::unique_ptr<ErrorMessage> DialogPicture::create(QWidget *parent)
{
    return std::make_unique<ErrorMessage>(QCoreApplication::translate("CVoipWidget", "sure"),
                                          QCoreApplication::translate("CVoipWidget", "cancel"), parent);
}

QPixmap DialogPicture::of(const DialogMode &mode)
{
    const std::unique_ptr<ErrorMessage> dialog = create(nullptr);
    dialog->setAttribute(Qt::WA_DontShowOnScreen);
    QPixmap picture;
    QTimer::singleShot(0, dialog.get(), [&] { picture = take(*dialog, mode); });
    mode.run(*dialog);
    // The hot key modes do not wait: the dialog is still up.
    return dialog->isVisible() ? take(*dialog, mode) : picture;
}
