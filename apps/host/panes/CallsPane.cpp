#include "panes/CallsPane.h"

#include "ui_CallsPane.h"

#include "client/ContactBook.h"
#include "client/DayWatch.h"
#include "history/CallHistory.h"
#include "history/CallSentences.h"
#include "panes/CallsTable.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>
#include <functional>

namespace {

// So many calls are listed in the notice; the others are counted.
constexpr size_t cNoticeLines = 3;

QString runningReason()
{
    return CallsPane::tr("A call that is on cannot be deleted.");
}

} // namespace

CallsPane::CallsPane(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::CallsPane>())
{
    ui->setupUi(this);
    for (QWidget *part : {static_cast<QWidget *>(ui->tableRecords), ui->tableRecords->viewport(),
                          static_cast<QWidget *>(ui->editCallSearch)}) {
        part->installEventFilter(this);
    }
    nameClearButton();
    setUpFilters();
    setUpKeys();
    connect(new DayWatch(this), &DayWatch::dayChanged, this, &CallsPane::showDay);
    connect(ui->btnCentre, &QPushButton::clicked, this, &CallsPane::centreWanted);
    connect(ui->tableRecords, &CallsTable::clicked, this, [this](const QModelIndex &index) {
        if (m_pModel->entryAt(index.row()).isRunning()) {
            emit callWindowWanted();
        }
    });
    connect(ui->tableRecords, &CallsTable::doubleClicked, this, &CallsPane::redial);
    connect(ui->tableRecords, &QWidget::customContextMenuRequested, this, &CallsPane::openMenu);
    connect(ui->btnMissed, &QPushButton::clicked, this, &CallsPane::showMissed);
    connect(ui->btnUndo, &QPushButton::clicked, this, &CallsPane::bringBack);
    connect(ui->btnSeen, &QPushButton::clicked, this, &CallsPane::markSeen);
    connect(ui->btnCallAgain, &QPushButton::clicked, this, [this] {
        const std::vector<CallEntry> unseen = m_pHistory->unseen();
        markSeen();
        redialEntry(unseen.front());
    });
}

CallsPane::~CallsPane() = default;

void CallsPane::show(CallHistory *pHistory, const ContactBook *pBook)
{
    m_pHistory = pHistory;
    m_pBook = pBook;
    m_pModel = std::make_unique<CallHistoryModel>(*pHistory, *pBook);
    ui->tableRecords->showCalls(m_pModel.get());
    connect(ui->editCallSearch, &QLineEdit::textChanged, m_pModel.get(), &CallHistoryModel::setSearch);
    connect(m_pModel.get(), &QAbstractItemModel::modelReset, this, &CallsPane::showWhetherEmpty);
    connect(m_pModel.get(), &QAbstractItemModel::rowsInserted, this, &CallsPane::showWhetherEmpty);
    connect(m_pModel.get(), &QAbstractItemModel::rowsRemoved, this, &CallsPane::showWhetherEmpty);
    connect(pHistory, &CallHistory::added, this, &CallsPane::showNotice);
    connect(pHistory, &CallHistory::changed, this, &CallsPane::showNotice);
    connect(pHistory, &CallHistory::reset, this, &CallsPane::showNotice);
    connect(pHistory, &CallHistory::allSeen, this, &CallsPane::showNotice);
    showWords();
}

void CallsPane::setUpFilters()
{
    auto *group = new QButtonGroup(this);
    group->addButton(ui->btnFilterAll, CallHistoryModel::All);
    group->addButton(ui->btnFilterMissed, CallHistoryModel::Missed);
    group->addButton(ui->btnFilterConferences, CallHistoryModel::Conferences);
    connect(group, &QButtonGroup::idToggled, this, [this](int iFilter, bool bOn) {
        if (bOn && m_pModel != nullptr) {
            m_pModel->setFilter(CallHistoryModel::Filter(iFilter));
        }
        if (bOn && iFilter == CallHistoryModel::Missed) {
            markSeen();
        }
    });
}

