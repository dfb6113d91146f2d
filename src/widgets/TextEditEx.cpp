#include "widgets/TextEditEx.h"

#include "common/Palette.h"
#include "common/system/DpiScale.h"
#include "model/SkinContext.h"
#include "widgets/MenuEx.h"
#include "widgets/PlaceholderColor.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QTextDocumentFragment>

namespace {

constexpr int cFontSize = 12;

// When a field takes short pastes only, no more than this many characters of pasted HTML are read.
constexpr int cLongestSource = 64 * 1024;

// The character that an embedded picture becomes in the plain text of a selection.
const QChar cPictureMark(0xfffc);

bool hasSelectedText(const QTextCursor &cursor)
{
    return cursor.hasSelection() && !cursor.selection().toPlainText().remove(cPictureMark).isEmpty();
}

bool clipboardHasText()
{
    const QMimeData *pData = QGuiApplication::clipboard()->mimeData();
    return pData != nullptr && (pData->hasText() || pData->hasHtml());
}

bool isLong(const QMimeData &source, int iUnits)
{
    return source.text().size() > iUnits || (source.hasHtml() && source.html().size() > cLongestSource);
}

QString plainText(const QMimeData &source)
{
    if (source.hasText()) {
        return source.text();
    }
    return QTextDocumentFragment::fromHtml(source.html().left(cLongestSource)).toPlainText();
}

} // namespace

CTextEditEx::CTextEditEx(QWidget *parent) : QTextEdit(parent)
{
    QFont pixels = font();
    pixels.setPixelSize(ADAPT_DPI_INT(cFontSize));
    setFont(pixels);
    setStyles();
    installEventFilter(this);
}

void CTextEditEx::setEmitPaste(bool bEmitPaste)
{
    m_bEmitPaste = bEmitPaste;
}

void CTextEditEx::setBSelfStyle(bool bSelfStyle)
{
    m_bSelfStyle = bSelfStyle;
}

void CTextEditEx::setLongestPaste(int iUnits)
{
    m_iLongestPaste = iUnits;
}

void CTextEditEx::setStyles()
{
    const SysUIData &skin = *SkinContext::getSkinData();
    m_strEditStyle = QStringLiteral("QTextEdit{border-radius:2px;background-color:%1;border:1px solid %2;color:%3;}");
    m_strEditHoverStyle = QStringLiteral("QTextEdit::hover{border: 1px solid %1;}");
    m_strStyle =
        m_strEditStyle.arg(skin.m_strEditBackgroundColor, skin.m_strEditBorderColor, strCOLOR_MAININFO_LIGHT_BLACK) +
        m_strEditHoverStyle.arg(skin.m_strEditHoverBorderColor);
    setStyleSheet(m_strStyle);
}

void CTextEditEx::appendStyle(const QString &strStyle)
{
    if (m_bSelfStyle) {
        return;
    }
    m_strStyle += strStyle;
    setStyleSheet(m_strStyle);
}

// The event filter below takes both events, so these two handlers run only when a class that derives from the field
// calls them. Each call makes the style sheet longer; the next event that the filter takes writes it anew. Forms rely
// on this.
void CTextEditEx::enterEvent(QEvent *)
{
    appendStyle(strVerticalScrollBarHoverStyle);
}

void CTextEditEx::leaveEvent(QEvent *)
{
    appendStyle(strVerticalScrollBarNormalStyle);
}

bool CTextEditEx::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) {
        PlaceholderColor::fade(this);
    }
    if (event->type() != QEvent::Enter && event->type() != QEvent::Leave) {
        return QTextEdit::eventFilter(watched, event);
    }
    if (!m_bSelfStyle) {
        setStyles();
    }
    return true;
}

void CTextEditEx::contextMenuEvent(QContextMenuEvent *event)
{
    // The field may be deleted while its menu is open, and its menu with it.
    const QPointer<CMenuEx> pMenu = new CMenuEx(this);
    pMenu->setContentsMargins(2, 2, 2, 2);
    fillMenu(*pMenu);
    pMenu->exec(event->globalPos());
    delete pMenu.data();
}

void CTextEditEx::fillMenu(CMenuEx &menu)
{
    const bool bSelected = hasSelectedText(textCursor());
    const bool bFilled = !document()->isEmpty();
    const auto add = [this, &menu](const QString &strText, bool bEnabled, const char *szAction) {
        QAction *pAction = menu.addAction(strText);
        pAction->setEnabled(bEnabled);
        connect(pAction, SIGNAL(triggered()), this, szAction);
        return pAction;
    };
    add(QObject::tr("cut"), bSelected, SLOT(cut()))->setShortcut(QKeySequence::Cut);
    add(QObject::tr("duplicate"), bSelected, SLOT(copy()))->setShortcut(QKeySequence::Copy);
    add(QObject::tr("paste"), clipboardHasText(), SLOT(pasteFromMenu()));
    add(QObject::tr("clear"), bFilled, SLOT(clear()));
    add(QObject::tr("allSelect"), bFilled, SLOT(selectAll()))->setShortcut(QKeySequence::SelectAll);
}

void CTextEditEx::pasteFromMenu()
{
    if (m_bEmitPaste) {
        emit signal_paste();
    } else {
        paste();
    }
}

void CTextEditEx::insertFromMimeData(const QMimeData *source)
{
    if (m_iLongestPaste >= 0 && source != nullptr && isLong(*source, m_iLongestPaste)) {
        insertPlainText(plainText(*source).left(m_iLongestPaste));
    } else {
        QTextEdit::insertFromMimeData(source);
    }
}
