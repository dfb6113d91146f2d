#pragma once

// The members of a finished conference as a grid of heads and names, six to a row. It only shows; resting on a head
// brings the member's signature card.
//
// All state of a cell lives in its item data (model/MemberRoles.h). Part of the conference detail page, which owns it
// and drives it. GUI thread only.

#include <QList>
#include <QMap>
#include <QPoint>
#include <QString>
#include <QTableView>
#include <QTimer>

#include <memory>

class CConfDetailTableViewDelegate;
class FocusRing;
class QStandardItem;
class QStandardItemModel;

class CConfDetailMemberTableView : public QTableView
{
    Q_OBJECT

public:
    /// An empty grid. `parent` may be null.
    explicit CConfDetailMemberTableView(QWidget *parent = nullptr);

    /// Puts the members of `list` (uids) into the cells from the top left one on. Cells beyond them keep what they
    /// have: the caller clears first. An empty list does nothing.
    void setMemList(QList<QString> list);

    /// Empties the grid.
    void clearData();

protected:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private slots:
    void slot_ShowSign();

private:
    void initTableView();
    static std::unique_ptr<QStandardItem> creatMemberItem(const QString &strUserID);
    void placeMember(int iRow, int iColumn, const QString &strUserID);
    void setUpKeys();
    void nameParts();
    void hoverItem(const QModelIndex &index, const QPoint &position);

    QStandardItemModel *m_pModel;
    QList<QString> m_memberList;
    CConfDetailTableViewDelegate *m_pDelegate;
    QMap<QString, QStandardItem *> m_memberItemMap; ///< by uid; the model owns the items
    QTimer m_signTimer;
    QPoint m_signPos;
    QString m_strSignJid;
    FocusRing *m_pRing = nullptr;
};
