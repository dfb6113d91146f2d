#include "widgets/LineEditEx.h"

#include "ui_LineEditEx.h"

#include "common/Palette.h"
#include "common/pictures/IconGlyphs.h"
#include "common/system/DpiScale.h"
#include "common/text/TextMeasure.h"
#include "model/SkinContext.h"
#include "widgets/IconButtonEx.h"
#include "widgets/PlaceholderColor.h"
#include "widgets/TextLimit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QValidator>

#include <numeric>

namespace {

constexpr int cFontSize = 12;
constexpr QSize cDeleteButtonSize(22, 22);
constexpr QSize cDeleteLineSize(1, 18);

QFont pixelFont(QFont font)
{
    font.setPixelSize(ADAPT_DPI_INT(cFontSize));
    return font;
}

bool isPasteOfNothing(const QEvent *event)
{
    return event->type() == QEvent::KeyPress && static_cast<const QKeyEvent *>(event)->matches(QKeySequence::Paste) &&
           QGuiApplication::clipboard()->text().isEmpty();
}

} // namespace

CLineEditEx::CLineEditEx(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::CLineEditEx>())
{
    ui->setupUi(this);
    ui->lineEdit->setFont(pixelFont(ui->lineEdit->font()));
    ui->lineEdit->setTextMargins(0, 1, 2, 1);
    ui->lineEdit->installEventFilter(this);
    ui->lineEdit->setMouseTracking(true);
    setStyles();
    connect(ui->lineEdit, SIGNAL(textChanged(const QString &)), this, SIGNAL(textChanged(QString)));
    connect(ui->lineEdit, SIGNAL(cursorPositionChanged(int, int)), this, SIGNAL(cursorPositionChanged(int, int)));
    connect(ui->lineEdit, SIGNAL(cursorPositionChanged(int, int)), this, SLOT(slot_cursorchanged(int, int)));
}

CLineEditEx::~CLineEditEx() = default;

const SysUIData &CLineEditEx::currentSkin()
{
    m_pSkin = SkinContext::getSkinData();
    return *m_pSkin;
}

void CLineEditEx::setStyles()
{
    const SysUIData &skin = currentSkin();
    m_strEditStyle =
        QStringLiteral("QLineEdit#lineEdit{border-radius:2px;background-color:%1;border:1px solid %2;color:%3;}");
    m_strEditHoverStyle = QStringLiteral("QLineEdit#lineEdit::hover{border: 1px solid %1;}");
    m_strLineStyle = QStringLiteral("QLabel{background-color:%1;}");
    ui->lineEdit->setStyleSheet(
        m_strEditStyle.arg(skin.m_strEditBackgroundColor, skin.m_strEditBorderColor, strCOLOR_MAININFO_LIGHT_BLACK) +
        m_strEditHoverStyle.arg(skin.m_strEditHoverBorderColor));
    // Deliberate, the padding of the menu's entries stays unfilled: this sheet is the one that the field's standard
    // context menu has always had. Set again it would only repeat the warning with which Qt refuses it, and which
    // QtWarningFilter keeps out of the programs' output.
    const QString strMenu = strMenuStyle + strMenuItemStyle + strMenuItemSelectStyle + strMenuItemDisableStyle;
    if (styleSheet() != strMenu) {
        setStyleSheet(strMenu);
    }
}

void CLineEditEx::setEchoMode(QLineEdit::EchoMode mode)
{
    ui->lineEdit->setEchoMode(mode);
}

void CLineEditEx::setFocus()
{
    ui->lineEdit->setFocus();
}

void CLineEditEx::clearFocus()
{
    ui->lineEdit->clearFocus();
}

void CLineEditEx::selectAll()
{
    ui->lineEdit->selectAll();
}

void CLineEditEx::setText(const QString &text)
{
    ui->lineEdit->setText(text);
}

QString CLineEditEx::text() const
{
    return ui->lineEdit->text();
}

int CLineEditEx::cursorPosition() const
{
    return ui->lineEdit->cursorPosition();
}

void CLineEditEx::setCursorPosition(int iPosition)
{
    ui->lineEdit->setCursorPosition(iPosition);
}

void CLineEditEx::clear()
{
    ui->lineEdit->clear();
}

void CLineEditEx::setReadOnly(bool bReadOnly)
{
    ui->lineEdit->setReadOnly(bReadOnly);
}

void CLineEditEx::setFrame(bool bFrame)
{
    ui->lineEdit->setFrame(bFrame);
}

void CLineEditEx::setEnabled(bool bEnabled)
{
    ui->lineEdit->setEnabled(bEnabled);
}

void CLineEditEx::setValidator(const QValidator *pValidator)
{
    ui->lineEdit->setValidator(pValidator);
}

void CLineEditEx::setPlaceholderText(const QString &text)
{
    ui->lineEdit->setPlaceholderText(text);
}

void CLineEditEx::setContextMenuPolicy(Qt::ContextMenuPolicy policy)
{
    ui->lineEdit->setContextMenuPolicy(policy);
}

QLineEdit *CLineEditEx::getLineEdit() const
{
    return ui->lineEdit;
}

int CLineEditEx::widthOf(const QStringRef &text) const
{
    if (m_bCountEachAsOne) {
        return text.size();
    }
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int iSum, QChar unit) { return iSum + TextMeasure::columnsOf(unit); });
}

