#pragma once

// The history list of the conference centre: one row for each conference record with the creator's head and name, when
// it was and how long it lasted.
//
// All state of a row lives in its item data (model/MemberRoles.h). The right button opens a menu, resting on a head
// brings the creator's signature card. Part of the conference centre, which owns it and drives it. GUI thread only.

#include "store/DBConfInfo.h"

#include <QList>
#include <QListView>
#include <QMap>
#include <QPoint>
#include <QString>
#include <QTimer>

#include <memory>

class CConferenceInfoListViewDelegate;
class CMenuEx;
class FocusRing;
class QAction;
class QStandardItem;
class QStandardItemModel;
struct ConferenceCreator;

class CConferenceInfoListView : public QListView
{
    Q_OBJECT

public:
    /// An empty list. `parent` may be null.
    explicit CConferenceInfoListView(QWidget *parent = nullptr);

    /// Appends a row for each record, in the order given; each creator is looked up once. Rows that are there already
    /// stay. An empty list adds nothing.
    void addConfInfoList(QList<ConfInfoData> confInfoList);

    /// Puts a new record's row on top. An empty conference id, or one that has a row, does nothing.
    void addConfInfoData(ConfInfoData confInfo);

    /// Takes one conference's row away. An empty or unknown id does nothing.
    void removeConfInfoData(QString strConfID);

signals:
    /// The user wants to see a conference's details.
    void signal_ShowConfDetail(QString strConfID);
    /// The user wants to call a conference's members again.
    void signal_ReCallConf(QString strConfID);
    /// The user deletes a conference's record.
    void signal_DeleteConfInfo(QString strConfID);

protected:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool eventFilter(QObject *obj, QEvent *event) override;

private slots:
    void slot_selectAction(QAction *pAction);
    void slot_ShowSign();

private:
    static std::shared_ptr<const ConferenceCreator> creatorOf(const QString &strUserID);
    static QStandardItem *creatListItem(const ConfInfoData &confInfo,
                                        const std::shared_ptr<const ConferenceCreator> &pCreator);
    void hoverRow(const QModelIndex &index, const QPoint &position);
    void clickRow(const QModelIndex &index, const QPoint &position);
    void showMenu(const QStandardItem *pItem, const QPoint &place);
    void setUpKeys();
    void nameParts();
    void showKeyMenu(const QModelIndex &index);

protected:
    CConferenceInfoListViewDelegate *m_pDelegate;
    QStandardItemModel *m_pModel;
    QList<ConfInfoData> m_confInfoList; ///< new records at the end, deleted ones still there: not the rows' order
    QMap<QString, QStandardItem *> m_confItemMap; ///< by conference id; the model owns the items
    QString m_strSelectedConfID;                  ///< the row that the menu was opened for last
    CMenuEx *m_pMenu;
    QAction *m_pRecallAction;
    QAction *m_pDeleteAction;
    QTimer m_signTimer;
    QPoint m_signPos;
    QString m_strSignJid;

private:
    FocusRing *m_pRing = nullptr;
};
