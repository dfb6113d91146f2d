#pragma once

// The kit's edit field of one line: a QLineEdit in a wrapper that takes its colours from the skin, limits the text by
// its width (a Chinese character counts 2) and can carry a delete button. QLineEdit's own limit stays as Qt sets it.
// GUI thread only; Qt's ownership by parent applies. Several operations hide those of QWidget that have the same name
// and mean the inner edit: call them through this class.

#include <QLineEdit>
#include <QWidget>

#include <memory>

class CIconButtonEx;
class QLabel;
class SysUIData;

namespace Ui {
class CLineEditEx;
}

class CLineEditEx : public QWidget
{
    Q_OBJECT

public:
    /// What the field is for. Every value but SearchField is a plain field.
    enum LineEditType : int
    {
        PlainField = 0,
        SearchField = 1
    };

    /// An empty plain field without a limit. `parent` may be null.
    explicit CLineEditEx(QWidget *parent = nullptr);
    ~CLineEditEx() override;

    /// How the text is shown: in clear or as a password.
    void setEchoMode(QLineEdit::EchoMode mode);

    /// Gives the keyboard focus to the inner edit.
    void setFocus();

    /// Takes the keyboard focus from the inner edit.
    void clearFocus();

    /// Selects the whole text.
    void selectAll();

    /// Replaces the text, which the limit then holds for as far as the cursor moves right.
    void setText(const QString &text);

    /// The text as typed.
    QString text() const;

    /// The text cursor's position, in UTF-16 units.
    int cursorPosition() const;

    /// Moves the text cursor; a position outside the text goes to its nearest end.
    void setCursorPosition(int iPosition);

    /// Empties the field.
    void clear();

    /// Lets the text be read only, or edited.
    void setReadOnly(bool bReadOnly);

    /// Gives the inner edit a frame, or none, as far as the style sheet leaves it one.
    void setFrame(bool bFrame);

    /// Lets the field take input, or greys it out.
    void setEnabled(bool bEnabled);

    /// Accepts only input that passes `pValidator`, which stays the caller's; null takes any.
    void setValidator(const QValidator *pValidator);

    /// The hint in the empty field, in the colour of the text; may be empty.
    void setPlaceholderText(const QString &text);

    /// Who makes the context menu of the inner edit.
    void setContextMenuPolicy(Qt::ContextMenuPolicy policy);

    /// The inner edit, which belongs to this widget. Never null.
    QLineEdit *getLineEdit() const;

    /// Limits the width of the text to `iLength` columns and cuts a text that is wider, backwards from the cursor.
    /// 0 or less lets no text stand.
    void setMaxLength(int iLength);

    /// Limits the number of characters to `iLength`. A present text of more characters is cut to `iLength` columns.
    void setNewMaxLength(int iLength);

    /// Makes a password field with the login window's placeholder.
    void setlogin();

    /// Sets what the field is for.
    void setType(LineEditType type);

    /// Treats the field as a search field, whatever `bSearch` is.
    void setSearchBtn(bool bSearch);

    /// Puts a delete button behind a thin line into the right end of the field; a second call does nothing.
    void addDeleteBtn();

    /// Shows or hides the delete button and its line; nothing happens as long as there are none.
    void showDeleteBtn(bool bShow);

signals:
    /// The text changed, or the field got the focus with a text in it.
    void textChanged(QString text);
    /// The text cursor moved.
    void cursorPositionChanged(int oldps, int newpos);
    /// A mouse button was released over the field.
    void signal_click();
    /// The field lost the focus.
    void signal_foucsout();
    /// The delete button was clicked. The field itself changes nothing.
    void signal_delete();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

protected slots:
    void slot_changeSearchBtnImg(QString strCurSearchStr);
    void slot_cursorchanged(int oldPos, int newPos);

private:
    void setStyles();
    const SysUIData &currentSkin();
    int widthOf(const QStringRef &text) const;
    void cutToWidth(int iLength);

    std::unique_ptr<Ui::CLineEditEx> ui;
    LineEditType m_iLineEditType = PlainField;
    int m_iMaxLength = 0xffffff;
    CIconButtonEx *m_pDeleteBtn = nullptr;
    QLabel *m_pDeleteLine = nullptr;
    bool m_bCountEachAsOne = false;
    QString m_strEditStyle;
    QString m_strEditHoverStyle;
    QString m_strLineStyle;
    SysUIData *m_pSkin = nullptr;
};
