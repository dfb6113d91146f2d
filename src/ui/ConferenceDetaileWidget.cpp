#include "ui/ConferenceDetaileWidget.h"

#include "ui_ConferenceDetaileWidget.h"

#include "common/pictures/IconFont.h"
#include "common/pictures/IconGlyphs.h"
#include "model/UserIds.h"
#include "ui/ConferenceTexts.h"
#include "ui/RowWords.h"
#include "ui/ShownContact.h"

#include <QPointer>

CConferenceDetaileWidget::CConferenceDetaileWidget(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::CConferenceDetaileWidget>())
{
    ui->setupUi(this);
    initWidget();
}

CConferenceDetaileWidget::~CConferenceDetaileWidget() = default;

void CConferenceDetaileWidget::initWidget()
{
    const QString strTitleStyle = QStringLiteral("QLabel#lblTableViewTitle{ color: #313131; font:14px 微软雅黑; }");
    ui->lblTableViewTitle->setStyleSheet(strTitleStyle);
    // Deliberate: the sheet names the title alone, so these three keep the default look that users know.
    ui->CreatName->setStyleSheet(strTitleStyle);
    ui->lblCallTime->setStyleSheet(strTitleStyle);
    ui->lblCreateTime->setStyleSheet(strTitleStyle);
    ui->isCreatorIcon->setFont(IconFont::getIconFont());
    ui->lblLine->setStyleSheet(QStringLiteral("QLabel#lblLine{background-color: #dbdddd;}"));
    ui->lblTableViewTitle->setText(QStringLiteral("参与人员"));
}

void CConferenceDetaileWidget::setConferenceDetail(ConfInfoData confInfo)
{
    m_confInfoData = confInfo;
    // The host may destroy the page while it looks the creator up.
    const QPointer<CConferenceDetaileWidget> self = this;
    const ShownContact creator = ShownContact::ofUser(confInfo.m_strCreatUserID);
    if (!self) {
        return;
    }
    showCreator(creator);
    ui->lblCallTime->setText(ConferenceTexts::callLength(confInfo.m_strCallTime));
    ui->isCreatorIcon->setText(IconGlyph::text(creator.bIsMe ? IconGlyph::CreatedByMe : IconGlyph::JoinedByMe));
    nameDirection();
    ui->lblCreateTime->setText(ConferenceTexts::titleLine(confInfo.m_strCreatTime));
    ui->tableView->setMemList(confInfo.m_listMember);
}

void CConferenceDetaileWidget::showCreator(const ShownContact &creator)
{
    ui->creatUserIcon->setHeadPictrue(creator.strHeadPath);
    const QString strName = creator.record.displayName();
    if (!strName.isEmpty()) {
        ui->CreatName->setText(strName);
    }
}

void CConferenceDetaileWidget::nameDirection()
{
    ui->isCreatorIcon->setAccessibleName(
        RowWords::direction(m_confInfoData.m_strCreatUserID == UserIds::getLoginUID()));
}

void CConferenceDetaileWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        nameDirection();
    }
}

void CConferenceDetaileWidget::clearDetail()
{
    m_confInfoData = ConfInfoData();
    ui->creatUserIcon->clear();
    ui->CreatName->clear();
    ui->lblCallTime->clear();
    ui->isCreatorIcon->clear();
    ui->lblCreateTime->clear();
    ui->tableView->clearData();
}
