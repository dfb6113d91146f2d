#include "widgets/ErrorMessage.h"

#include "ui_ErrorMessage.h"

#include "common/pictures/IconGlyphs.h"
#include "common/system/DpiScale.h"
#include "common/text/TextMeasure.h"
#include "widgets/TextLimit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextCursor>

namespace {

// The limit of a reply: 100 Chinese characters.
constexpr int cReplyColumns = 200;

constexpr int cTagPage = 3;
constexpr int cTitleHeight = 100;

bool isPasteKey(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto *key = static_cast<const QKeyEvent *>(event);
    return key->key() == Qt::Key_V && key->modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

ErrorMessage::ErrorMessage(QString strAcceptText, QString strCloseText, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::ErrorMessage>())
{
    ui->setupUi(this);
    setUpWindow();
    setStyles();
    connectControls();
    watchControls();
    ui->acceptBtn->setAutoDefault(false);
    ui->closeBtn->setAutoDefault(false);
    ui->acceptBtn->setText(strAcceptText);
    ui->acceptBtn->setBtnType(PushButtonEx::StrongButton);
    ui->closeBtn->setText(strCloseText);
    ui->btnClose->setToolTip(QObject::tr("close"));
    ui->AutoReplytextEdit->setLongestPaste(cReplyColumns + 1);
    ADAPT_DPI_WIDGET(this);
    ui->acceptBtn->setEnabled(false);
}

ErrorMessage::~ErrorMessage() = default;

void ErrorMessage::setUpWindow()
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    setWindowIcon(QIcon(QStringLiteral("Resources/Images/SysTrayIcon/MiniToTaskBar.png")));
    ui->backWidget->setTitleHeight(cTitleHeight);
    ui->backWidget->setPaintPic(false);
    ui->btnClose->setAutoDefault(false);
    ui->btnClose->setCheckable(false);
    ui->btnClose->setIconFont(IconGlyph::text(IconGlyph::Close), CIconButtonEx::SmallGlyph, CIconButtonEx::RedStyle);
}

void ErrorMessage::connectControls()
{
    connect(ui->acceptBtn, SIGNAL(clicked()), this, SLOT(slot_clickedAccptBtn()));
    connect(ui->closeBtn, SIGNAL(clicked()), this, SLOT(slot_clickedCloseBtn()));
    connect(ui->btnClose, SIGNAL(clicked()), this, SLOT(slot_clickedCloseBtn()));
    connect(ui->AutoReplytextEdit, SIGNAL(textChanged()), this, SLOT(slot_textChanged()));
    connect(ui->AddLineEdit, SIGNAL(textChanged(const QString &)), this, SLOT(slot_textChanged(QString)));
    connect(ui->label_11, SIGNAL(linkActivated(const QString &)), this, SLOT(slot_linkActivated(QString)));
}

// The kit's widgets pass on few of the keys and presses that their inner controls get, so these are watched too.
void ErrorMessage::watchControls()
{
    for (QWidget *pControl : {static_cast<QWidget *>(ui->acceptBtn), static_cast<QWidget *>(ui->closeBtn),
                              static_cast<QWidget *>(ui->AddLineEdit)}) {
        pControl->installEventFilter(this);
        for (QWidget *pInner : pControl->findChildren<QWidget *>()) {
            pInner->installEventFilter(this);
        }
    }
}

void ErrorMessage::setStyles()
{
    // "text - decoration" is no property; the sheet is shared with the client's other dialogs as it stands.
    setStyleSheet(ADAPT_DPI_STYLESHEET(
        QStringLiteral("QLabel{font-family:'微软雅黑';}"
                       "QLabel{font-size:12px;color:#585858;}"
                       "QLabel#titlelabel{font-size:14px;color:#000000;}"
                       "QLabel#msgLabel{font-size:12px;color:#585858;}"
                       "QLabel#autoReplyLabel{font-size:12px;color:#585858;}"
                       "QLabel#label_11{font-size:12px;color:#2AB0FF;}"
                       "QLabel#label_11:hover{font-size:12px;color:#0066FF;text-decoration:underline;}"
                       "a:link{font-size:12px;color:#2AB0FF;}"
                       "a:hover{font-size:12px;color:#2AB0FF;text - decoration: underline;}")));
}

void ErrorMessage::setBtnText(QString accept, QString close)
{
    ui->acceptBtn->setText(accept);
    ui->closeBtn->setText(close);
}

void ErrorMessage::setBtnFocus(bool bAccept)
{
    ui->acceptBtn->setDefault(bAccept);
    ui->closeBtn->setDefault(!bAccept);
}

void ErrorMessage::setSkinData(SysUIData skin)
{
    ui->backWidget->setSkinData(skin);
}

void ErrorMessage::slot_clickedAccptBtn()
{
    m_bAccepted = true;
    if (ui->stackedWidget->currentIndex() == cTagPage && ui->AddLineEdit->text().trimmed().isEmpty()) {
        ui->lblerror->setText(QObject::tr("tagcannotspace"));
        ui->lblerror->setStyleSheet(QStringLiteral("color:red;"));
        ui->lblerror->show();
        return;
    }
    close();
}

void ErrorMessage::slot_clickedCloseBtn()
{
    m_bAccepted = false;
    close();
}

void ErrorMessage::slot_textChanged(QString text)
{
    const bool bBlank = text.trimmed().isEmpty();
    ui->acceptBtn->setEnabled(!bBlank);
    if (bBlank) {
        ui->lblerror->hide();
    }
}

void ErrorMessage::slot_textChanged()
{
    QString strText = ui->AutoReplytextEdit->toPlainText();
    if (TextMeasure::getStrCounnt(strText) <= cReplyColumns) {
        return;
    }
    QTextCursor cursor = ui->AutoReplytextEdit->textCursor();
    const int iPosition = TextLimit::cutBackwards(strText, cursor.position(), cReplyColumns);
    ui->AutoReplytextEdit->setPlainText(strText);
    cursor = ui->AutoReplytextEdit->textCursor();
    cursor.setPosition(iPosition);
    ui->AutoReplytextEdit->setTextCursor(cursor);
}

void ErrorMessage::slot_linkActivated(QString)
{
    m_bAccepted = false;
    emit signal_OpenSysSetUi();
    close();
}

// The field ends up with one character, the last that fitted. This is deliberate: the client's tags are typed one
// character after the other.
void ErrorMessage::slot_paste()
{
    if (m_iShowMode != cTagMode) {
        return;
    }
    const QString strText = QGuiApplication::clipboard()->text();
    int iColumns = 0;
    for (int i = 0; i < strText.size();) {
        const QString strCharacter = strText.mid(i, TextLimit::unitsAt(strText, i));
        iColumns += TextMeasure::getStrCounnt(strCharacter);
        if (iColumns > cTagColumns) {
            return;
        }
        ui->AddLineEdit->setText(strCharacter);
        i += strCharacter.size();
    }
}

bool ErrorMessage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        makeDefault(watched);
    }
    if (isPasteKey(event)) {
        slot_paste();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void ErrorMessage::makeDefault(const QObject *pPressed)
{
    const auto *pWidget = qobject_cast<const QWidget *>(pPressed);
    if (pWidget == ui->acceptBtn || ui->acceptBtn->isAncestorOf(pWidget)) {
        setBtnFocus(true);
    } else if (pWidget == ui->closeBtn || ui->closeBtn->isAncestorOf(pWidget)) {
        setBtnFocus(false);
    }
}

void ErrorMessage::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) {
        return;
    }
    ui->retranslateUi(this);
    setUIText();
}

// The form's size is fixed: a message without the room in it ends above the form's line and can be read whole in the
// label's tip.
void ErrorMessage::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    MessageLabel &label = *ui->msgLabel;
    label.setLowestLine(label.mapFrom(ui->backWidget, QPoint(0, ui->backWidget->lineTop())).y());
    label.setToolTip(label.hasRoom() ? QString() : label.text());
}

void ErrorMessage::mousePressEvent(QMouseEvent *event)
{
    QDialog::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && QRect(0, 0, width() - 1, height() - 1).contains(event->pos())) {
        m_dragOffset = event->globalPos() - frameGeometry().topLeft();
    }
}

void ErrorMessage::mouseMoveEvent(QMouseEvent *event)
{
    QDialog::mouseMoveEvent(event);
    if (!m_dragOffset.isNull() && event->globalPos() != m_dragOffset) {
        move(event->globalPos() - m_dragOffset);
    }
}

void ErrorMessage::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_dragOffset = QPoint();
    }
    QDialog::mouseReleaseEvent(event);
}
