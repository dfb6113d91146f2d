#pragma once

// The one function by which text from outside becomes a DOM tree. Any thread; no state.

class QByteArray;
class QDomDocument;
class QString;

namespace DomText {

/// How many elements may lie in each other. Qt's code for the tree is recursive, so a deeper text would use up the
/// stack.
constexpr int cDeepest = 512;
/// How many UTF-16 units an entity that the text declares may stand for. It may not refer to other entities.
constexpr int cLongestEntity = 64;

/// Parses XML into `document`. False, with `document` empty, for text that is not well-formed, nests deeper than
/// cDeepest or declares an entity that stands for too much.
bool parse(const QString &strText, QDomDocument &document);

/// The same for bytes, whose XML head names their codec.
bool parse(const QByteArray &bytes, QDomDocument &document);

} // namespace DomText
