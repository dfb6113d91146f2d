#pragma once

#include <QWidget>

#include <memory>

class CallService;
class CallWatch;
class ContactBook;

namespace Ui {
class CallServiceBar;
}

/// Says below the header what is wrong with the call service, what is done about it and what the person can do, with a
/// button that starts it at once, and whose call was lost with it, until its window is closed. Hidden while all is well
/// or nobody is signed in. GUI thread; service, watch and book must outlive it.
class CallServiceBar : public QWidget
{
    Q_OBJECT

public:
    CallServiceBar(CallService &service, const CallWatch &calls, const ContactBook &book, QWidget *parent = nullptr);
    ~CallServiceBar() override;

protected:
    /// Says everything anew when the language changes.
    void changeEvent(QEvent *event) override;

private:
    void show(const QString &strText, bool bButton);
    void showState();
    QString stateWords() const;
    QString callWords() const;
    QString lostWords() const;
    QString givenUpWords() const;

    std::unique_ptr<Ui::CallServiceBar> ui;
    CallService &m_service;
    const CallWatch &m_calls;
    const ContactBook &m_book;
};
