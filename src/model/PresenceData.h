#pragma once

// A contact's presence. A plain value that is copied freely, on any thread; the host keeps the records in CommonData's
// presence map under their jids, where a new one is merged field by field (CommonData::setPresenceDataMap).

#include <QMetaType>
#include <QString>

class PresenceData
{
public:
    /// What is shown of the desktop client. The host defines the values above 0.
    enum ePcShowType : int
    {
        PC_SHOW_NONE = 0
    };

    /// The jid, the record's key.
    QString m_strJid;
    /// A state of the contact, a number of the host; an update changes it only with show type 0 and the flag true.
    int m_iStateA = 0;
    /// A further state of the contact, a number of the host; always taken over.
    int m_iStateB = 0;
    /// The presence on the desktop client.
    ePcShowType m_ePcShowType = PC_SHOW_NONE;
    /// A text of the host, carried along and not read.
    QString m_strText;
    /// In an update that shows nothing for the desktop: true keeps what was shown, false clears it.
    bool m_bFlag = true;
};

Q_DECLARE_METATYPE(PresenceData)
Q_DECLARE_METATYPE(PresenceData::ePcShowType)
