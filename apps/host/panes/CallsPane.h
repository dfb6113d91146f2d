#pragma once

#include "panes/CallRecordModel.h"

#include <QWidget>

#include <memory>

class ContactBook;

namespace Ui {
class CallsPane;
}

/// The right half of the main window: the records of finished calls, and the way to the conference centre. A double
/// click on a record, or Enter, calls its other party again in the same way. GUI thread; the model must outlive it.
class CallsPane : public QWidget
{
    Q_OBJECT

public:
    explicit CallsPane(QWidget *parent = nullptr);
    ~CallsPane() override;

    /// Shows the records of this model.
    void setModel(CallRecordModel *pModel);

signals:
    /// The user wants to call the other party of a record again, by voice or video as it was then.
    void callWanted(const QString &strUid, bool bVideo);
    /// The button for the conference centre was pressed.
    void centreWanted();

protected:
    void changeEvent(QEvent *event) override;
    /// Enter in the table.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpColumns();
    void showWhetherEmpty();
    void redial(const QModelIndex &index);

    std::unique_ptr<Ui::CallsPane> ui;
    CallRecordModel *m_pModel = nullptr;
};
