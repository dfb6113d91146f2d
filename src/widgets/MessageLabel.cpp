#include "widgets/MessageLabel.h"

#include <QAbstractTextDocumentLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <tuple>

namespace {

// More characters than any label of a dialog shows: the rest of a long plain text is not laid out.
constexpr int cMostCharacters = 4096;

/// The position behind the last line that lies wholly above `iBottom`; 0 when there is none.
int endOfWholeLines(const QTextDocument &document, int iBottom)
{
    int iEnd = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QRectF place = document.documentLayout()->blockBoundingRect(block);
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            if (place.top() + line.y() + line.height() > iBottom) {
                return iEnd;
            }
            iEnd = block.position() + line.textStart() + line.textLength();
        }
    }
    return iEnd;
}

void dropBlanks(QTextCursor &cursor)
{
    while (cursor.position() > 0 && cursor.document()->characterAt(cursor.position() - 1).isSpace()) {
        cursor.deletePreviousChar();
    }
}

void endWithEllipsis(QTextDocument &document, int iBottom)
{
    QTextCursor cursor(&document);
    cursor.setPosition(endOfWholeLines(document, iBottom));
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    if (!cursor.hasSelection()) {
        return;
    }
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

/// What is laid out, and all that it depends on.
struct MessageLabel::Layout
{
    using Causes = std::tuple<QString, Qt::TextFormat, QFont, Qt::Alignment, bool, QRect, int>;

    Causes causes;
    bool bWhole = true;
    /// Where a label begins, and how far above it the lines begin here.
    int iTop = 0;
    int iRaised = 0;
    /// Null where a label shows its text by itself.
    std::unique_ptr<QTextDocument> pDocument;
};

MessageLabel::MessageLabel(QWidget *parent) : QLabel(parent), m_pLayout(std::make_unique<Layout>()) {}

MessageLabel::~MessageLabel() = default;

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
    return layOut().bWhole;
}

int MessageLabel::neededHeight() const
{
    if (!isMarkup() && text().size() > cMostCharacters) {
        return QWIDGETSIZE_MAX;
    }
    return wordWrap() ? heightForWidth(width()) : sizeHint().height();
}

/// How far down a label begins a text of that height.
int MessageLabel::topOf(int iHeight) const
{
    const int iRoom = qMax(0, contentsRect().height() - iHeight);
    return alignment().testFlag(Qt::AlignVCenter) ? iRoom / 2 : alignment().testFlag(Qt::AlignBottom) ? iRoom : 0;
}

// Laid out anew only when something that it depends on has changed.
const MessageLabel::Layout &MessageLabel::layOut() const
{
    Layout::Causes causes(text(), textFormat(), font(), alignment(), wordWrap(), contentsRect(), m_iLowestLine);
    if (causes == m_pLayout->causes) {
        return *m_pLayout;
    }
    const int iHeight = neededHeight();
    m_pLayout->causes = std::move(causes);
    m_pLayout->iTop = topOf(iHeight);
    m_pLayout->bWhole = iHeight <= place().height() && minimumSizeHint().width() <= width();
    const int iBelow = m_pLayout->iTop + iHeight - place().height();
    m_pLayout->iRaised = m_pLayout->bWhole ? qMax(0, iBelow) : m_pLayout->iTop;
    const bool bByItself = m_pLayout->bWhole && m_pLayout->iRaised == 0;
    m_pLayout->pDocument = bByItself ? nullptr : wholeText();
    if (!m_pLayout->bWhole) {
        endWithEllipsis(*m_pLayout->pDocument, place().height());
    }
    return *m_pLayout;
}

std::unique_ptr<QTextDocument> MessageLabel::wholeText() const
{
    auto pDocument = std::make_unique<QTextDocument>();
    pDocument->setDefaultFont(font());
    pDocument->setDocumentMargin(0);
    pDocument->setTextWidth(place().width());
    if (isMarkup()) {
        pDocument->setHtml(text());
    } else {
        // Lines of one paragraph stand as close as a label's do.
        pDocument->setPlainText(text().left(cMostCharacters).replace(QLatin1Char('\n'), QChar::LineSeparator));
    }
    return pDocument;
}

// The base looks for links where it would paint the text itself: the place is shifted by as much as the text is raised.
bool MessageLabel::event(QEvent *event)
{
    const auto *pMouse = dynamic_cast<QMouseEvent *>(event);
    if (pMouse == nullptr || layOut().iRaised == 0) {
        return QLabel::event(event);
    }
    QMouseEvent lower(pMouse->type(), pMouse->localPos() + QPointF(0, layOut().iRaised), pMouse->windowPos(),
                      pMouse->screenPos(), pMouse->button(), pMouse->buttons(), pMouse->modifiers(), pMouse->source());
    const bool bHandled = QLabel::event(&lower);
    event->setAccepted(lower.isAccepted());
    return bHandled;
}

void MessageLabel::paintEvent(QPaintEvent *event)
{
    const Layout &layout = layOut();
    if (!layout.pDocument) {
        QLabel::paintEvent(event);
        return;
    }
    QAbstractTextDocumentLayout::PaintContext look;
    look.palette = palette();
    look.palette.setColor(QPalette::Text, palette().color(foregroundRole()));
    // A label puts a text that is higher than itself here, and this is where it looks for the text's links.
    QPainter painter(this);
    painter.translate(place().topLeft() + QPoint(0, layout.iTop - layout.iRaised));
    layout.pDocument->documentLayout()->draw(&painter, look);
}