void CLineEditEx::cutToWidth(int iLength)
{
    const QCursor shape = ui->lineEdit->cursor();
    QString strText = ui->lineEdit->text();
    const int iPosition = TextLimit::cutBackwards(strText, ui->lineEdit->cursorPosition(), iLength);
    ui->lineEdit->setText(strText);
    ui->lineEdit->setCursorPosition(iPosition);
    ui->lineEdit->setCursor(shape);
}

void CLineEditEx::setMaxLength(int iLength)
{
    if (TextMeasure::getStrCounnt(ui->lineEdit->text()) > iLength) {
        cutToWidth(iLength);
    }
    m_iMaxLength = iLength;
}

void CLineEditEx::setNewMaxLength(int iLength)
{
    // Deliberate, tested by count but cut by width: the fields that count characters start with short texts.
    if (ui->lineEdit->text().size() > iLength) {
        cutToWidth(iLength);
    }
    m_iMaxLength = iLength;
    m_bCountEachAsOne = true;
}

void CLineEditEx::slot_cursorchanged(int oldPos, int newPos)
{
    QString strText = ui->lineEdit->text();
    // Qt reports the very first move as one from -1.
    oldPos = qMax(0, oldPos);
    if (newPos <= oldPos || newPos > strText.size()) {
        return;
    }
    qint64 width = qint64(widthOf(strText.leftRef(oldPos))) + widthOf(strText.midRef(newPos));
    int iFitEnd = oldPos;
    int iExcess = 0;
    for (int i = oldPos; i < newPos;) {
        const int iUnits = TextLimit::unitsAt(strText, i);
        width += widthOf(strText.midRef(i, iUnits));
        i += iUnits;
        if (width <= m_iMaxLength) {
            iFitEnd = i;
        } else {
            ++iExcess;
        }
    }
    if (iExcess == 0) {
        return;
    }
    // One excess character goes at the old position, not at the end. Deliberate: a key typed at the limit is dropped,
    // and a paste that is one too long loses its first character.
    const int iFrom = iExcess == 1 ? oldPos : iFitEnd;
    const int iTo = iExcess == 1 ? oldPos + TextLimit::unitsAt(strText, oldPos) : newPos;
    strText.remove(iFrom, iTo - iFrom);
    ui->lineEdit->setText(strText);
    ui->lineEdit->setCursorPosition(newPos - (iTo - iFrom));
}

void CLineEditEx::setlogin()
{
    ui->lineEdit->setEchoMode(QLineEdit::Password);
    ui->lineEdit->setPlaceholderText(QObject::tr("inputnarvepass"));
}

void CLineEditEx::setType(LineEditType type)
{
    m_iLineEditType = type;
    if (m_iLineEditType == SearchField) {
        setSearchBtn(true);
    }
}

void CLineEditEx::setSearchBtn(bool)
{
    connect(ui->lineEdit, SIGNAL(textChanged(const QString &)), this, SLOT(slot_changeSearchBtnImg(QString)),
            Qt::UniqueConnection);
}

// Does nothing: the search field has no picture to change here, and forms still connect to it.
void CLineEditEx::slot_changeSearchBtnImg(QString) {}

void CLineEditEx::addDeleteBtn()
{
    if (m_pDeleteBtn != nullptr) {
        return;
    }
    m_pDeleteBtn = new CIconButtonEx(ui->lineEdit);
    m_pDeleteBtn->setFixedSize(ADAPT_DPI_SIZE(cDeleteButtonSize));
    m_pDeleteBtn->setCursor(Qt::ArrowCursor);
    m_pDeleteBtn->setIconFont(IconGlyph::text(IconGlyph::Close), CIconButtonEx::SmallGlyph, CIconButtonEx::HoverStyle);
    m_pDeleteBtn->setCheckable(false);
    m_pDeleteBtn->setAccessibleName(QObject::tr("clear"));
    m_pDeleteLine = new QLabel(ui->lineEdit);
    m_pDeleteLine->setFixedSize(ADAPT_DPI_SIZE(cDeleteLineSize));
    m_pDeleteLine->setStyleSheet(m_strLineStyle.arg(currentSkin().m_strLineColor));
    connect(m_pDeleteBtn, SIGNAL(clicked()), this, SIGNAL(signal_delete()));
    auto *pLayout = new QHBoxLayout(ui->lineEdit);
    pLayout->setContentsMargins(0, 0, 5, 0);
    pLayout->setSpacing(0);
    pLayout->addStretch();
    pLayout->addWidget(m_pDeleteLine);
    pLayout->addWidget(m_pDeleteBtn);
    ui->lineEdit->setTextMargins(0, 1, m_pDeleteLine->width() + m_pDeleteBtn->width(), 1);
}

void CLineEditEx::showDeleteBtn(bool bShow)
{
    if (m_pDeleteBtn == nullptr) {
        return;
    }
    m_pDeleteBtn->setVisible(bShow);
    m_pDeleteLine->setVisible(bShow);
}

bool CLineEditEx::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != ui->lineEdit) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        emit signal_click();
    }
    if (event->type() == QEvent::HoverEnter) {
        setStyles();
    }
    if (event->type() == QEvent::PaletteChange) {
        PlaceholderColor::fade(ui->lineEdit);
    }
    if (event->type() == QEvent::FocusIn && !ui->lineEdit->text().isEmpty()) {
        emit textChanged(ui->lineEdit->text());
    }
    if (event->type() == QEvent::FocusOut) {
        emit signal_foucsout();
    }
    if (isPasteOfNothing(event)) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
