// The conference centre by keys, and what a screen reader calls its buttons. The form gives those no focus, so they
// have keys of their own.

#include "ui_VoiceConferenceWidget.h"

#include "ui/VoiceConferenceWidget.h"
#include "widgets/FocusRing.h"

#include <QKeyEvent>

namespace {

const QKeySequence cBackKeys(QStringLiteral("Alt+Left"));
const QKeySequence cCreateKeys(QStringLiteral("Ctrl+N"));
const QKeySequence cCloseKeys(QStringLiteral("Ctrl+W"));

} // namespace

void CVoiceConferenceWidget::setUpKeys()
{
    ui->backBtn->setShortcut(cBackKeys);
    ui->creatConferenceBtn->setShortcut(cCreateKeys);
    ui->btnClose->setCheckable(false);
    ui->btnClose->setShortcut(cCloseKeys);
    nameParts();
}

void CVoiceConferenceWidget::nameParts()
{
    ui->backBtn->setAccessibleName(tr("Back to the past conferences"));
    ui->creatConferenceBtn->setAccessibleName(tr("Start a voice conference"));
}

bool CVoiceConferenceWidget::isFocusShown() const
{
    const auto *pRing = ui->contentStackedWidget->currentWidget()->findChild<FocusRing *>();
    return pRing != nullptr && pRing->isShown();
}

void CVoiceConferenceWidget::showFocus()
{
    if (auto *pRing = ui->contentStackedWidget->currentWidget()->findChild<FocusRing *>()) {
        static_cast<QWidget *>(pRing->parent())->setFocus();
        pRing->heedKey();
    }
}

void CVoiceConferenceWidget::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
    } else if (ui->backBtn->isVisible()) {
        slot_BackToConfListPage();
    } else {
        close();
    }
}
