#include "panes/CallServiceBar.h"

#include "ui_CallServiceBar.h"

#include "client/CallProcess.h"
#include "client/CallService.h"
#include "history/CallSentences.h"
#include "history/CallWatch.h"

#include <QAccessible>

CallServiceBar::CallServiceBar(CallService &service, const CallWatch &calls, const ContactBook &book, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::CallServiceBar>()), m_service(service), m_calls(calls), m_book(book)
{
    ui->setupUi(this);
    // A plain widget paints its sheet's ground only when it is told to.
    setAttribute(Qt::WA_StyledBackground);
    connect(&m_service, &CallService::changed, this, &CallServiceBar::showState);
    connect(&m_calls, &CallWatch::changed, this, &CallServiceBar::showState);
    connect(ui->btnStartService, &QPushButton::clicked, &m_service, &CallService::startNow);
    showState();
}

CallServiceBar::~CallServiceBar() = default;

void CallServiceBar::showState()
{
    QStringList words{callWords(), stateWords()};
    words.removeAll(QString());
    if (words.isEmpty()) {
        hide();
        return;
    }
    const CallService::State state = m_service.state();
    show(words.join(QLatin1Char('\n')), state == CallService::Lost || state == CallService::GivenUp);
}

QString CallServiceBar::stateWords() const
{
    switch (m_service.state()) {
    case CallService::Lost:
        return lostWords();
    case CallService::GivenUp:
        return givenUpWords();
    case CallService::Returning:
        return tr("Call service lost for a moment: it runs again, and the connection comes back by itself within a "
                  "minute.");
    case CallService::Unregistered:
        return tr("The call service has not registered you, so nobody can call you. Sign out and in again.");
    default:
        return QString();
    }
}

QString CallServiceBar::callWords() const
{
    const CallEntry *call = m_calls.lostCall();
    // The client has closed a call that only rang: there is nothing to hang up.
    return call == nullptr || call->isMissed() ? QString()
                                               : tr("%1. Its window is still open: hang up there, and then call again.")
                                                     .arg(CallSentences::notice(*call, m_book));
}

void CallServiceBar::show(const QString &strText, bool bButton)
{
    const bool isNews = isHidden() || ui->btnStartService->isHidden() == bButton;
    // The same text again would drop what the user has selected of it.
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
    return tr("Call service lost: no calls for the moment. %1 The client itself need not be restarted.")
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
