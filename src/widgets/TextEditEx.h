#pragma once

// The kit's edit field of several lines: a QTextEdit in the skin's colours with a context menu in the kit's look.
// GUI thread only; Qt's ownership by parent applies.

#include <QTextEdit>

class CMenuEx;

class CTextEditEx : public QTextEdit
{
    Q_OBJECT

public:
    /// An empty field. `parent` may be null.
    explicit CTextEditEx(QWidget *parent = nullptr);

    /// With true, the menu's entry for pasting sends signal_paste() and does not paste. False at first.
    void setEmitPaste(bool bEmitPaste);

    /// With true, the field no longer sets its style sheet, for an owner that sets one of its own. False at first.
    void setBSelfStyle(bool bSelfStyle);

    /// Of a longer text that is pasted or dropped, only the first `iUnits` UTF-16 units are inserted, as plain text.
    /// This is for an owner that cuts the text to a few characters anyway: millions of them would be laid out before. A
    /// negative number, as at first, inserts everything.
    void setLongestPaste(int iUnits);

signals:
    /// The user chose to paste from the menu, and setEmitPaste(true) was called.
    void signal_paste();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private slots:
    void pasteFromMenu();

private:
    void setStyles();
    void appendStyle(const QString &strStyle);
    void fillMenu(CMenuEx &menu);

    QString m_strStyle;
    bool m_bEmitPaste = false;
    bool m_bSelfStyle = false;
    QString m_strEditStyle;
    QString m_strEditHoverStyle;
    int m_iLongestPaste = -1;
};