void CallsPane::setUpKeys()
{
    const auto *remove = new QShortcut(QKeySequence::Delete, ui->tableRecords, nullptr, nullptr, Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, &CallsPane::removeChosen);
    // Of the whole pane: without a call there is no table that could have the keyboard.
    const auto *undo = new QShortcut(QKeySequence::Undo, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(undo, &QShortcut::activated, this, &CallsPane::bringBack);
}

void CallsPane::showMissed()
{
    ui->editCallSearch->clear();
    ui->btnFilterMissed->setChecked(true);
    ui->tableRecords->setFocus(Qt::ShortcutFocusReason);
}

void CallsPane::showWhetherEmpty()
{
    const bool bEmpty = m_pModel == nullptr || m_pModel->rowCount() == 0;
    const bool bNone = m_pHistory == nullptr || m_pHistory->entries().empty();
    ui->lblNoCalls->setText(bNone ? tr("No calls yet") : noneLeftWords());
    ui->lblNoCalls->setVisible(bEmpty);
    ui->tableRecords->setVisible(!bEmpty);
}

QString CallsPane::noneLeftWords() const
{
    const bool bSearched = !ui->editCallSearch->text().trimmed().isEmpty();
    switch (m_pModel->filter()) {
    case CallHistoryModel::Missed:
        return bSearched ? tr("No missed call matches") : tr("No missed calls");
    case CallHistoryModel::Conferences:
        return bSearched ? tr("No conference matches") : tr("No conferences");
    default:
        return tr("No call matches");
    }
}

void CallsPane::showNotice()
{
    const std::vector<CallEntry> unseen = m_pHistory->unseen();
    QStringList lines;
    for (const CallEntry &call : unseen) {
        if (size_t(lines.size()) == cNoticeLines) {
            lines << tr("and %n more", nullptr, int(unseen.size() - cNoticeLines));
            break;
        }
        lines << CallSentences::notice(call, *m_pBook) + QStringLiteral("  ·  ") +
                     CallHistoryModel::whenText(call.begun, QDate::currentDate());
    }
    ui->lblCallNotice->setText(lines.join(QLatin1Char('\n')));
    ui->callNotice->setVisible(!unseen.empty());
    ui->callNotice->setAccessibleName(ui->lblCallNotice->text());
    const int missed = int(std::count_if(unseen.begin(), unseen.end(), std::mem_fn(&CallEntry::isMissed)));
    ui->btnMissed->setText(tr("%n missed", nullptr, missed));
    ui->btnMissed->setVisible(missed > 0);
}

void CallsPane::markSeen()
{
    if (m_pHistory != nullptr) {
        m_pHistory->setAllSeen();
    }
}

void CallsPane::setObstacle(const QString &strReason)
{
    m_strObstacle = strReason;
    ui->btnCallAgain->setEnabled(strReason.isEmpty());
    ui->btnCallAgain->setToolTip(strReason.isEmpty() ? tr("Call who stands in the first line") : strReason);
    ui->btnCallAgain->setAccessibleDescription(ui->btnCallAgain->toolTip());
}

void CallsPane::redial(const QModelIndex &index)
{
    if (index.isValid()) {
        redialEntry(m_pModel->entryAt(index.row()));
    }
}

void CallsPane::redialEntry(const CallEntry &entry)
{
    if (entry.isRunning()) {
        emit callWindowWanted();
        return;
    }
    if (!entry.conference) {
        emit callWanted(entry.uid, entry.video);
        return;
    }
    QStringList uids = entry.members;
    if (!entry.caller && !uids.contains(entry.uid)) {
        uids.prepend(entry.uid);
    }
    emit conferenceWanted(uids);
}

QModelIndexList CallsPane::chosenRows() const
{
    return ui->tableRecords->selectionModel()->selectedRows();
}

void CallsPane::removeChosen()
{
    const QModelIndexList rows = chosenRows();
    QSet<qint64> ids;
    int first = m_pModel->rowCount();
    for (const QModelIndex &index : rows) {
        ids.insert(m_pModel->entryAt(index.row()).id);
        first = qMin(first, index.row());
    }
    const int removed = m_pHistory->remove(ids);
    if (removed < ids.size()) {
        emit refused(runningReason());
    }
    if (removed == 0) {
        return;
    }
    showRemoved();
    // The keyboard goes on where it was.
    if (m_pModel->rowCount() > 0) {
        ui->tableRecords->setCurrentIndex(m_pModel->index(qMin(first, m_pModel->rowCount() - 1), 0));
    } else {
        ui->btnUndo->setFocus(Qt::OtherFocusReason);
    }
}

void CallsPane::bringBack()
{
    m_pHistory->restore();
    showRemoved();
    ui->tableRecords->setFocus(Qt::OtherFocusReason);
}

void CallsPane::showRemoved()
{
    const int restorable = m_pHistory == nullptr ? 0 : m_pHistory->restorable();
    ui->removed->setVisible(restorable > 0);
    ui->lblRemoved->setText(tr("%n call(s) deleted", nullptr, restorable));
}

void CallsPane::openMenu(const QPoint &place)
{
    const QModelIndex index = ui->tableRecords->currentIndex();
    if (!index.isValid()) {
        return;
    }
    const CallEntry entry = m_pModel->entryAt(index.row());
    QMenu menu(this);
    const auto add = [&](const QString &strWords, const QString &strReason, const std::function<void()> &act) {
        QAction *action = menu.addAction(strWords);
        action->setEnabled(strReason.isEmpty());
        action->setToolTip(strReason);
        connect(action, &QAction::triggered, this, act);
    };
    menu.setToolTipsVisible(true);
    if (entry.conference) {
        add(tr("Call together again..."), m_strObstacle, [this, entry] { redialEntry(entry); });
    } else {
        add(tr("Call"), m_strObstacle, [this, entry] { emit callWanted(entry.uid, false); });
        add(tr("Call by video"), m_strObstacle, [this, entry] { emit callWanted(entry.uid, true); });
    }
    menu.addSeparator();
    const QModelIndexList chosen = chosenRows();
    const bool bAllRun = std::all_of(chosen.begin(), chosen.end(), [this](const QModelIndex &row) {
        return m_pModel->entryAt(row.row()).isRunning();
    });
    add(tr("Delete"), bAllRun ? runningReason() : QString(), [this] { removeChosen(); });
    menu.exec(ui->tableRecords->viewport()->mapToGlobal(place));
}

void CallsPane::showWords()
{
    setObstacle(m_strObstacle);
    showWhetherEmpty();
    if (m_pHistory != nullptr) {
        showNotice();
        showRemoved();
    }
}

/// "Today" and "Yesterday" are others.
void CallsPane::showDay()
{
    if (m_pModel != nullptr) {
        m_pModel->retranslate();
        showNotice();
    }
}

void CallsPane::nameClearButton()
{
    // The button is the edit field's own part, so the form cannot name it.
    auto *button = ui->editCallSearch->findChild<QToolButton *>();
    button->setObjectName(QStringLiteral("btnClearCallSearch"));
    button->setAccessibleName(tr("Clear the search"));
    button->setToolTip(button->accessibleName());
}

void CallsPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        nameClearButton();
        if (m_pModel != nullptr) {
            m_pModel->retranslate();
            ui->tableRecords->takeLanguage();
        }
        showWords();
    }
    QWidget::changeEvent(event);
}

