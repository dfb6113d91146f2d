#pragma once

// The kit's edit fields and menus on the gallery's page. GUI thread.

class Sheet;

namespace KitFields {

/// The edit field of one line: at rest, under the mouse, at its limit, with a delete button, as a password field.
void addLineEdits(Sheet &sheet);

/// The edit field of several lines, with and without a scroll bar.
void addTextEdits(Sheet &sheet);

/// The three looks of the menu, as pictures, with a button below each that opens it.
void addMenus(Sheet &sheet);

} // namespace KitFields
