#pragma once

// The kit's buttons, check boxes and radio buttons on the gallery's page. GUI thread.

class Sheet;

namespace KitButtons {

/// Each type of the icon button, on light and on dark ground, in each state.
void addIconButtons(Sheet &sheet);

/// Both looks of the text button in each state, and its font sizes.
void addPushButtons(Sheet &sheet);

/// Check boxes and radio buttons in the skin's styles.
void addChoices(Sheet &sheet);

} // namespace KitButtons
