#pragma once

#include "client/ContactBook.h"

/// Decides which contacts the search field leaves in the list. No state; any thread.
namespace ContactSearch {

/// Whether the contact is found by `strText`, upper or lower case: by a part of the name shown, of the id, or of the
/// initials of a Chinese name ("ll" for 李雷). Spaces around it do not count; the empty text finds everybody. A
/// stranger has no name yet.
bool finds(const ContactBook::Entry &entry, const QString &strText);

} // namespace ContactSearch
