#pragma once

#include <QTableView>

class CallHistoryModel;

/// The table of calls. All its columns stand in the width that there is: where that is small the direction is the arrow
/// alone, and the others take what their texts need; names get the rest. GUI thread.
class CallsTable : public QTableView
{
    Q_OBJECT

public:
    explicit CallsTable(QWidget *parent = nullptr);

    /// Shows the calls of the model, which must outlive the table.
    void showCalls(CallHistoryModel *pModel);

    /// Makes room for the texts of the language that the client has now.
    void takeLanguage();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int directionsWidth() const;
    bool isNarrow() const;
    void fit();

    CallHistoryModel *m_pModel = nullptr;
    bool m_bNarrow = false;
    int m_iDirections = 0; // what the words of the directions need
};
