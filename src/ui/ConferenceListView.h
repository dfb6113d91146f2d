#pragma once

// The member list of a running conference: one row for each member with head picture, name, creator mark and status.
//
// All state of a row lives in its item data (model/MemberRoles.h). At the creator's side the list also runs the
// watchdog that marks members who never answered. Part of the call window, which owns it and drives it. GUI thread
// only.

#include "model/UidIndex.h"

#include <QList>
#include <QListView>
#include <QMap>
#include <QString>
#include <QTimer>

class CConferenceListViewDelegate;
class FocusRing;
class QStandardItem;
class QStandardItemModel;
class VcardInfo;

class CConferenceListView : public QListView
{
    Q_OBJECT

public:
    /// An empty list. `parent` may be null.
    explicit CConferenceListView(QWidget *parent = nullptr);

    /// Whether this user placed the conference. Counts for the rows made afterwards only.
    void setIsCallByMe(bool bIsCallByMe);

    /// Takes `userList` (uids) as the members and adds a row for each. Rows that are there already stay: the caller
    /// clears first. An empty list adds nothing.
    void addUserList(QList<QString> userList);

    /// Adds one member, or restarts the time that a present member has to answer. An empty uid does nothing.
    void addUser(QString strUserID);

    /// Takes one member's row away. An empty or unknown uid does nothing.
    void removeUser(QString strUserID);

    /// Empties the list, forgets the creator and stops the watchdog.
    void clearMembers();

    /// Marks the creator's row, now or when it is made. When the creator is the logged-in user the watchdog starts
    /// anew, with or without a row.
    void setConferenceCreator(QString strCreator);

    /// The members of `list` (uids) are connected; all others keep their status.
    void updateConferenceListStatus(QList<QString> list);

    /// The members of `list` (uids) could not be called. Unknown uids and an empty list do nothing.
    void setAddConfFailedList(QList<QString> list);

    /// Sets a member's status code; a number beyond an int's range becomes the nearest int, which has no text of its
    /// own either. An unknown uid is ignored.
    void updateConferenceUserStatus(QString strUserID, qlonglong iStatus);

    /// Marks every row as muted or not. No signal goes out.
    void setMuteAll(bool bMute);

    /// Puts a card's nick name and picture into the row of the member with this jid. An unknown jid is ignored.
    void updateUserInfo(QString strJid, VcardInfo vcard);

signals:
    /// The user takes a member out of the conference.
    void signal_RemoveUser(QString strUserID);
    /// The user mutes or unmutes a member.
    void signal_MuteUser(QString strUserID, bool bMute);
    /// The user calls a member again who was not reached.
    void signal_ReInviteConfUser(QString strUserID);

protected:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *obj, QEvent *event) override;

private slots:
    void slot_UpdateCallStatu();

private:
    void hoverItem(QStandardItem *pItem, const QPoint &position);
    void clickItem(QStandardItem *pItem, const QPoint &position);
    void reInviteMember(QStandardItem *pItem);
    void muteMember(QStandardItem *pItem);
    void setUpKeys();
    void nameParts();
    QStandardItem *currentItem() const;
    QVector<int> keyParts() const;
    int keyPart() const;
    QRect keyPlace() const;
    void moveKeyPart(int iSteps);
    void pressKeyPart();
    void removeByKey();
    void showKeyMenu();
    QStandardItem *creatUserItem(const QString &strUserID);
    void appendUserItem(const QString &strUserID);

    CConferenceListViewDelegate *m_pDelegate;
    QStandardItemModel *m_pModel;
    QList<QString> m_userList;
    QMap<QString, QStandardItem *> m_userItemMap;
    QString m_strCreator;
    bool m_bIsCallByMe = true;
    QTimer m_statusTimer;
    UidIndex m_userIndex; ///< of m_userList
    FocusRing *m_pRing = nullptr;
    int m_iKeyPart = 0; ///< the part of the current row that keys press: the role of a button's place, 0 for the row
    /// The members last marked as connected, as long as no row has come and no status has changed since: the same list
    /// again, as most updates bring it, has nothing to mark.
    QList<QString> m_connectedList;
};
