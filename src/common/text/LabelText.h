#pragma once

// Texts broken into lines by their width in pixels. A character is never torn, and one that is wider than a line stands
// in a line of its own. GUI thread; no state.

#include <QString>

class QFontMetrics;
class QWidget;

class LabelText
{
public:
    /// `strText` with a line feed before each character that would make its line wider than `iWidth` pixels. When the
    /// line feeds, those of the text included, come to `iMaxLines`, the text is cut one character before the last of
    /// them and ends in "..."; with 0 or less there is no limit. An empty text, and one whose first character is wider
    /// than `iWidth`, comes back as it is.
    static QString getLineWrapText(int iWidth, const QString &strText, const QFontMetrics &metrics, int iMaxLines);

    /// Fits `strText` into the width of `pLabel`, whose height it fixes, and puts the text to show into `strOut`. The
    /// label stays the caller's; without one the text comes back as it is, with false.
    ///
    /// A text that starts with "<p" stays as it is and gets the height of its paragraphs, with the gap that its first
    /// "margin:" names in px between them (none, if it is no whole number): true. Of any other text line feeds are
    /// taken out. It gets one line if it fits: false. Else it is broken into lines that are 5 pixels narrower: true. A
    /// line that is the `iMaxLines`th is the last, even when nothing follows: its last 2 characters give way to "...".
    /// With 0 or less there is no limit.
    static bool stringFormatWithControl(QString strText, QWidget *pLabel, QString &strOut, int iMaxLines);
};