/// The keys of the search field that lead elsewhere.
bool CallsPane::searchKey(int iKey)
{
    if (iKey == Qt::Key_Escape) {
        ui->editCallSearch->clear();
        return true;
    }
    if (iKey == Qt::Key_Down || iKey == Qt::Key_Return || iKey == Qt::Key_Enter) {
        ui->tableRecords->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

void CallsPane::turnedTo(Qt::FocusReason reason)
{
    // Enter always has a row to act on.
    if (!ui->tableRecords->currentIndex().isValid()) {
        ui->tableRecords->setCurrentIndex(m_pModel->index(0, 0));
    }
    // Focus that comes back with the window's activation does not mean that the user looked at the list.
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason) {
        markSeen();
    }
}

bool CallsPane::eventFilter(QObject *watched, QEvent *event)
{
    if (m_pModel == nullptr) {
        return QWidget::eventFilter(watched, event);
    }
    if (watched == ui->editCallSearch) {
        return event->type() == QEvent::KeyPress && searchKey(static_cast<QKeyEvent *>(event)->key());
    }
    switch (event->type()) {
    case QEvent::KeyPress: {
        markSeen();
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            redial(ui->tableRecords->currentIndex());
            return true;
        }
        break;
    }
    case QEvent::MouseButtonPress:
        markSeen();
        break;
    case QEvent::FocusIn:
        turnedTo(static_cast<QFocusEvent *>(event)->reason());
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
