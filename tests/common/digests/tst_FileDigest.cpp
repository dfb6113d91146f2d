#include "common/digests/FileDigest.h"
#include "fakes/FileBytes.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTest>

class tst_FileDigest : public QObject
{
    Q_OBJECT

private slots:
    void textDigestsAreThoseOfUtf8InUpperCase()
    {
        QCOMPARE(FileDigest::getMd5(QString()), QString("D41D8CD98F00B204E9800998ECF8427E"));
        QCOMPARE(FileDigest::getMd5("abc"), QString("900150983CD24FB0D6963F7D28E17F72"));
        QCOMPARE(FileDigest::getSha1("abc"), QString("A9993E364706816ABA3E25717850C26C9CD0D89D"));
        const QByteArray utf8 = "\xe4\xb8\xad\xe6\x96\x87";
        QCOMPARE(FileDigest::getMd5("中文"),
                 QString::fromLatin1(QCryptographicHash::hash(utf8, QCryptographicHash::Md5).toHex().toUpper()));
    }

    void fileDigests_data()
    {
        QTest::addColumn<int>("length");
        for (const int length : {0, 1, 55, 56, 63, 64, 65, 119, 128, 129, 4095, 4096, 4097, 8192, 1000000}) {
            QTest::newRow(qPrintable(QString::number(length))) << length;
        }
    }

    void fileDigests()
    {
        QFETCH(int, length);
        const QByteArray bytes(length, 'a');
        QVERIFY(writeFile("digest.bin", bytes));
        QCOMPARE(FileDigest::getFileMd5("digest.bin"), FileDigest::getMd5(QString::fromLatin1(bytes)));
        QCOMPARE(FileDigest::getFileSha1("digest.bin"), FileDigest::getSha1(QString::fromLatin1(bytes)));
    }

    void aMillionLettersGiveThePublishedDigests()
    {
        QVERIFY(writeFile("million.bin", QByteArray(1000000, 'a')));
        QCOMPARE(FileDigest::getFileSha1("million.bin"), QString("34AA973CD4C4DAA4F61EEB2BDBAD27316534016F"));
        QCOMPARE(FileDigest::getFileMd5("million.bin"), QString("7707D6AE4E027C70EEA2A935C2296F21"));
    }

    void aFileThatDoesNotOpenGivesNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << "no such file";
        QTest::newRow("empty path") << QString();
        QTest::newRow("folder") << ".";
    }

    void aFileThatDoesNotOpenGivesNothing()
    {
        QFETCH(QString, path);
        QTest::ignoreMessage(QtDebugMsg, "error");
        QCOMPARE(FileDigest::getFileMd5(path), QString());
        QTest::ignoreMessage(QtDebugMsg, "error");
        QCOMPARE(FileDigest::getFileSha1(path), QString());
    }

    void theCacheKeyIsThatOfThePathAlone()
    {
        const QString path = QDir::current().absoluteFilePath("图 picture.png");
        const QString key =
            QString::fromLatin1(QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex());
        QCOMPARE(FileDigest::getFileHash(path), key);
        QVERIFY(writeFile(path, "one"));
        QCOMPARE(FileDigest::getFileHash(path), key);
        QVERIFY(writeFile(path, "another"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::fromSecsSinceEpoch(86400), QFileDevice::FileModificationTime));
        file.close();
        QCOMPARE(FileDigest::getFileHash(path), key);
    }

    void theEmptyPathHasTheKeyOfNothing()
    {
        QCOMPARE(FileDigest::getFileHash(QString()), QString("da39a3ee5e6b4b0d3255bfef95601890afd80709"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FileDigest, Guiless)
#include "tst_FileDigest.moc"
