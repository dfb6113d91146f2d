#include "common/html/PlainText.h"

#include "common/html/BoundedHtml.h"
#include "common/html/HtmlText.h"
#include "common/text/ReplaceAll.h"

#include <QTextDocument>
#include <QVariant>

namespace {

/// A document that does not read the files that a message refers to.
class ClosedDocument : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { return {}; }
};

} // namespace

void PlainText::convertToPlaintText(QString &strText)
{
    HtmlText::replaceSpace(strText);
    ClosedDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(BoundedHtml::modest(strText));
    strText = document.toPlainText();
    replaceAll(strText, QStringLiteral("\n\n"), QStringLiteral("\n"));
}
