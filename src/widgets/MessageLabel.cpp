#include "widgets/MessageLabel.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

namespace {

// More characters than any label of a dialog shows: the rest of a long plain text is not laid out.
constexpr int cMostCharacters = 4096;

/// The position in the text at which the last line ends that lies whole above `iBottom`; 0 when not even the first one
/// does.
int endOfWholeLines(const QTextDocument &document, int iBottom)
{
    int iEnd = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QRectF place = document.documentLayout()->blockBoundingRect(block);
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            if (place.top() + line.y() + line.height() > iBottom)
                return iEnd;
            iEnd = block.position() + line.textStart() + line.textLength();
        }
    }
    return iEnd;
}

void dropBlanks(QTextCursor &cursor)
{
    while (cursor.position() > 0 && cursor.document()->characterAt(cursor.position() - 1).isSpace())
        cursor.deletePreviousChar();
}

void endWithEllipsis(QTextDocument &document, int iBottom)
{
    QTextCursor cursor(&document);
    cursor.setPosition(endOfWholeLines(document, iBottom));
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    if (!cursor.hasSelection())
        return;
    cursor.removeSelectedText();
    dropBlanks(cursor);
    cursor.insertText(QString(QChar(0x2026)));
    // The last line may be so full that the ellipsis makes a new one: then characters are taken away until it fits.
    while (document.size().height() > iBottom && cursor.position() > 1) {
        cursor.movePosition(QTextCursor::PreviousCharacter);
        cursor.deletePreviousChar();
        dropBlanks(cursor);
        cursor.movePosition(QTextCursor::End);
    }
}

} // namespace

MessageLabel::MessageLabel(QWidget *parent) : QLabel(parent) {}

void MessageLabel::setLowestLine(int iBottom)
{
    m_iLowestLine = iBottom;
    update();
}

QRect MessageLabel::place() const
{
    QRect place = contentsRect();
    place.setBottom(qMin(place.bottom(), m_iLowestLine - 1));
    return place;
}

bool MessageLabel::isMarkup() const
{
    return textFormat() == Qt::RichText || (textFormat() == Qt::AutoText && Qt::mightBeRichText(text()));
}

bool MessageLabel::hasRoom() const
{
    if (!isMarkup() && text().size() > cMostCharacters)
        return false;
    return heightForWidth(width()) <= place().height() && minimumSizeHint().width() <= width();
}

void MessageLabel::paintEvent(QPaintEvent *event)
{
    if (hasRoom()) {
        QLabel::paintEvent(event);
        return;
    }
    QTextDocument document;
    document.setDefaultFont(font());
    document.setDocumentMargin(0);
    document.setTextWidth(place().width());
    if (isMarkup())
        document.setHtml(text());
    else
        // As lines of one paragraph they stand as close together as in a label.
        document.setPlainText(text().left(cMostCharacters).replace(QLatin1Char('\n'), QChar::LineSeparator));
    endWithEllipsis(document, place().height());

    QAbstractTextDocumentLayout::PaintContext look;
    look.palette = palette();
    look.palette.setColor(QPalette::Text, palette().color(foregroundRole()));
    // A label puts a text that is higher than itself here, and this is where it looks for the text's links.
    QPainter painter(this);
    painter.translate(place().topLeft());
    document.documentLayout()->draw(&painter, look);
}
