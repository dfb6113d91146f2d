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

    /// True lets the menu's entry for pasting send signal_paste() instead of pasting. False at first.
    void setEmitPaste(bool bEmitPaste);
    /// True stops all restyling, for an owner that sets a style sheet of its own. False at first.
    void setBSelfStyle(bool bSelfStyle);
    /// Pastes and drops insert no more than the first `iUnits` UTF-16 units of a longer text, as plain text: a field
    /// whose owner holds it short never lays out millions of characters. A negative number, as at first, inserts all.
    void setLongestPaste(int iUnits);

signals:
    /// The user chose to paste while setEmitPaste(true) holds.
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
