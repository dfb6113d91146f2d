#include "plugin/EventPayload.h"

#include <QTest>

#include <limits>
#include <random>

class tst_EventPayload : public QObject
{
    Q_OBJECT

private slots:
    void packsFieldsAsTheStreamWritesThem()
    {
        QByteArray expected;
        QDataStream stream(&expected, QIODevice::WriteOnly);
        stream << true << QStringLiteral("u1") << qint32(7) << qint64(8);
        QCOMPARE(packPayload(true, QStringLiteral("u1"), 7, qint64(8)), expected);
        QCOMPARE(expected.size(), 1 + (4 + 4) + 4 + 8);
    }

    void packsEachFieldAsTheStreamWritesIt()
    {
        const auto check = [](const auto &...fields) {
            QByteArray expected;
            QDataStream stream(&expected, QIODevice::WriteOnly);
            static_cast<void>((stream << ... << fields));
            QCOMPARE(packPayload(fields...), expected);
        };
        check(false, true);
        for (const qint32 number :
             {0, -1, 258, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()}) {
            check(number, qint64(number) * (1 << 20), quint32(number), qint8(number));
        }
        check(QString(), QStringLiteral(""), QStringLiteral("u1"));
        check(QString(QChar(0)), QStringLiteral("成员"), QString::fromUcs4(U"\U0001F600", 1), QString(QChar(0xd800)));
        check(QString(70000, QLatin1Char('a')), QStringList{QStringLiteral("b"), QString()}, QString(), true);
        check(QByteArray("c"), QStringList(), 1.5);
    }

    void packsNothingToAnEmptyPayload() { QVERIFY(packPayload().isEmpty()); }

    void stringListIsACountAndTheStrings()
    {
        QByteArray byHand;
        QDataStream stream(&byHand, QIODevice::WriteOnly);
        stream << qint32(2) << QStringLiteral("a") << QString();
        QCOMPARE(packPayload(QStringList({QStringLiteral("a"), QString()})), byHand);
        QCOMPARE(packPayload(QStringList()), QByteArray(4, '\0'));
    }

    void readsHandWrittenAndOperatorWrittenListsAlike()
    {
        const QStringList texts{QStringLiteral("一"), QString(), QStringLiteral("c")};
        PayloadReader fromOperator(packPayload(texts, true));
        QCOMPARE(fromOperator.takeTexts(), texts);
        QVERIFY(fromOperator.take<bool>());
        PayloadReader byHand(packPayload(3, texts.at(0), texts.at(1), texts.at(2)));
        QCOMPARE(byHand.takeTexts(), texts);
        QVERIFY(byHand.isComplete());
    }

    void firstFlagIsWhatAReaderTakes()
    {
        for (const QByteArray &payload :
             {packPayload(true), packPayload(false), packPayload(), packPayload(true, 1), QByteArray("\2"),
              QByteArray("\x80"), packPayload(QString()), packPayload(-1)}) {
            QCOMPARE(firstFlag(payload), PayloadReader(payload).take<bool>());
        }
        QVERIFY(firstFlag(packPayload(true, QString())));
        QVERIFY(!firstFlag(packPayload()));
    }

    void firstNumberIsWhatAReaderTakes()
    {
        for (const QByteArray &payload :
             {packPayload(qint64(0x0102030405060708)), packPayload(qint64(-2), true), packPayload(),
              packPayload(QStringLiteral("ab")), packPayload(qint64(7)).chopped(1), packPayload(1)}) {
            QCOMPARE(firstNumber(payload), PayloadReader(payload).take<qint64>());
        }
        QCOMPARE(firstNumber(packPayload(qint64(-2), QString())), qint64(-2));
    }

    void missingFieldsReadAsDefaults()
    {
        PayloadReader reader{QByteArray()};
        QCOMPARE(reader.take<bool>(), false);
        QCOMPARE(reader.take<QString>(), QString());
        QCOMPARE(reader.take<qint64>(), qint64(0));
        QCOMPARE(reader.take<qint32>(), 0);
        QCOMPARE(reader.takeTexts(), QStringList());
    }

    void fieldBehindAShortListReadsAsDefault()
    {
        PayloadReader reader(packPayload(3, QStringLiteral("a")));
        QCOMPARE(reader.takeTexts(), QStringList(QStringLiteral("a")));
        QCOMPARE(reader.take<QString>(), QString());
        QCOMPARE(reader.take<bool>(), false);
    }

    void listEndsWhereThePayloadEnds_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QStringList>("texts");
        const QString a = QStringLiteral("a");
        QTest::newRow("greatest count") << packPayload(std::numeric_limits<qint32>::max(), a) << QStringList(a);
        QTest::newRow("negative count") << packPayload(-1, a) << QStringList();
        QTest::newRow("least count") << packPayload(std::numeric_limits<qint32>::min(), a) << QStringList();
        QTest::newRow("string cut off") << packPayload(2, a, QStringLiteral("bcd")).chopped(1) << QStringList(a);
        QTest::newRow("string of 4 GB") << packPayload(2, a, quint32(0xfffffffe)) << QStringList(a);
        QTest::newRow("string of odd length") << packPayload(2, a, quint32(3), qint64(0)) << QStringList(a);
        QTest::newRow("half a count") << QByteArray(2, '\1') << QStringList();
    }

    void listEndsWhereThePayloadEnds()
    {
        QFETCH(QByteArray, payload);
        QFETCH(QStringList, texts);
        QCOMPARE(PayloadReader(payload).takeTexts(), texts);
    }

    void tellsWhetherAFieldWasMissing()
    {
        PayloadReader whole(packPayload(1, QStringLiteral("a")));
        whole.takeTexts();
        QVERIFY(whole.isComplete());
        PayloadReader cut(packPayload(2, QStringLiteral("a")));
        cut.takeTexts();
        QVERIFY(!cut.isComplete());
    }

    void anyBytesReadLikeTheStreamOperatorOrEndEarly()
    {
        std::mt19937 random(20261);
        int wholeLists = 0;
        for (int i = 0; i < 50000; ++i) {
            QByteArray payload(static_cast<int>(random() % 48), '\0');
            for (char &byte : payload) {
                // Zeros and small numbers are frequent, so that counts and lengths often fit.
                const auto pick = random() % 8;
                byte = static_cast<char>(pick < 5 ? 0 : (pick < 7 ? random() % 9 : random() % 256));
            }
            PayloadReader reader(payload);
            const QStringList texts = reader.takeTexts();
            // Each string takes its length, at the least.
            QVERIFY(texts.size() * 4 <= payload.size());
            if (!reader.isComplete() || payload.at(0) < 0) {
                continue;
            }
            ++wholeLists;
            QDataStream stream(payload);
            QStringList expected;
            stream >> expected;
            QCOMPARE(stream.status(), QDataStream::Ok);
            QCOMPARE(texts, expected);
        }
        QVERIFY(wholeLists > 1000);
    }

    void zeroAddressGivesADefaultRecord() { QVERIFY(recordAt<QString>(0).isNull()); }

    void recordIsCopiedFromItsAddress()
    {
        QString record = QStringLiteral("before");
        const auto copy = recordAt<QString>(static_cast<qint64>(reinterpret_cast<quintptr>(&record)));
        record = QStringLiteral("after");
        QCOMPARE(copy, QStringLiteral("before"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EventPayload, Guiless)
#include "tst_EventPayload.moc"
