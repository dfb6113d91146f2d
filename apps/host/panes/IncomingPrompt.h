#pragma once

#include "panes/WindowPlace.h"

#include <QDialog>

#include <memory>

class ContactBook;

namespace Ui {
class IncomingPrompt;
}

/// The prompt of an incoming call, in the lower right corner of the screen: who calls, accept, reject. Not modal.
/// Enter accepts, Escape or closing the window rejects. It takes the keyboard when it comes up, unless the user is
/// typing something, has a dialog open or works in another program: a key meant for that must not answer the call.
/// Ctrl+I gives it the keyboard from any window of this program. It can be answered over every modal window, which
/// stays as it is. GUI thread; it does not count for Qt's quit-on-last-window-closed.
class IncomingPrompt : public QDialog
{
    Q_OBJECT

public:
    /// `side` is the part of the screen whose corner it takes.
    explicit IncomingPrompt(const ContactBook &book, WindowPlace::Side side = WindowPlace::Side::Whole,
                            QWidget *parent = nullptr);
    ~IncomingPrompt() override;

    /// Shows the prompt for the call of this user; a prompt that is still up changes over to the new call.
    void prompt(const QString &strUid, bool bConference, bool bVideo);

    /// Who calls, and what for, as the prompt says it.
    QString caller() const;
    QString kind() const;

    /// Gives the keyboard to the prompt if it is up.
    void enter();

    /// Takes the prompt away without an answer, when it is this user's.
    void withdraw(const QString &strUid);

signals:
    /// The prompt is up for another call.
    void prompted();
    /// The user has answered; the prompt is gone.
    void answered(const QString &strUid, bool bAccept);

public slots:
    /// Escape, or the window's own close button.
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showWords();
    void answer(bool bAccept);

    std::unique_ptr<Ui::IncomingPrompt> ui;
    const ContactBook &m_book;
    WindowPlace::Side m_side;
    QString m_strUid;
    bool m_bConference = false;
    bool m_bVideo = false;
};
