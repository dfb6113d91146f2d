#include "traffic/ShownText.h"

#include <QTest>

class tst_ShownText : public QObject
{
    Q_OBJECT

private slots:
    void ordinaryTextStaysAsItIs()
    {
        const QString text = QStringLiteral("李雷 <b>Müller</b> 😀 \\x00 %1");
        QCOMPARE(ShownText::plain(text, 100), text);
        QCOMPARE(ShownText::plain(text, text.size()), text);
        QCOMPARE(ShownText::plain(QString(), 10), QString());
    }

    void charactersThatHideOrReorderShowAsCodes_data()
    {
        QTest::addColumn<ushort>("character");
        QTest::addColumn<QString>("shown");
        QTest::newRow("nul") << ushort(0) << QStringLiteral("\\u0000");
        QTest::newRow("escape") << ushort(0x1b) << QStringLiteral("\\u001b");
        QTest::newRow("line feed") << ushort('\n') << QStringLiteral("\\u000a");
        QTest::newRow("right to left override") << ushort(0x202e) << QStringLiteral("\\u202e");
        QTest::newRow("isolate") << ushort(0x2066) << QStringLiteral("\\u2066");
        QTest::newRow("zero width space") << ushort(0x200b) << QStringLiteral("\\u200b");
        QTest::newRow("line separator") << ushort(0x2028) << QStringLiteral("\\u2028");
        QTest::newRow("paragraph separator") << ushort(0x2029) << QStringLiteral("\\u2029");
    }

    void charactersThatHideOrReorderShowAsCodes()
    {
        QFETCH(ushort, character);
        QFETCH(QString, shown);
        QCOMPARE(ShownText::plain(QStringLiteral("a%1b").arg(QChar(character)), 10), QStringLiteral("a%1b").arg(shown));
    }

    void longTextIsCutAndSaysItsLength()
    {
        QCOMPARE(ShownText::plain(QStringLiteral("abcdef"), 3), QStringLiteral("abc… (6 in all)"));
        QCOMPARE(ShownText::plain(QStringLiteral("abcdef"), 3, 1048576), QStringLiteral("abc… (1048576 in all)"));
        // Half of a character that takes two places is no character.
        QCOMPARE(ShownText::plain(QStringLiteral("ab😀"), 3), QStringLiteral("ab… (4 in all)"));
    }

    void valuesOfSecretKeysAreMasked_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("masked");
        QTest::newRow("json") << R"({"cookie":"s3cr3t","a":"b"})"
                              << R"({"cookie":"••••••","a":"b"})";
        QTest::newRow("json with spaces") << R"({"Password" : "s3cr3t"})"
                                          << R"({"Password" : "••••••"})";
        QTest::newRow("part of a name") << R"({"access_token":"s3cr3t"})"
                                        << R"({"access_token":"••••••"})";
        QTest::newRow("quote within") << "{\"secret\":\"s3\\\"cr3t\",\"a\":1}"
                                      << R"({"secret":"••••••","a":1})";
        QTest::newRow("json within json") << "{\"content\":\"{\\\"token\\\":\\\"s3cr3t\\\",\\\"a\\\":1}\"}"
                                          << "{\"content\":\"{\\\"token\\\":\\\"••••••\\\",\\\"a\\\":1}\"}";
        QTest::newRow("quote within json within json")
            << "{\"content\":\"{\\\"pwd\\\":\\\"s3\\\\\\\"cr3t\\\",\\\"a\\\":1}\"}"
            << "{\"content\":\"{\\\"pwd\\\":\\\"••••••\\\",\\\"a\\\":1}\"}";
        QTest::newRow("log line") << "GET / Cookie: sid=s3cr3t; theme=s3cr3t"
                                  << "GET / Cookie: ••••••";
        QTest::newRow("header in json") << R"({"content":"Authorization: Bearer s3cr3t","resultCode":999})"
                                        << R"({"content":"Authorization: ••••••","resultCode":999})";
        QTest::newRow("number") << R"({"token":12345})"
                                << R"({"token":••••••)";
        QTest::newRow("list") << R"({"cookies":[{"name":"sid","value":"s3cr3t"}]})"
                              << R"({"cookies":••••••)";
        QTest::newRow("several") << R"({"pwd":"s3cr3t","token":"s3cr3t"})"
                                 << R"({"pwd":"••••••","token":"••••••"})";
        QTest::newRow("empty") << R"({"pwd":"","a":"b"})"
                               << R"({"pwd":"","a":"b"})";
    }

    void valuesOfSecretKeysAreMasked()
    {
        QFETCH(QString, text);
        QTEST(SecretMask().masked(text), "masked");
    }

    void otherTextIsNotMasked_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("call") << R"({"messagetype":"CallUser","param1":"30010001","param2":false})";
        QTest::newRow("word without a value") << "the token is gone";
        QTest::newRow("third parameter of another command")
            << R"({"messagetype":"Add2Conference","param3":"30010000"})";
        QTest::newRow("nothing") << "";
    }

    void otherTextIsNotMasked()
    {
        QFETCH(QString, text);
        QCOMPARE(SecretMask().masked(text), text);
    }

    void registrationValueIsMaskedInABrokenLineToo()
    {
        const SecretMask mask;
        QCOMPARE(mask.masked(R"({"messagetype":"RegeditUser","param1":"30010000","param3":"s3cr3t","param4":false})"),
                 QString(R"({"messagetype":"RegeditUser","param1":"30010000","param3":"••••••","param4":false})"));
        QCOMPARE(mask.masked("{\"messagetype\":\"RegeditUser\",\"param3\":\"s3cr3t"),
                 QString("{\"messagetype\":\"RegeditUser\",\"param3\":\"••••••"));
    }

    void learnedSecretIsMaskedEverywhere()
    {
        SecretMask mask;
        mask.learn(QStringLiteral("s3cr3t"));
        QCOMPARE(mask.masked(QStringLiteral("registered with s3cr3t, s3cr3t")),
                 QStringLiteral("registered with ••••••, ••••••"));
    }

    void shortSecretIsNotLearned()
    {
        SecretMask mask;
        mask.learn(QString());
        mask.learn(QStringLiteral("abc"));
        QCOMPARE(mask.masked(QStringLiteral("abcabc")), QStringLiteral("abcabc"));
    }

    void cutSecretIsMaskedToTheEnd()
    {
        QCOMPARE(SecretMask().masked(QStringLiteral("{\"token\":\"") + QString(60000, QLatin1Char('x'))),
                 QStringLiteral("{\"token\":\"••••••"));
        // Every backslash is looked at from the quote behind it.
        const QString slashes = QStringLiteral("{\"token\":\"") + QString(60000, QLatin1Char('\\'));
        QCOMPARE(SecretMask().masked(slashes), QStringLiteral("{\"token\":\"••••••"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ShownText, Guiless)
#include "tst_ShownText.moc"
