// What the message dialog shows in each of its modes.

#include "widgets/ErrorMessage.h"

#include "ui_ErrorMessage.h"

#include <array>

namespace {

// From these label widths on, a message is broken into lines.
constexpr int cMessageWrapWidth = 260;
constexpr int cTipWrapWidth = 242;

constexpr int cScreenCutType = 1;

// What the hot key page says before and after the line break, by the type of the hot key.
struct HotKeyWords
{
    const char *used;
    const char *makeSure;
};
constexpr std::array<HotKeyWords, 3> cHotKeyWords{{
    {QT_TRANSLATE_NOOP("QObject", "yourPickMsgHotKeyUsedAndRevise"), QT_TRANSLATE_NOOP("QObject", "makeSureFunction")},
    {QT_TRANSLATE_NOOP("QObject", "yourScreenCutHotKeyUsedAndRevise"),
     QT_TRANSLATE_NOOP("QObject", "makeSureFunction")},
    {QT_TRANSLATE_NOOP("QObject", "yourHotKeyUsedAndRevise"), QT_TRANSLATE_NOOP("QObject", "makeSureCanBeUsed")},
}};

bool isHotKeyType(int iType)
{
    return iType >= 0 && iType < int(cHotKeyWords.size());
}

} // namespace

void ErrorMessage::showPage(QWidget *pPage, const QString &strTitle, int iShowMode)
{
    ui->stackedWidget->setCurrentWidget(pPage);
    ui->titlelabel->setText(strTitle);
    m_iShowMode = iShowMode;
}

void ErrorMessage::showCloseButtonOnly()
{
    ui->acceptBtn->hide();
    ui->closeBtn->setText(QObject::tr("sure"));
    setBtnFocus(false);
}

void ErrorMessage::showBothButtons()
{
    ui->acceptBtn->show();
    setBtnFocus(true);
}

void ErrorMessage::getMsgShow(QString title, QString msg)
{
    showPage(ui->MsgShow, title);
    ui->msgLabel->setText(msg);
    ui->msgLabel->show();
    ui->msgLabel->setOpenExternalLinks(true);
    if (ui->msgLabel->width() >= cMessageWrapWidth) {
        ui->msgLabel->setWordWrap(true);
    }
    showCloseButtonOnly();
    exec();
}

bool ErrorMessage::chooseMsgShow(QString title, QString msg)
{
    showPage(ui->MsgShow, title);
    ui->msgLabel->setText(msg);
    ui->msgLabel->show();
    if (msg.contains(QObject::tr("lookupHistoryMsg"))) {
        ui->acceptBtn->setText(QObject::tr("readrecord"));
    }
    ui->acceptBtn->setEnabled(true);
    showBothButtons();
    exec();
    return m_bAccepted;
}

QString ErrorMessage::lineEditShow(QString title, QString text)
{
    showPage(ui->TextEdit, title);
    ui->AutoReplytextEdit->setText(text);
    ui->acceptBtn->setEnabled(true);
    showBothButtons();
    exec();
    return ui->AutoReplytextEdit->toPlainText().trimmed();
}

QString ErrorMessage::modifyShow(QString title)
{
    showPage(ui->LineEdit, title);
    ui->lineEdit->show();
    ui->acceptBtn->setEnabled(false);
    connect(ui->lineEdit, SIGNAL(textChanged(const QString &)), this, SLOT(slot_textChanged(QString)));
    // Deliberate, enabled after all: the callers let an empty name through to their own check.
    ui->acceptBtn->setEnabled(true);
    ui->lineEdit->clear();
    ui->lineEdit->setFocus();
    showBothButtons();
    exec();
    return ui->lineEdit->text();
}

void ErrorMessage::messagelogTip()
{
    showPage(ui->MsgShow, QObject::tr("tip"));
    ui->AutoReplytextEdit->hide();
    ui->msgLabel->setText(QObject::tr("inputkeyword"));
    if (ui->msgLabel->width() >= cTipWrapWidth) {
        ui->msgLabel->setWordWrap(true);
    }
    showCloseButtonOnly();
    exec();
}

QString ErrorMessage::addLabelToFriend(QString title)
{
    showPage(ui->AddLabel, title, cTagMode);
    ui->lblerror->hide();
    ui->AddLineEdit->setMaxLength(cTagColumns);
    ui->AddLineEdit->setPlaceholderText(QObject::tr("tagsevenwords"));
    showBothButtons();
    exec();
    return ui->AddLineEdit->text();
}

void ErrorMessage::showHotKeyError(QString title, int type)
{
    showPage(isHotKeyType(type) ? ui->page_MsgAndScreen : ui->stackedWidget->currentWidget(), title);
    m_iHotKeyType = type;
    m_strHotKeyTitle = title;
    fillHotKeyLabels();
    if (isHotKeyType(type)) {
        ui->label_10->setText(QObject::tr("period"));
    }
    showCloseButtonOnly();
    show();
}

void ErrorMessage::fillHotKeyLabels()
{
    if (!isHotKeyType(m_iHotKeyType)) {
        return;
    }
    const HotKeyWords &words = cHotKeyWords.at(size_t(m_iHotKeyType));
    ui->label_8->setText(QObject::tr(words.used));
    ui->label_9->setText(QObject::tr(words.makeSure));
    ui->label_11->setText(QObject::tr("modifyhotkey"));
}

// Whatever the dialog was showing, a new language brings the hot key page, and the screen capture's page keeps its old
// full stop. Both are deliberate: the client's settings window relies on finding the page after it changed the
// language.
void ErrorMessage::setUIText()
{
    fillHotKeyLabels();
    if (isHotKeyType(m_iHotKeyType) && m_iHotKeyType != cScreenCutType) {
        ui->label_10->setText(QObject::tr("period"));
    }
    showPage(ui->page_MsgAndScreen, m_strHotKeyTitle, m_iShowMode);
}
