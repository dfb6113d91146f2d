#pragma once

// The colour of a field's hint. Qt gives a field whose style sheet names a colour the same one for both, so that a hint
// reads like typed text. GUI thread; no state.

class QWidget;

namespace PlaceholderColor {

/// Makes the hint's colour that of the typed text, half transparent, as it is in a field without a sheet. To be called
/// whenever the field's palette has changed; a palette that is so already is left alone.
void fade(QWidget *pField);

} // namespace PlaceholderColor
