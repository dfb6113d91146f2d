#include "happenings/HappeningsPanel.h"

#include "ui_HappeningsPanel.h"

#include "happenings/TraceNote.h"
#include "session/HostSession.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>

#include <algorithm>

HappeningsPanel::HappeningsPanel(HostSession &session, const QString &strTraceFile, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::HappeningsPanel>()), m_service(session.callService()), m_filter(m_model),
      m_feed(session, strTraceFile, m_model)
{
    ui->setupUi(this);
    setUpView();
    setUpActions();
    connectFilter();
    takeTrace();
    connect(&m_service, &CallService::changed, this, &HappeningsPanel::takeTrace);
    connect(&m_feed, &HappeningsFeed::aboutToTake, this, &HappeningsPanel::rememberPlace);
    connect(&m_feed, &HappeningsFeed::taken, this, &HappeningsPanel::restorePlace);
    connect(ui->btnPause, &QPushButton::toggled, &m_feed, &HappeningsFeed::setPaused);
    connect(ui->btnPause, &QPushButton::toggled, this, &HappeningsPanel::showCount);
    connect(ui->boxFollow, &QCheckBox::clicked, this, &HappeningsPanel::setFollowing);
    connect(ui->btnClear, &QPushButton::clicked, this, &HappeningsPanel::clear);
    connect(ui->btnCopy, &QPushButton::clicked, this, &HappeningsPanel::copy);
    showCount();
}

HappeningsPanel::~HappeningsPanel()
{
    // The view is destroyed after the form's pointers and may still scroll or select meanwhile; the panel must not hear
    // of that.
    ui->viewHappenings->verticalScrollBar()->disconnect(this);
    ui->viewHappenings->selectionModel()->disconnect(this);
}

void HappeningsPanel::takeTrace()
{
    // While nobody is connected, the next one is expected to write where the last one did.
    if (m_service.process() != 0) {
        m_feed.follow(m_service.trace().file);
    }
    ui->lblTrace->setText(TraceNote::of(m_service));
    ui->lblTrace->setVisible(!ui->lblTrace->text().isEmpty());
}

QSize HappeningsPanel::sizeHint() const
{
    return {540, 640};
}

void HappeningsPanel::setUpView()
{
    ui->splitter->setSizes({440, 130});
    QTreeView *view = ui->viewHappenings;
    view->setModel(&m_filter);
    view->header()->setSectionsMovable(false);
    view->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const QFontMetrics metrics(view->font());
    const int margin = 2 * metrics.horizontalAdvance(QLatin1Char('0'));
    view->setColumnWidth(HappeningsModel::Time, metrics.horizontalAdvance(QStringLiteral("00:00:00.000")) + margin);
    view->setColumnWidth(HappeningsModel::WayGlyph, metrics.horizontalAdvance(QChar(0x21D2)) + margin);
    int widest = 0;
    for (const Happening::Kind kind : {Happening::Event, Happening::Wire, Happening::Error}) {
        widest = qMax(widest, metrics.horizontalAdvance(HappeningsModel::kindText(kind)));
    }
    view->setColumnWidth(HappeningsModel::KindWord, widest + margin);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, &HappeningsPanel::showDetail);
    connect(view->verticalScrollBar(), &QScrollBar::valueChanged, this, &HappeningsPanel::noteScrolled);
}

void HappeningsPanel::setUpActions()
{
    ui->viewHappenings->addActions({ui->actionCopy, ui->actionCopyAll, ui->actionClear});
    connect(ui->actionCopy, &QAction::triggered, this, [this] { copyRows(selectedRows()); });
    connect(ui->actionCopyAll, &QAction::triggered, this, [this] { copyRows(shownRows()); });
    connect(ui->actionClear, &QAction::triggered, this, &HappeningsPanel::clear);
}

