#pragma once

#include "history/CallEntry.h"
#include "history/CallHistoryModel.h"

#include <QWidget>

#include <memory>

class CallHistory;
class ContactBook;

namespace Ui {
class CallsPane;
}

/// The right half of the main window: the history of calls with its search and its filters, what the user has still to
/// be told of, and the way to the conference centre. A double click on a call, or Enter, calls again in the same way; a
/// click on the one that is on, or Enter, asks for its window. Delete deletes what is chosen, and Ctrl+Z or a button
/// brings it back, each deletion for itself, the last one first. Whoever turns to the list, or confirms the notice, has
/// seen what there is. GUI thread.
class CallsPane : public QWidget
{
    Q_OBJECT

public:
    explicit CallsPane(QWidget *parent = nullptr);
    ~CallsPane() override;

    /// Shows this history, with names from the book; both must outlive the pane.
    void show(CallHistory *pHistory, const ContactBook *pBook);
    using QWidget::show;

    /// What is left of the calls by filter and search; null before show().
    const CallHistoryModel *model() const { return m_pModel.get(); }

    /// Why nobody can be called now; empty when one can. Buttons that would call are disabled with it in their tips.
    void setObstacle(const QString &strReason);

signals:
    /// The user wants to call the other party of a single call again, by voice or video as it was then.
    void callWanted(const QString &strUid, bool bVideo);
    /// The user wants to call the people of a conference (user ids) together again.
    void conferenceWanted(const QStringList &uids);
    /// The user wants to see the window of the call that is on.
    void callWindowWanted();
    /// What the user wants cannot be done; the reason, a sentence in the client's language.
    void refused(const QString &strReason);
    /// The button for the conference centre was pressed.
    void centreWanted();

protected:
    void changeEvent(QEvent *event) override;

    /// Keys of table and search field, and the user's turning to the table.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpFilters();
    void setUpKeys();
    void showMissed();
    void showWhetherEmpty();
    QString noneLeftWords() const;
    void showNotice();
    void showDay();
    void showRemoved();
    void showWords();
    void openMenu(const QPoint &place);
    QModelIndexList chosenRows() const;
    bool searchKey(int iKey);
    void turnedTo(Qt::FocusReason reason);
    void redial(const QModelIndex &index);
    void redialEntry(const CallEntry &entry);
    void removeChosen();
    void bringBack();
    void markSeen();
    void nameClearButton();

    std::unique_ptr<Ui::CallsPane> ui;
    CallHistory *m_pHistory = nullptr;
    const ContactBook *m_pBook = nullptr;
    std::unique_ptr<CallHistoryModel> m_pModel;
    QString m_strObstacle;
};
