#pragma once

// The painted form and the smaller parts of the kit on the gallery's page. GUI thread.

class Sheet;

namespace KitForms {

/// The painted background of the windows with and without its parts.
void addForms(Sheet &sheet);

/// Labels with and without room for their text, and buttons that keys have reached.
void addLabels(Sheet &sheet);

/// Hot label, head label, icon style and rubber band.
void addSmallParts(Sheet &sheet);

} // namespace KitForms