void HappeningsPanel::connectFilter()
{
    connect(ui->editFilter, &QLineEdit::textChanged, this, [this](const QString &strText) {
        rememberPlace();
        m_filter.setText(strText);
        restorePlace();
    });
    const std::pair<QCheckBox *, Happening::Kind> boxes[] = {
        {ui->boxEvents, Happening::Event}, {ui->boxWires, Happening::Wire}, {ui->boxErrors, Happening::Error}};
    for (const auto &[box, kind] : boxes) {
        connect(box, &QCheckBox::toggled, this, [this, kind = kind](bool bShown) {
            rememberPlace();
            m_filter.setKindShown(kind, bShown);
            restorePlace();
        });
    }
}

void HappeningsPanel::setFollowing(bool bFollow)
{
    ui->boxFollow->setChecked(bFollow);
    if (bFollow) {
        ui->viewHappenings->scrollToBottom();
    }
}

void HappeningsPanel::noteScrolled(int iValue)
{
    // A person who scrolls back wants to stay there; one who returns to the end wants to follow again.
    if (!m_bTaking) {
        ui->boxFollow->setChecked(iValue >= ui->viewHappenings->verticalScrollBar()->maximum());
    }
}

void HappeningsPanel::rememberPlace()
{
    m_bTaking = true;
    m_top = ui->viewHappenings->indexAt(QPoint(0, 0));
}

void HappeningsPanel::restorePlace()
{
    if (ui->boxFollow->isChecked()) {
        ui->viewHappenings->scrollToBottom();
    } else if (m_top.isValid()) {
        ui->viewHappenings->scrollTo(m_top, QAbstractItemView::PositionAtTop);
    } else {
        ui->viewHappenings->doItemsLayout();
    }
    m_top = QPersistentModelIndex();
    m_bTaking = false;
    showCount();
}

void HappeningsPanel::showDetail()
{
    const QModelIndex current = ui->viewHappenings->currentIndex();
    if (!current.isValid()) {
        ui->textDetail->clear();
        return;
    }
    const Happening &row = m_model.at(m_filter.mapToSource(current).row());
    const QString head = QStringList{HappeningsModel::timeText(row.time), HappeningsModel::wayText(row.way),
                                     HappeningsModel::kindText(row.kind)}
                             .join(QStringLiteral(" · "));
    ui->textDetail->setPlainText(head + QLatin1Char('\n') + row.words + QStringLiteral("\n\n") + row.raw);
}

void HappeningsPanel::showCount()
{
    const int all = m_model.rowCount();
    const int shown = m_filter.rowCount();
    QStringList parts;
    parts << (shown == all ? tr("%n lines", nullptr, all) : tr("%1 of %2 lines").arg(shown).arg(all));
    if (m_feed.isPaused()) {
        parts << tr("paused, %1 waiting").arg(m_feed.waiting());
    }
    if (m_model.dropped() > 0) {
        parts << tr("the oldest %1 were dropped").arg(m_model.dropped());
    }
    ui->lblCount->setText(parts.join(QStringLiteral(" · ")));
}

void HappeningsPanel::clear()
{
    m_feed.clear();
    m_model.clear();
    showDetail();
    setFollowing(true);
    showCount();
}

void HappeningsPanel::copy()
{
    const QModelIndexList selected = selectedRows();
    copyRows(selected.isEmpty() ? shownRows() : selected);
}

void HappeningsPanel::copyRows(const QModelIndexList &rows)
{
    if (rows.isEmpty()) {
        return;
    }
    QStringList lines;
    for (const QModelIndex &row : rows) {
        lines << m_model.line(m_filter.mapToSource(row).row());
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

QModelIndexList HappeningsPanel::selectedRows() const
{
    QModelIndexList rows = ui->viewHappenings->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    return rows;
}

QModelIndexList HappeningsPanel::shownRows() const
{
    QModelIndexList rows;
    for (int row = 0; row < m_filter.rowCount(); ++row) {
        rows << m_filter.index(row, 0);
    }
    return rows;
}

void HappeningsPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        m_model.retranslate();
        takeTrace();
        showDetail();
        showCount();
    }
    QWidget::changeEvent(event);
}
