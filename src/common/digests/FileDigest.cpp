#include "common/digests/FileDigest.h"

#include "common/digests/Sha1.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 cChunk = 4096;

QString upperHex(const QByteArray &digest)
{
    return QString::fromLatin1(digest.toHex().toUpper());
}

QString textDigest(const QString &strText, QCryptographicHash::Algorithm algorithm)
{
    return upperHex(QCryptographicHash::hash(strText.toUtf8(), algorithm));
}

QString fileDigest(const QString &strPath, QCryptographicHash::Algorithm algorithm)
{
    QFile file(strPath);
    // The chunk is ours, so the file needs no buffer of its own between it and the disk.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        qDebug() << "error";
        return {};
    }
    QCryptographicHash hash(algorithm);
    char chunk[cChunk];
    qint64 iLeft = file.size();
    while (iLeft > 0) {
        const qint64 iRead = file.read(chunk, qMin(iLeft, cChunk));
        if (iRead <= 0) {
            return {}; // the file became shorter, or is none
        }
        hash.addData(chunk, static_cast<int>(iRead));
        iLeft -= iRead;
    }
    file.close();
    return upperHex(hash.result());
}

} // namespace

QString FileDigest::getMd5(QString strText)
{
    return textDigest(strText, QCryptographicHash::Md5);
}

QString FileDigest::getSha1(QString strText)
{
    return textDigest(strText, QCryptographicHash::Sha1);
}

QString FileDigest::getFileMd5(QString strPath)
{
    return fileDigest(strPath, QCryptographicHash::Md5);
}

QString FileDigest::getFileSha1(QString strPath)
{
    return fileDigest(strPath, QCryptographicHash::Sha1);
}

QString FileDigest::getFileHash(const QString &strPath)
{
    const QByteArray path = strPath.toUtf8();
    const QByteArray pathAndTime = path + QFileInfo(strPath).lastModified().toString(Qt::TextDate).toUtf8();
    sha1_ctx_t context;
    Sha1::sha1_init(&context);
    // Only the path's length is fed, so the time behind it never counts: the caches on disk are keyed this way.
    Sha1::sha1_update(&context, reinterpret_cast<const uint8_t *>(pathAndTime.constData()), path.size());
    uint32_t digest[5];
    Sha1::sha1_final(&context, digest);
    return QString::fromLatin1(Sha1::octet_string_hex_string1(digest, sizeof digest));
}
