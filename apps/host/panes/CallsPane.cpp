#include "panes/CallsPane.h"
#include "ui_CallsPane.h"

#include <QKeyEvent>

CallsPane::CallsPane(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::CallsPane>())
{
    ui->setupUi(this);
    ui->tableRecords->installEventFilter(this);
    connect(ui->btnCentre, &QPushButton::clicked, this, &CallsPane::centreWanted);
    connect(ui->tableRecords, &QTableView::doubleClicked, this, &CallsPane::redial);
}

CallsPane::~CallsPane() = default;

void CallsPane::setModel(CallRecordModel *pModel)
{
    m_pModel = pModel;
    ui->tableRecords->setModel(pModel);
    setUpColumns();
    connect(pModel, &QAbstractItemModel::rowsInserted, this, &CallsPane::showWhetherEmpty);
    showWhetherEmpty();
}

void CallsPane::setUpColumns()
{
    QHeaderView *header = ui->tableRecords->horizontalHeader();
    header->setSectionResizeMode(CallRecordModel::Who, QHeaderView::Stretch);
    header->resizeSection(CallRecordModel::Direction, 130);
    for (const int column :
         {CallRecordModel::Outcome, CallRecordModel::Connected, CallRecordModel::Duration, CallRecordModel::EndedAt}) {
        header->resizeSection(column, 84);
    }
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui->tableRecords->verticalHeader()->setDefaultSectionSize(32);
}

void CallsPane::showWhetherEmpty()
{
    const bool bEmpty = m_pModel->rowCount() == 0;
    ui->lblNoCalls->setVisible(bEmpty);
    ui->tableRecords->setVisible(!bEmpty);
}

void CallsPane::redial(const QModelIndex &index)
{
    if (index.isValid()) {
        const CallRecord &record = m_pModel->records().at(index.row());
        emit callWanted(record.uid, record.video);
    }
}

void CallsPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        if (m_pModel != nullptr) {
            m_pModel->retranslate();
        }
    }
    QWidget::changeEvent(event);
}

bool CallsPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            redial(ui->tableRecords->currentIndex());
            return true;
        }
    } else if (event->type() == QEvent::FocusIn && !ui->tableRecords->currentIndex().isValid() && m_pModel != nullptr) {
        // There is always a record that Enter means.
        ui->tableRecords->setCurrentIndex(m_pModel->index(0, 0));
    }
    return QWidget::eventFilter(watched, event);
}
