#pragma once

#include <QWidget>

#include <memory>

class CallService;

namespace Ui {
class CallServiceBar;
}

/// Says below the header what is wrong with the call service, what is done about it and what the person can do, with a
/// button that starts it at once. Hidden while all is well or nobody is signed in. GUI thread; the service must outlive
/// it.
class CallServiceBar : public QWidget
{
    Q_OBJECT

public:
    explicit CallServiceBar(CallService &service, QWidget *parent = nullptr);
    ~CallServiceBar() override;

protected:
    /// Says everything anew when the language changes.
    void changeEvent(QEvent *event) override;

private:
    void show(const QString &strText, bool bButton);
    void showState();
    QString lostWords() const;
    QString givenUpWords() const;

    std::unique_ptr<Ui::CallServiceBar> ui;
    CallService &m_service;
};
