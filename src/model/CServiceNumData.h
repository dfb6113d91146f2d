#pragma once

// A service number, one of the client's official accounts. A plain value that is copied freely, on any thread; the host
// keeps the records in CommonData's service number map under their codes.

#include <QList>
#include <QMetaType>
#include <QString>

class CServiceNumData
{
public:
    /// The code, the record's key.
    QString m_strServiceCode;
    /// The shown name.
    QString m_strName;
    /// The version of the record; "-1": never received.
    QString m_strVersion = QStringLiteral("-1");
};

Q_DECLARE_METATYPE(CServiceNumData)
