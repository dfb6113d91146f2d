#include "common/settings/ExpectedUrls.h"
#include "common/system/ClientFolder.h"

namespace {

const char cGoodAddress[] = "http://card.example/load";

QStringList everyDefault()
{
    QStringList answers;
    for (const ExpectedUrl &row : expectedUrls()) {
        answers << row.defaultValue;
    }
    return answers;
}

} // namespace

class tst_CUrlInfoFile : public QObject
{
    Q_OBJECT

private slots:
    void howAValueIsWritten_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("answer");
        QTest::newRow("UTF-8") << QByteArray("http://卡片.example/") << "http://卡片.example/";
        QTest::newRow("a bare comma makes a list, which is no text") << QByteArray("http://a.example/x,y") << "";
        QTest::newRow("a comma in quotes") << QByteArray("\"http://a.example/x,y\"") << "http://a.example/x,y";
        QTest::newRow("a bare semicolon ends the value") << QByteArray("http://a.example/x;y") << "http://a.example/x";
        QTest::newRow("a semicolon in quotes") << QByteArray("\"http://a.example/x;y\"") << "http://a.example/x;y";
        QTest::newRow("equals signs, percent and number signs")
            << QByteArray("http://a.example/?a=b&c=%41#top") << "http://a.example/?a=b&c=%41#top";
        QTest::newRow("a doubled backslash") << QByteArray(R"(http://a.example/x\\y)") << R"(http://a.example/x\y)";
        QTest::newRow("blanks around it") << QByteArray("   http://a.example/  ") << "http://a.example/";
    }

    void howAValueIsWritten()
    {
        QFETCH(QByteArray, value);
        IN_A_CLIENT_WITH("[vcard]\nloadurl=" + value + "\nemailurl=" + value + "\n")
        QFETCH(QString, answer);
        QCOMPARE(CUrlInfo::userVcardUrl(), answer);
        QCOMPARE(CUrlInfo::getEmailUrl(),
                 answer.isEmpty() ? QString("http://center.kelvar.example/center/user/getEmails.do") : answer);
    }

    void theModulesListIsQuotedInTheFile()
    {
        IN_A_CLIENT_WITH("[plugins]\ndlls=\"A.dll,B.dll\"\n")
        QCOMPARE(CUrlInfo::getPluginList(), QString("A.dll,B.dll"));
    }

    void theBuiltInModulesAreNineFiles()
    {
        IN_A_CLIENT_WITH(QByteArray())
        const QStringList modules = CUrlInfo::getPluginList().split(',');
        QCOMPARE(modules.size(), 9);
        QCOMPARE(QSet<QString>(modules.begin(), modules.end()).size(), 9);
        for (const QString &module : modules) {
            QVERIFY2(module.endsWith(".dll") && module.size() > 4, qPrintable(module));
        }
    }

    void aBrokenEntryHarmsNoOther_data()
    {
        QTest::addColumn<QByteArray>("broken");
        QTest::newRow("hexadecimal escape without digits") << QByteArray(R"(updateurl=http://a\xzz)");
        QTest::newRow("hexadecimal escape without an end") << QByteArray("updateurl=\\x") + QByteArray(5000, 'f');
        QTest::newRow("unknown escape") << QByteArray(R"(updateurl=\q\8\")");
        QTest::newRow("backslash at the end") << QByteArray("updateurl=http://a\\\n");
        QTest::newRow("zero bytes") << QByteArray("updateurl=a\0b\0\0", 14);
        QTest::newRow("zero bytes in the key") << QByteArray("update\0url=a\n\0\0\0=b", 18);
        QTest::newRow("not UTF-8") << QByteArray("updateurl=\xff\xfe\xc0\x80");
        QTest::newRow("no equals sign") << QByteArray("updateurl\n===\n=");
        QTest::newRow("section without an end") << QByteArray("[vcard\nupdateurl=a");
        QTest::newRow("bytes of no type") << QByteArray("updateurl=@Variant(\\0\\0\\0\\x7f\\xff\\xff\\xff)");
        QTest::newRow("half a rectangle") << QByteArray("updateurl=@Rect(1 2");
        QTest::newRow("invalid on purpose") << QByteArray("updateurl=@Invalid()");
        QTest::newRow("a list of 100,000 items") << QByteArray("updateurl=") + QByteArray("a,").repeated(100000);
        QTest::newRow("a megabyte") << QByteArray("updateurl=") + QByteArray(1 << 20, 'a');
    }

    void aBrokenEntryHarmsNoOther()
    {
        QFETCH(QByteArray, broken);
        const QByteArray good = QByteArray("\n[innerquery]\ntheurl=") + cGoodAddress + "\n";
        IN_A_CLIENT_WITH("[vcard]\nloadurl=" + QByteArray(cGoodAddress) + "\n" + broken + good)
        for (const ExpectedUrl &row : expectedUrls()) {
            const QString answer = row.ask("group 7");
            const QString key = row.key;
            if (key == "/vcard/loadurl" || key == "/innerquery/theurl") {
                QCOMPARE(answer, QString(cGoodAddress));
            } else if (key != "/vcard/updateurl") {
                QVERIFY2(answer == row.defaultValue, row.name);
            }
        }
    }

    void anOpenQuoteTakesTheRestOfTheFileAndNoMore()
    {
        IN_A_CLIENT_WITH("[innerquery]\ntheurl=first\n[vcard]\nupdateurl=\"http://a\nloadurl=x\n")
        QCOMPARE(CUrlInfo::innerQueryUrl(), QString("first"));
        QCOMPARE(CUrlInfo::userVcardUrl(), QString());
        QCOMPARE(CUrlInfo::getModifyUrl(), QString("http://passport.kelvar.example/ids/login"));
    }

    void bytesOfNoTextGiveTheDefaults()
    {
        QByteArray noise;
        for (int i = 0; i < 70000; ++i) {
            noise += static_cast<char>((i * 7919 + i / 256) % 256);
        }
        IN_A_CLIENT_WITH(noise)
        QCOMPARE(everyAnswer(), everyDefault());
    }

    void aFolderInPlaceOfTheFileGivesTheDefaults()
    {
        if (!inOwnProcess()) {
            QFile::remove("client/allurl.ini");
            QVERIFY(QDir().mkpath("client/allurl.ini"));
            const QByteArray failure = failureInTheClient();
            QVERIFY(QDir().rmdir("client/allurl.ini"));
            QCOMPARE(failure, QByteArray());
            return;
        }
        QCOMPARE(everyAnswer(), everyDefault());
        QMap<QString, QString> domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QCOMPARE(domains.value("000000"), QString("sip.kelvar.example"));
        QCOMPARE(CUrlInfo::getSOAUrl("x"), QString());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CUrlInfoFile, Guiless)
#include "tst_CUrlInfoFile.moc"
