#pragma once

// One skin: the named colours, style sheet pieces, bubble pictures and icon code points that all windows take their
// look from. A value that is copied freely; colours are "#rrggbb". The host keeps the list of skins and the current
// one; a widget reads the current one each time it styles itself. On any thread, as far as nobody changes it.

#include <QColor>
#include <QString>

#include <array>

class SysUIData
{
public:
    /// Two marks of the host's, position 1; nothing here reads them.
    bool m_bFirstMark = false;
    bool m_bSecondMark = false;

// The texts, empty by default: position, name and built-in value stand in SysUIData.def.
#define SKIN_TEXT(position, name, value) QString name;
#include "model/SysUIData.def"
#undef SKIN_TEXT

    /// Code points in the icon font, position 32; nothing here reads them.
    std::array<ushort, 8> m_iconCodes{};

    /// Takes over the other skin member by member, with two exceptions: position 4 takes its position 3, and position 8
    /// its position 7.
    void resetData(const SysUIData &other);

    /// Hooks of the host's that do nothing.
    void initData() {}
    void initBaseStyle() {}

    /// The colour of eight hexadecimal digits: red, green, blue, alpha, without "#". Of six digits blue is alpha as
    /// well; the empty text gives opaque black. What is no number counts 0.
    static QColor transformToRGBA(const QString &strColor);

    /// A colour "#rrggbb" in decimal: "51,175,86". The last two digits are blue; what is no number counts 0.
    static QString transformToRGBStr(const QString &strColor);

    /// Sets border image and border widths of the bubbles of one side. The picture's name carries the widths of the
    /// border that is not stretched: "<anything>_<top>_<right>_<bottom>_<left>.<extension>". Parts that the name does
    /// not have read as empty texts.
    void setLeftChatBubble(const QString &strPath);
    void setRightChatBubble(const QString &strPath);

    /// Sets the margin of the text in a bubble: from four pixel values, "10px 12px 10px 12px", what is left of each
    /// inside the border. With fewer than four values, or no bubble set, the margin is stored as it is.
    void setLeftBubbleMargin(const QString &strMargin);
    void setRightBubbleMargin(const QString &strMargin);
};
