#pragma once

// The one door through which text from outside becomes a DOM tree. Any thread; no state.

class QByteArray;
class QDomDocument;
class QString;

namespace DomText {

/// How many elements may lie in each other; the tree's own code works on it recursively, so a deeper text would exhaust
/// the stack.
constexpr int DEEPEST = 512;
/// How many units an entity that the text declares may stand for; it may not stand for other entities.
constexpr int LONGEST_ENTITY = 64;

/// Parses XML into `document`. False, with `document` empty, for text that is not well-formed, nests deeper than
/// DEEPEST or declares an entity that stands for too much.
bool parse(const QString &strText, QDomDocument &document);
/// The same for bytes, whose XML head names their codec.
bool parse(const QByteArray &bytes, QDomDocument &document);

} // namespace DomText
