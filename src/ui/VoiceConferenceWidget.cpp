#include "ui/VoiceConferenceWidget.h"

#include "ui_VoiceConferenceWidget.h"

#include "common/Palette.h"
#include "common/pictures/IconFont.h"
#include "common/pictures/IconGlyphs.h"
#include "common/system/DpiScale.h"
#include "common/system/ScreenPlace.h"
#include "model/UserIds.h"
#include "plugin/VoipManageEventProcess.h"
#include "ui/EdgeDrag.h"
#include "ui/RowPainter.h"

#include <QBoxLayout>
#include <QMouseEvent>

namespace {

constexpr QSize cCreateIconSize(30, 30);
constexpr int cCreateGlyphPixels = 16;

// Pages of the stack, in the form's order.
constexpr int cListPage = 0;
constexpr int cDetailPage = 1;
// The detail page's margin at the bottom, as the list page has it.
constexpr QMargins cPageMargins(0, 0, 0, 10);

/// The picture of the button that starts a conference, as fine as a screen of that density shows it.
QPixmap createIcon(qreal dRatio)
{
    QPixmap icon = IconFont::getIconFontPixmap(IconGlyph::text(IconGlyph::MicOn), QColor(strCOLOR_ICON_MID_GREY),
                                               cCreateIconSize * dRatio, qRound(cCreateGlyphPixels * dRatio));
    icon.setDevicePixelRatio(dRatio);
    return icon;
}

} // namespace

CVoiceConferenceWidget::CVoiceConferenceWidget(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::CVoiceConferenceWidget>())
{
    ui->setupUi(this);
    setWindowTitle(QStringLiteral("会议详情"));
    initWidget();
    initListView();
    ADAPT_DPI_WIDGET(this);
}

CVoiceConferenceWidget::~CVoiceConferenceWidget() = default;

void CVoiceConferenceWidget::initWidget()
{
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    installEventFilter(this);
    setFixedHeight(cWindowSize.height());
    setFixedWidth(cWindowSize.width());
    insetDetailPage();
    initTitle();
    initButtons();
    connectParts();
    setUpKeys();
    showPage(cListPage);
}

// The page's own layout has no margins. What stands in it is moved into a further layout inside it, which has them.
void CVoiceConferenceWidget::insetDetailPage()
{
    auto *pPage = qobject_cast<QBoxLayout *>(ui->conferenceDetaileWidget->layout());
    auto *pInset = new QVBoxLayout;
    pInset->setObjectName(QStringLiteral("verticalLayout_5"));
    pInset->setSpacing(0);
    pInset->setContentsMargins(cPageMargins);
    while (QLayoutItem *pItem = pPage->takeAt(0)) {
        pInset->addItem(pItem);
    }
    pPage->addLayout(pInset);
}

void CVoiceConferenceWidget::initTitle()
{
    ui->btnClose->setIconFont(IconGlyph::text(IconGlyph::Close), CIconButtonEx::SmallGlyph, CIconButtonEx::RedStyle);
    setTips();
    ui->titleWidget->setStyleSheet(QStringLiteral("QWidget#titleWidget{ background-color: #f1f4f4;}"));
    ui->lblVoipTipMsg->setStyleSheet(QStringLiteral("QLabel#lblVoipTipMsg{ color: #313131; font:14px 微软雅黑; }"));
    ui->lblVoipTipMsg->setText(QStringLiteral("语音会议"));
}

void CVoiceConferenceWidget::setTips()
{
    ui->btnClose->setToolTip(tr("close"));
}

// All texts that are painted are the same in each language.
void CVoiceConferenceWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setTips();
        nameParts();
    }
}

void CVoiceConferenceWidget::initButtons()
{
    const QFont font = RowPainter::textFont();
    // Deliberate: ":press" is no state that sheets know, so the last rule never holds.
    ui->backBtn->setStyleSheet(QStringLiteral(
        "QPushButton#backBtn{border:none;border-image:url(Resources/images/CommonCtrls/kvim_common_back_normal.png);}"
        "QPushButton#backBtn:hover{border:none;"
        "border-image:url(Resources/images/CommonCtrls/kvim_common_back_press.png);}"
        "QPushButton#backBtn:press{border:none;"
        "border-image:url(Resources/images/CommonCtrls/kvim_common_back_press.png);}"));
    ui->backBtn->setFont(font);
    ui->creatConferenceBtn->setIcon(createIcon(devicePixelRatioF()));
    // Shown at its own size: buttons shrink a picture to the style's size of small icons.
    ui->creatConferenceBtn->setIconSize(cCreateIconSize);
    ui->creatConferenceBtn->setText(QStringLiteral("发起语音会议"));
    ui->creatConferenceBtn->setFont(font);
}

