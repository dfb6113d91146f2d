#pragma once

// Style sheets and colours as texts. Any thread; no state.

#include <QStringList>

class StyleText
{
public:
    /// The texts of style sheet files, read in the codec "GBK". When one file does not open, the result is a list with
    /// one empty text, whatever the others hold.
    static QStringList readStyleSheet(const QStringList &listFile);

    /// A colour "#rrggbb" in decimal: "51,175,86". The last two digits are blue; what is no number counts 0.
    static QString transformToRGBAStr(QString strColor);
};
