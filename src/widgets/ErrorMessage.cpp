#include "widgets/ErrorMessage.h"

#include "ui_ErrorMessage.h"

#include "common/DpiScale.h"
#include "common/Palette.h"

namespace {

// From this label width on, a message is broken into lines.
constexpr int cWrapWidth = 260;

} // namespace

ErrorMessage::ErrorMessage(QString strAcceptText, QString strCloseText, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::ErrorMessage>())
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    setWindowIcon(QIcon(QStringLiteral("Resources/Images/SysTrayIcon/MiniToTaskBar.png")));
    ui->btnClose->setSymbol(SymbolButton::Symbol::Close, QColor(strCOLOR_ICON_MID_GREY));
    ui->btnClose->setHoverColor(QColor(strCOLOR_BRIGHT_RED));
    setStyles();
    connect(ui->acceptBtn, &QPushButton::clicked, this, &ErrorMessage::slot_clickedAccptBtn);
    connect(ui->closeBtn, &QPushButton::clicked, this, &ErrorMessage::slot_clickedCloseBtn);
    connect(ui->btnClose, &QPushButton::clicked, this, &ErrorMessage::slot_clickedCloseBtn);
    setBtnText(strAcceptText, strCloseText);
    ui->btnClose->setToolTip(QObject::tr("close"));
    ADAPT_DPI_WIDGET(this);
    ui->acceptBtn->setEnabled(false);
}

ErrorMessage::~ErrorMessage() = default;

void ErrorMessage::setStyles()
{
    setStyleSheet(ADAPT_DPI_STYLESHEET(QStringLiteral("QLabel{font-family:'微软雅黑';}"
                                                      "QLabel{font-size:12px;color:#585858;}"
                                                      "QLabel#titlelabel{font-size:14px;color:#000000;}"
                                                      "QLabel#msgLabel{font-size:12px;color:#585858;}")));
}

void ErrorMessage::getMsgShow(QString title, QString msg)
{
    ui->stackedWidget->setCurrentWidget(ui->MsgShow);
    ui->titlelabel->setText(title);
    ui->msgLabel->setText(msg);
    ui->msgLabel->setOpenExternalLinks(true);
    ui->acceptBtn->hide();
    ui->closeBtn->setText(QObject::tr("sure"));
    if (ui->msgLabel->width() >= cWrapWidth)
        ui->msgLabel->setWordWrap(true);
    setBtnFocus(false);
    exec();
}

bool ErrorMessage::chooseMsgShow(QString title, QString msg)
{
    ui->stackedWidget->setCurrentWidget(ui->MsgShow);
    ui->titlelabel->setText(title);
    ui->msgLabel->setText(msg);
    if (msg.contains(QObject::tr("lookupHistoryMsg")))
        ui->acceptBtn->setText(QObject::tr("readrecord"));
    ui->acceptBtn->show();
    ui->acceptBtn->setEnabled(true);
    setBtnFocus(true);
    exec();
    return m_bAccepted;
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

void ErrorMessage::slot_clickedAccptBtn()
{
    m_bAccepted = true;
    close();
}

void ErrorMessage::slot_clickedCloseBtn()
{
    m_bAccepted = false;
    close();
}
