#include "common/digests/Sha1.h"

#include <QCryptographicHash>
#include <QTest>

namespace {

QByteArray digestOf(const QByteArray &message)
{
    uint32_t digest[5];
    Sha1::sha1(reinterpret_cast<const uint8_t *>(message.constData()), message.size(), digest);
    return QByteArray(reinterpret_cast<const char *>(digest), sizeof digest).toHex();
}

} // namespace

class tst_Sha1 : public QObject
{
    Q_OBJECT

private slots:
    void publishedVectors_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<QByteArray>("digest");
        QTest::newRow("empty") << QByteArray() << QByteArray("da39a3ee5e6b4b0d3255bfef95601890afd80709");
        QTest::newRow("abc") << QByteArray("abc") << QByteArray("a9993e364706816aba3e25717850c26c9cd0d89d");
        QTest::newRow("two blocks") << QByteArray("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq")
                                    << QByteArray("84983e441c3bd26ebaae4aa1f95129e5e54670f1");
        QTest::newRow("one million a") << QByteArray(1000000, 'a')
                                       << QByteArray("34aa973cd4c4daa4f61eeb2bdbad27316534016f");
    }

    void publishedVectors()
    {
        QFETCH(QByteArray, message);
        QTEST(digestOf(message), "digest");
    }

    void everyLengthAroundTheBlockAgreesWithTheLibrary()
    {
        for (int length = 0; length <= 260; ++length) {
            const QByteArray message(length, 'x');
            QCOMPARE(digestOf(message), QCryptographicHash::hash(message, QCryptographicHash::Sha1).toHex());
        }
    }

    void stepsOfAnySizeGiveTheSameDigest()
    {
        QByteArray message;
        for (int i = 0; i < 1000; ++i) {
            message += static_cast<char>(i * 7);
        }
        for (const int step : {1, 3, 55, 56, 63, 64, 65, 128, 999}) {
            sha1_ctx_t context;
            Sha1::sha1_init(&context);
            for (int at = 0; at < message.size(); at += step) {
                Sha1::sha1_update(&context, reinterpret_cast<const uint8_t *>(message.constData()) + at,
                                  qMin(step, message.size() - at));
            }
            uint32_t digest[5];
            Sha1::sha1_final(&context, digest);
            QCOMPARE(QByteArray(reinterpret_cast<const char *>(digest), sizeof digest).toHex(), digestOf(message));
        }
    }

    void aLengthBelowOneIsTheEmptyMessage()
    {
        uint32_t digest[5];
        Sha1::sha1(nullptr, -5, digest);
        QCOMPARE(QByteArray(Sha1::octet_string_hex_string1(digest, 20)),
                 QByteArray("da39a3ee5e6b4b0d3255bfef95601890afd80709"));
    }

    void hexadecimalTextIsCutAt63Characters_data()
    {
        QTest::addColumn<int>("octets");
        QTest::addColumn<int>("length");
        QTest::newRow("negative") << -1 << 0;
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("one") << 1 << 2;
        QTest::newRow("31") << 31 << 62;
        QTest::newRow("32 fit") << 32 << 64;
        QTest::newRow("33 are cut") << 33 << 63;
        QTest::newRow("many") << 1000 << 63;
    }

    void hexadecimalTextIsCutAt63Characters()
    {
        QFETCH(int, octets);
        QFETCH(int, length);
        const QByteArray data(1000, '\x5e');
        const QByteArray text = Sha1::octet_string_hex_string1(data.constData(), octets);
        QCOMPARE(text, QByteArray(1000, '\x5e').toHex().left(length));
    }

    void nibblesAreLowerCaseDigits()
    {
        QByteArray digits;
        for (int nibble = 0; nibble < 16; ++nibble) {
            digits += Sha1::nibble_to_hex_char1(nibble);
        }
        QCOMPARE(digits, QByteArray("0123456789abcdef"));
        QCOMPARE(Sha1::nibble_to_hex_char1(0x1a), 'a');
    }

    void theNextTextOverwritesTheLast()
    {
        const char *first = Sha1::octet_string_hex_string1("a", 1);
        QCOMPARE(first, "61");
        QCOMPARE(Sha1::octet_string_hex_string1("b", 1), first);
        QCOMPARE(first, "62");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Sha1, Guiless)
#include "tst_Sha1.moc"
