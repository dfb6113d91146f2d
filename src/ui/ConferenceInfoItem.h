#pragma once

// A row of the conference history. It answers the roles of model/MemberRoles.h out of the record's own texts, which the
// list has anyway, so that a history of a hundred thousand rows keeps nothing twice. The model owns it; GUI thread
// only.

#include <QStandardItem>
#include <QString>

#include <memory>

struct ConfInfoData;

/// What the rows show of a conference's creator; all rows of one creator share it.
struct ConferenceCreator
{
    QString strUserID;
    QString strName;
    QString strHeadPath;
    bool bIsMe = false; ///< the logged-in user
};

class ConferenceInfoItem : public QStandardItem
{
public:
    /// The row of `confInfo`, which `pCreator`, never null, created.
    ConferenceInfoItem(const ConfInfoData &confInfo, std::shared_ptr<const ConferenceCreator> pCreator);

    /// What was set with setData, else what the record tells; invalid for a role that it does not tell.
    QVariant data(int iRole) const override;

private:
    QVariant recordData(int iRole) const;

    std::shared_ptr<const ConferenceCreator> m_pCreator;
    QString m_strConfID;
    QString m_strCreatTime;
    QString m_strCallTime;
    bool m_bIsConnect;
};
