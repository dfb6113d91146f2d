#pragma once

// A small flat button that shows one drawn symbol. The symbol is painted as shapes at the size of the button, so it
// stays sharp at every scale factor. GUI thread only; Qt's ownership by parent applies.

#include <QColor>
#include <QPushButton>

class SymbolButton : public QPushButton
{
    Q_OBJECT

public:
    /// The symbols that can be shown.
    enum class Symbol
    {
        Close,
        Microphone,
        MicrophoneOff,
        Speaker,
        SpeakerOff,
        Camera,
        CameraOff
    };

    /// A button with the cross that closes a window. `parent` may be null.
    explicit SymbolButton(QWidget *parent = nullptr);

    /// What to show, and in which colour while the cursor is elsewhere.
    void setSymbol(Symbol symbol, const QColor &color);

    /// The symbol shown now.
    Symbol symbol() const { return m_symbol; }

    /// The symbol's colour while the cursor is elsewhere.
    QColor symbolColor() const { return m_color; }

    /// The symbol's colour under the cursor.
    void setHoverColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Symbol m_symbol = Symbol::Close;
    QColor m_color;
    QColor m_hoverColor;
};
