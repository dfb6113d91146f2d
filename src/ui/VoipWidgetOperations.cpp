// The call window's plain operations, and the one way in which it closes.

#include "ui/VoipWidget.h"

#include "ui_VoipWidget.h"

#include <QCloseEvent>

void CVoipWidget::show()
{
    showNormal();
}

void CVoipWidget::UserOffline()
{
    close();
}

void CVoipWidget::SetVoipCallHangUpMessage()
{
    ClearCallInfoData();
}

int CVoipWidget::GetCurrentCallStatus() const
{
    return m_iCallStatus;
}

QWidget *CVoipWidget::getWebEngineView() const
{
    return nullptr;
}

void CVoipWidget::addVoipWidget(QWidget *pWidget)
{
    if (pWidget != nullptr)
        ui->WebViewLayout->addWidget(pWidget);
}

QString CVoipWidget::GetCallTimeString(qulonglong iSeconds) const
{
    const auto twoDigits = [](qulonglong iPart) { return QStringLiteral("%1").arg(iPart, 2, 10, QLatin1Char('0')); };
    return twoDigits(iSeconds / 3600) + QLatin1Char(':') + twoDigits(iSeconds / 60 % 60) + QLatin1Char(':') +
           twoDigits(iSeconds % 60);
}

void CVoipWidget::closeEvent(QCloseEvent *event)
{
    ClearCallInfoData();
    clearUI();
    emit signal_HangupCurrentCall();
    emit signal_ClearCallData();
    QWidget::closeEvent(event);
}
