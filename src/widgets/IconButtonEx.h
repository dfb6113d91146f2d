#pragma once

// A button that shows one glyph of the icon font on a small background. What the glyph and the background look like at
// rest and under the mouse is chosen by a style type; colours are taken from the current skin at each restyle.
// GUI thread only; Qt's ownership by parent applies. Several operations hide those of QWidget that have the same name:
// call them through this class. The button takes no keyboard focus unless setKeyFocus lets it; a screen reader can
// always press it, by the name that setAccessibleName or else the tool tip gives.

#include <QKeySequence>
#include <QWidget>

#include <memory>

class FocusRing;
class QKeyEvent;
class QMouseEvent;

namespace Ui {
class CIconButtonEx;
}

class CIconButtonEx : public QWidget
{
    Q_OBJECT

public:
    /// The style types that have a look of their own; any other int turns to the skin's hover colour under the mouse.
    enum StyleType
    {
        /// The skin's hover colour under the mouse and while checked.
        HoverStyle = 0,
        /// The same.
        SameHoverStyle = 1,
        /// A background under the mouse.
        BackgroundStyle = 2,
        /// A red background under the mouse: what closes a window.
        RedStyle = 3,
        /// Nothing happens under the mouse.
        StillStyle = 4
    };

    /// The sizes of the glyphs in the kit's own windows, in pixels.
    enum GlyphPixels
    {
        /// The cross that closes or deletes.
        SmallGlyph = 8,
        /// Any other.
        LargeGlyph = 16
    };

    /// An enabled, checkable, unchecked button without a glyph. `parent` may be null.
    explicit CIconButtonEx(QWidget *parent = nullptr);
    ~CIconButtonEx() override;

    /// Shows `glyph`, a text in the icon font, `size` pixels high and scaled for the screen, in the style `type`, a
    /// StyleType or any other int. A size below 1 keeps the font's own.
    void setIconFont(QString glyph, int size, int type);

    /// The glyph's colour at rest, as style sheets write one or as three decimals, "184,184,184". The text goes into
    /// the sheet as it is; decimals, which sheets cannot read, show by the palette, and any other text that sheets
    /// cannot read shows black. Empty keeps the colour and only restyles.
    void setIconColor(const QString &color);

    /// Takes the looks of `type`, a StyleType or any other int.
    void setBtnStyles(int type);

    /// A text in place of the glyph; the button becomes flat.
    void setText(const QString &text);

    /// Without a frame of the button's own, as it is at first.
    void setFlat(bool bFlat);

    /// Whether the button becomes its dialog's default button when it has the focus.
    void setAutoDefault(bool bAutoDefault);

    /// Whether the button is its dialog's default button.
    void setDefault(bool bDefault);

    /// Size of the inner button's picture in pixels.
    void setIconSize(QSize size);

    /// Whether setChecked has an effect; it has at first.
    void setCheckable(bool bCheckable);

    /// Whether setChecked has an effect.
    bool isCheckable() const { return m_bCheckable; }

    /// Shows the checked look or the one at rest. Nothing happens to a button that is not checkable.
    void setChecked(bool bChecked);

    /// Whether the button is checkable and was checked last.
    bool isChecked() const { return m_bCheckable && m_bCheckedState; }

    /// Lets the button take clicks, or greys it out.
    void setEnabled(bool bEnabled);

    /// Looks and clicks as setEnabled of the opposite, but isEnabled() keeps its answer, so that the mouse entering or
    /// leaving gives back the look at rest.
    void setDisabled(bool bDisabled);

    /// What setEnabled was told last; true at first. A disabled parent does not count.
    bool isEnabled() const { return m_bEnabled; }

    /// Whether Tab stops at the button, where blank and return click it and a ring shows; it does not at first.
    void setKeyFocus(bool bTakes);

    /// The keys that click the button, as long as it is to be seen in the active window. Empty means none.
    void setShortcut(const QKeySequence &keys);

    /// What a screen reader calls the button. Empty, as at first, is the tool tip, or the text where there is none.
    void setAccessibleName(const QString &strName);

    /// True gives a checked button a background of its own as well.
    void setChangeBackgroundOnChecked(bool bChange);

    /// True is for a button on a dark background: types 2 and 3 are white at their next restyle.
    void setBackGroundDark(bool bDark);

signals:
    /// A mouse button other than the right one was released over the enabled button, or keys or a screen reader pressed
    /// it.
    void clicked();

protected:
    bool event(QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setStyles();
    void showNormal();
    void showEnabled(bool bEnabled);
    void showGlyph(const QString &color);
    void showGlyph(const QString &color, const QString &hoverColor);
    void showDecimals(const QString &color);
    void showBackground(const QString &color, const QString &hoverColor);
    QString backgroundOf(const QString &color, int iAlpha) const;
    bool takeRelease(const QMouseEvent &event);
    bool takeKey(const QKeyEvent &event);
    void showText(const QString &strText);
    void nameInner();
    void passKeyClick();

    std::unique_ptr<Ui::CIconButtonEx> ui;
    bool m_bChecked = false;
    bool m_bEnabled = true;
    bool m_bCheckable = true;
    bool m_bCheckedState = false;
    QString m_strIconColor;
    QString m_strHoverColor;
    int m_iStyleType = HoverStyle;
    bool m_bChangeBackgroundOnChecked = false;
    QString m_strBtnStyle;
    QString m_strBtnHoverStyle;
    QString m_strBgStyle;
    QString m_strBgHoverStyle;
    QString m_strGlyph;
    int m_iGlyphSize = 0;
    bool m_bBackGroundDark = false;
    QKeySequence m_keys;
    QString m_strName;
    FocusRing *m_pRing = nullptr; ///< made when the button first may take the focus
};
