#include "common/digests/Identifiers.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

class tst_Identifiers : public QObject
{
    Q_OBJECT

private slots:
    void bothNumbersComeFromOneCounterThatStartsAtZero()
    {
        QCOMPARE(Identifiers::getShortId(), QString("impc0"));
        QCOMPARE(Identifiers::getShortId(), QString("impc1"));
        QCOMPARE(Identifiers::getAutoIncrementNumber(), QString("2"));
        QCOMPARE(Identifiers::getShortId(), QString("impc3"));
    }

    void theCounterIsUnsigned()
    {
        Identifiers::m_nAutoIncrementNumber = Q_UINT64_C(18446744073709551615);
        QCOMPARE(Identifiers::getAutoIncrementNumber(), QString("18446744073709551615"));
        QCOMPARE(Identifiers::getAutoIncrementNumber(), QString("0"));
    }

    void universalIdentifiersHave22CharactersOfTheAddressAlphabet()
    {
        const QRegularExpression wanted("^[A-Za-z0-9_-]{22}$");
        QSet<QString> seen;
        for (int i = 0; i < 1000; ++i) {
            const QString id = Identifiers::getUuid();
            QVERIFY2(wanted.match(id).hasMatch(), qPrintable(id));
            seen.insert(id);
        }
        QCOMPARE(seen.size(), 1000);
    }

    void theBytesOfAnIdentifierAreInOrderOfTheStandard()
    {
        const QByteArray bytes =
            QByteArray::fromBase64(Identifiers::getUuid().toLatin1(), QByteArray::Base64UrlEncoding);
        QCOMPARE(bytes.size(), 16);
        QCOMPARE(bytes.at(6) & 0xf0, 0x40); // a random identifier, version 4, stands in the seventh octet
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Identifiers, Guiless)
#include "tst_Identifiers.moc"