void CVoiceConferenceWidget::connectParts()
{
    connect(ui->btnClose, SIGNAL(clicked()), this, SLOT(slot_close()));
    connect(ui->listView, SIGNAL(signal_ShowConfDetail(QString)), this, SLOT(slot_ShowConfDetail(QString)));
    connect(ui->listView, SIGNAL(signal_ReCallConf(QString)), this, SLOT(slot_ReCallConf(QString)));
    connect(ui->listView, SIGNAL(signal_DeleteConfInfo(QString)), this, SLOT(slot_DeleteConfInfo(QString)));
    connect(ui->backBtn, SIGNAL(clicked()), this, SLOT(slot_BackToConfListPage()));
    connect(ui->creatConferenceBtn, SIGNAL(clicked()), this, SLOT(slot_CreatConferencePage()));
}

void CVoiceConferenceWidget::initListView()
{
    const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
    // The store gives the greatest id first: each goes in front of the one before.
    for (const ConfInfoData &record : records) {
        m_confInfoMap.insert(m_confInfoMap.constBegin(), record.m_strConfID, record);
    }
    if (!records.isEmpty()) {
        ui->listView->addConfInfoList(records);
    }
}

void CVoiceConferenceWidget::addConferenceInfo(ConfInfoData confInfo)
{
    if (confInfo.m_strConfID.isEmpty() || m_confInfoMap.contains(confInfo.m_strConfID)) {
        return;
    }
    m_confInfoMap.insert(confInfo.m_strConfID, confInfo);
    ui->listView->addConfInfoData(confInfo);
}

void CVoiceConferenceWidget::showPage(int iPage)
{
    const bool bByKeys = isFocusShown();
    ui->contentStackedWidget->setCurrentIndex(iPage);
    ui->backBtn->setVisible(iPage == cDetailPage);
    ui->creatConferenceBtn->setVisible(iPage == cListPage);
    if (bByKeys) {
        showFocus();
    }
}

void CVoiceConferenceWidget::slot_ShowConfDetail(QString strConfID)
{
    const auto record = m_confInfoMap.constFind(strConfID);
    if (record == m_confInfoMap.constEnd()) {
        return;
    }
    showPage(cDetailPage);
    ui->conferenceDetaileWidget->setConferenceDetail(*record);
}

void CVoiceConferenceWidget::slot_BackToConfListPage()
{
    showPage(cListPage);
    ui->conferenceDetaileWidget->clearDetail();
}

void CVoiceConferenceWidget::slot_CreatConferencePage()
{
    VoipManageEventProcess::notifyCreateVoiceConference({});
}

void CVoiceConferenceWidget::slot_ReCallConf(QString strConfID)
{
    const auto record = m_confInfoMap.constFind(strConfID);
    if (record == m_confInfoMap.constEnd()) {
        return;
    }
    // The own id stays among the members: whether it is called is the receiver's decision.
    QStringList members;
    for (const QString &strUserID : record->m_listMember) {
        if (!strUserID.isEmpty()) {
            members.append(UserIds::getJidByUid(strUserID));
        }
    }
    VoipManageEventProcess::notifyCreateVoiceConference(members);
}

void CVoiceConferenceWidget::slot_DeleteConfInfo(QString strConfID)
{
    if (strConfID.isEmpty() || m_confInfoMap.remove(strConfID) == 0) {
        return;
    }
    ui->listView->removeConfInfoData(strConfID);
    emit signal_DeleteConfInfoData(strConfID);
}

void CVoiceConferenceWidget::slot_close()
{
    close();
}

void CVoiceConferenceWidget::closeEvent(QCloseEvent *)
{
    emit signal_VoiceConfWidgetClose();
}

void CVoiceConferenceWidget::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) {
        m_dragOffset = event->globalPos() - frameGeometry().topLeft();
    }
}

void CVoiceConferenceWidget::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    // Deliberate: the offset alone tells whether a drag is on, so one from the window's very corner moves nothing.
    if (m_dragOffset.isNull()) {
        return;
    }
    if (event->globalPos() != m_dragOffset) {
        move(EdgeDrag::moved(event->globalPos(), m_dragOffset, ScreenPlace::workArea()));
    }
}

void CVoiceConferenceWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_dragOffset = QPoint();
    }
    QWidget::mouseReleaseEvent(event);
}
