#pragma once

// The client's one small message dialog: a frameless, modal box with a title, a text and one or two buttons.
//
// Callers build it on the stack, choose the mode by one of the show operations, which run the dialog to its end, and
// read m_bAccepted afterwards. GUI thread only. While it is open a nested event loop runs, so the caller's state may
// have changed when the operation returns. It does not count for Qt's quit-on-last-window-closed.

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class ErrorMessage;
}

class ErrorMessage : public QDialog
{
    Q_OBJECT

public:
    /// `strAcceptText` and `strCloseText` are the words on the accept and the close button; empty gives a bare button.
    /// `parent` may be null.
    ErrorMessage(QString strAcceptText, QString strCloseText, QWidget *parent);
    ~ErrorMessage() override;

    /// Shows a message with the close button alone, whose word becomes "sure"; returns when the dialog is closed.
    void getMsgShow(QString title, QString msg);

    /// Asks a question with both buttons; returns m_bAccepted when the dialog is closed.
    bool chooseMsgShow(QString title, QString msg);

    /// Sets the words on the accept and the close button.
    void setBtnText(QString accept, QString close);

    /// True makes the accept button the default one, false the close button.
    void setBtnFocus(bool bAccept);

    /// True once the accept button was used; false before and after any other way to close.
    bool m_bAccepted = false;

private slots:
    void slot_clickedAccptBtn();
    void slot_clickedCloseBtn();

private:
    void setStyles();

    std::unique_ptr<Ui::ErrorMessage> ui;
};
