#pragma once

// The client's text button with the skin's colours: a framed background with a button in it. Colours are taken from the
// current skin whenever the mouse enters or leaves, so a new skin shows at the next visit.
// GUI thread only; Qt's ownership by parent applies. Several operations hide those of QWidget that have the same name:
// call them through this class.

#include <QKeySequence>
#include <QWidget>

#include <memory>

namespace Ui {
class PushButtonEx;
}

class PushButtonEx : public QWidget
{
    Q_OBJECT

public:
    /// The looks; any other int is the default one.
    enum Type
    {
        /// The one that the eye is to fall on: what accepts.
        StrongButton = 0,
        /// Every other.
        DefaultButton = 1
    };

    /// An enabled button of the default look without text, its font at 12 pixels. `parent` may be null.
    explicit PushButtonEx(QWidget *parent = nullptr);
    ~PushButtonEx() override;

    /// Takes the look of `type`, a Type or any other int.
    void setBtnType(int type);

    /// Takes the colours of all looks from the current skin; they show when a look is next applied.
    void setStyles();

    /// The word on the button; may be empty.
    void setText(QString text);

    /// The word on the button.
    QString text() const;

    /// Lets the button take clicks, or greys it out. Any type but DefaultButton gets the strong
    /// button's colours here.
    void setEnabled(bool bEnabled);

    /// What setEnabled was told last; true at first. A disabled parent does not count.
    bool isEnabled() const { return m_bEnabled; }

    /// The keys that click the button, as long as it is to be seen in the active window. Empty means none.
    void setShortcut(const QKeySequence &keys);

    /// Without a frame of the button's own.
    void setFlat(bool bFlat);

    /// Whether the button becomes its dialog's default button when it has the focus.
    void setAutoDefault(bool bAutoDefault);

    /// Whether the button is its dialog's default button.
    void setDefault(bool bDefault);

    /// Checks or unchecks a checkable button; nothing happens to another.
    void setChecked(bool bChecked);

    /// Whether the button is checked.
    bool isChecked() const;

    /// Whether the button can be checked; not at first.
    void setCheckable(bool bCheckable);

    /// Size of the word in pixels, scaled for the screen. A value below 1 changes nothing.
    void setFontSize(int iSize);

    /// Takes the current skin's colours and repaints the button.
    void update();

signals:
    /// The button was clicked by mouse or keyboard.
    void clicked();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private slots:
    void slot_btnClicked();

private:
    struct StyleSet
    {
        QString m_strNormal;
        QString m_strHover;
        QString m_strDisabled;
        QString m_strChecked;
        QString m_strFrame;
    };

    void applySet(const StyleSet &set);
    void restyle();

    std::unique_ptr<Ui::PushButtonEx> ui;
    bool m_bEnabled = true;
    QKeySequence m_keys;
    int m_iBtnType = DefaultButton;
    StyleSet m_setA;
    StyleSet m_setB;
};
