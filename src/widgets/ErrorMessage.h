#pragma once

// The client's one small dialog: frameless, on top, with a title, one of five pages and one or two buttons.
//
// Callers build it on the stack, choose the mode by one of the show operations, which run the dialog to its end but for
// showHotKeyError, and read m_bAccepted afterwards. GUI thread only. While it is open a nested event loop runs, so the
// caller's state may have changed when the operation returns. It does not count for Qt's quit-on-last-window-closed.

#include "model/SysUIData.h"

#include <QDialog>
#include <QPoint>
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

    /// Shows a message with the close button alone, whose word becomes "sure"; returns when the dialog is closed. A
    /// message without the room in the window can be read whole in its tip, here and in chooseMsgShow.
    void getMsgShow(QString title, QString msg);

    /// Asks a question with both buttons; returns m_bAccepted when the dialog is closed.
    bool chooseMsgShow(QString title, QString msg);

    /// Lets the user edit several lines that start as `text`, at most 200 columns of them; returns the trimmed text
    /// when the dialog is closed, however that happened.
    QString lineEditShow(QString title, QString text);

    /// Asks for one line, which starts empty; returns it when the dialog is closed, however that happened.
    QString modifyShow(QString title);

    /// Tells the user to type a keyword, with the close button alone; returns when the dialog is closed.
    void messagelogTip();

    /// Asks for a tag of at most 14 columns; returns it when the dialog is closed, however that happened.
    QString addLabelToFriend(QString title);

    /// Shows, without waiting, that a hot key is taken: of message picking (`type` 0), of screen capture (1) or another
    /// (2). Any other type leaves the page as it is.
    void showHotKeyError(QString title, int type);

    /// Sets the words on the accept and the close button.
    void setBtnText(QString accept, QString close);

    /// True makes the accept button the default one, false the close button.
    void setBtnFocus(bool bAccept);

    /// Hands the skin to the painted background.
    void setSkinData(SysUIData skin);

    /// True once the accept button was used. Only the two close buttons and the settings link make it false again;
    /// every other way to close, Escape among them, and the next mode leave it as it is.
    bool m_bAccepted = false;

signals:
    /// The user wants to change the hot key in the client's settings.
    void signal_OpenSysSetUi();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private slots:
    void slot_clickedAccptBtn();
    void slot_clickedCloseBtn();
    void slot_textChanged(QString text);
    void slot_textChanged();
    void slot_linkActivated(QString str_link);
    void slot_paste();

private:
    static constexpr int cTagMode = 3;     ///< the one mode that has a number; all others have 0
    static constexpr int cTagColumns = 14; ///< the limit of a tag: 7 Chinese characters

    void setUpWindow();
    void connectControls();
    void watchControls();
    void setStyles();
    void setUIText();
    void showPage(QWidget *pPage, const QString &strTitle, int iShowMode = 0);
    void showCloseButtonOnly();
    void showBothButtons();
    void fillHotKeyLabels();
    void makeDefault(const QObject *pPressed);

    std::unique_ptr<Ui::ErrorMessage> ui;
    QPoint m_dragOffset;
    int m_iShowMode = 0;
    int m_iHotKeyType = 0;
    QString m_strHotKeyTitle;
};
