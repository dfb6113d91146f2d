#pragma once

// Digests of texts and files, as upper-case hexadecimal text; and the key under which caches on disk file a path.
// getFileHash belongs on the main thread (it renders through a buffer of the process), the others on any.

#include <QString>

class FileDigest
{
public:
    /// MD5 of the text's UTF-8 form, 32 digits.
    static QString getMd5(QString strText);

    /// SHA-1 of the text's UTF-8 form, 40 digits.
    static QString getSha1(QString strText);

    /// MD5 of a file, read in pieces of 4096 bytes. Empty for a file that does not open or cannot be read to its end.
    static QString getFileMd5(QString strPath);

    /// SHA-1 of a file, likewise.
    static QString getFileSha1(QString strPath);

    /// The cache key of a path: 40 lower-case digits. The key is that of the path alone, deliberately: a changed file
    /// keeps its key, and a file need not exist.
    static QString getFileHash(const QString &strPath);
};
