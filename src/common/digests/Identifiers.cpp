#include "common/digests/Identifiers.h"

#include <QUuid>

quint64 Identifiers::m_nAutoIncrementNumber = 0;

QString Identifiers::getUuid()
{
    const QByteArray uuid = QUuid::createUuid().toRfc4122();
    return QString::fromLatin1(uuid.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

QString Identifiers::getShortId()
{
    return QLatin1String("impc") + getAutoIncrementNumber();
}

QString Identifiers::getAutoIncrementNumber()
{
    return QString::number(m_nAutoIncrementNumber++);
}
