#include "panes/CallServiceBar.h"

#include "ui_CallServiceBar.h"

#include "client/CallProcess.h"
#include "client/CallService.h"

#include <QAccessible>

CallServiceBar::CallServiceBar(CallService &service, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::CallServiceBar>()), m_service(service)
{
    ui->setupUi(this);
    // A plain widget paints its sheet's ground only when it is told to.
    setAttribute(Qt::WA_StyledBackground);
    connect(&m_service, &CallService::changed, this, &CallServiceBar::showState);
    connect(ui->btnStartService, &QPushButton::clicked, &m_service, &CallService::startNow);
    showState();
}

CallServiceBar::~CallServiceBar() = default;

void CallServiceBar::showState()
{
    switch (m_service.state()) {
    case CallService::Lost:
        return show(lostWords(), true);
    case CallService::GivenUp:
        return show(givenUpWords(), true);
    case CallService::Returning:
        return show(tr("Call service lost for a moment: it runs again, and the connection comes back by itself within "
                       "a minute."),
                    false);
    case CallService::Unregistered:
        return show(tr("The call service has not registered you, so nobody can call you. Sign out and in again."),
                    false);
    default:
        hide();
    }
}

void CallServiceBar::show(const QString &strText, bool bButton)
{
    const bool isNews = isHidden() || ui->btnStartService->isHidden() == bButton;
    // A selection of the person's stays while nothing changes.
    if (ui->lblService->text() != strText) {
        ui->lblService->setText(strText);
    }
    ui->btnStartService->setVisible(bButton);
    setVisible(true);
    if (isNews) {
        setAccessibleName(strText);
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

QString CallServiceBar::lostWords() const
{
    const int tries = m_service.attempts();
    const int seconds = m_service.secondsToNext();
    const QString doing = seconds == 0 ? tr("It is being started again (try %1 of %2).")
                                       : tr("It is started again in %n second(s) (try %1 of %2).", nullptr, seconds);
    const int number = qMin(tries, seconds == 0 ? qMax(1, m_service.attempt()) : m_service.attempt() + 1);
    return tr("Call service lost: no calls for the moment, and one that is still on the screen is over. %1 The client "
              "itself need not be restarted.")
        .arg(doing.arg(number).arg(tries));
}

QString CallServiceBar::givenUpWords() const
{
    const QString why = m_service.isProgramMissing()
                            ? tr("The program cannot be started: %1").arg(CallProcess::program())
                            : tr("It was started %n time(s) and did not stay.", nullptr, m_service.attempt());
    return tr("Call service lost, and given up. %1 Start it by the button; if that does not help, quit the client and "
              "start it again.")
        .arg(why);
}

void CallServiceBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showState();
    }
    QWidget::changeEvent(event);
}
