#include "ClientFolder.h"
#include "ExpectedUrls.h"

#include "common/CSettingsManager.h"

#include <QMap>
#include <QSet>

#include <array>
#include <thread>

namespace {

constexpr int kGetters = 220;

const char GOOD_ADDRESS[] = "http://card.example/load";

/// Whether the name of a row's form in the getters' own list is the expected one.
bool isForm(const QString &listed, UrlForm form)
{
    const bool plain = listed == QLatin1String("Plain") || listed == QLatin1String("SignIn");
    return plain ? form == UrlForm::Plain
                 : listed == QLatin1String(form == UrlForm::Cached ? "Cached" : "Arg") && form != UrlForm::Plain;
}

/// An address file with a line for each getter; `value` is given the row and its number.
template <typename Value>
QByteArray fileWithEveryKey(Value value)
{
    QMap<QString, QString> sections;
    const std::vector<ExpectedUrl> rows = expectedUrls();
    for (size_t i = 0; i < rows.size(); ++i) {
        QStringList parts = QString(rows[i].key).split('/');
        parts.removeAll(QString());
        sections[parts.at(0)] += parts.at(1) + "=" + value(rows[i], i) + "\n";
    }
    QString text;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section) {
        text += "[" + section.key() + "]\n" + section.value();
    }
    return text.toUtf8();
}

QString setAddress(size_t number, const QString &item)
{
    return QString("http://set.example/%1/%2?a=b&c=%20").arg(number).arg(item);
}

/// What the address file names for a row: a template for one of the form Arg.
QString setEntry(const ExpectedUrl &row, size_t number)
{
    return setAddress(number, row.form == UrlForm::Arg ? "ITEM" : "x").replace("ITEM", "%1").replace("%20", "d");
}

QString setAnswer(const ExpectedUrl &row, size_t number)
{
    return setAddress(number, row.form == UrlForm::Arg ? "group 7" : "x").replace("%20", "d");
}

QStringList everyAnswer(bool cachedOnly = false)
{
    QStringList answers;
    for (const ExpectedUrl &row : expectedUrls()) {
        if (!cachedOnly || row.form == UrlForm::Cached) {
            answers << row.ask("group 7");
        }
    }
    return answers;
}

QStringList everyDefault()
{
    QStringList answers;
    for (const ExpectedUrl &row : expectedUrls()) {
        answers << row.defaultValue();
    }
    return answers;
}

class CatchAllTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "CUrlInfo") == 0 && qstrcmp(text, "000000") == 0 ? QString("rest") : QString();
    }
    bool isEmpty() const override { return false; }
};

using Domains = QMap<QString, QString>;

} // namespace

Q_DECLARE_METATYPE(Domains)

class tst_CUrlInfo : public QObject
{
    Q_OBJECT

private slots:
    void theListHasEveryGetterWithItsKeyAndForm()
    {
        const std::vector<ExpectedUrl> rows = expectedUrls();
        QCOMPARE(static_cast<int>(rows.size()), kGetters);
        QMap<QString, QPair<QString, QString>> listed;
        int count = 0;
#define URL_GETTER(name, key, endpoint, path, form)                                                                    \
    listed[#name] = {key, #form};                                                                                      \
    ++count;
#include "common/CUrlInfo.def"
        QCOMPARE(count, kGetters);
        QCOMPARE(listed.size(), kGetters);
        int cached = 0;
        int withText = 0;
        for (const ExpectedUrl &row : rows) {
            QVERIFY2(listed.contains(row.name), row.name);
            QCOMPARE(listed.value(row.name).first, QString(row.key));
            QVERIFY2(isForm(listed.value(row.name).second, row.form), row.name);
            cached += row.form == UrlForm::Cached ? 1 : 0;
            withText += row.form == UrlForm::Arg ? 1 : 0;
        }
        QCOMPARE(cached, 7);
        QCOMPARE(withText, 4);
    }

    void noTwoGettersReadOneKey()
    {
        QSet<QString> keys;
        for (const ExpectedUrl &row : expectedUrls()) {
            keys << row.key;
        }
        QCOMPARE(keys.size(), kGetters);
    }

    void withoutAnEntryEachGetterGivesItsDefault_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("no file") << QByteArray();
        QTest::newRow("empty file") << QByteArray("");
        QTest::newRow("other keys") << QByteArray("[vcard]\nother=1\n[else]\nloadurl=2\n[Vcard]\nloadurl=3\n");
        QTest::newRow("empty values") << fileWithEveryKey([](const ExpectedUrl &, size_t) { return QString(); });
        QTest::newRow("empty values in quotes")
            << fileWithEveryKey([](const ExpectedUrl &, size_t) { return QString("\"\""); });
    }

    void withoutAnEntryEachGetterGivesItsDefault()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        for (const ExpectedUrl &row : expectedUrls()) {
            const QString answer = row.ask("group 7");
            QVERIFY2(answer == row.defaultValue(), qPrintable(row.name + (": " + answer)));
        }
    }

    void anEntryIsTheAnswer_data()
    {
        QTest::addColumn<QString>("quote");
        QTest::newRow("bare") << "";
        QTest::newRow("in quotes") << "\"";
    }

    void anEntryIsTheAnswer()
    {
        QFETCH(QString, quote);
        IN_A_CLIENT_WITH(fileWithEveryKey(
            [&quote](const ExpectedUrl &row, size_t number) { return quote + setEntry(row, number) + quote; }))
        const std::vector<ExpectedUrl> rows = expectedUrls();
        for (size_t i = 0; i < rows.size(); ++i) {
            const QString answer = rows[i].ask("group 7");
            QVERIFY2(answer == setAnswer(rows[i], i), qPrintable(rows[i].name + (": " + answer)));
        }
    }

    void aCachedGetterKeepsItsFirstAnswer_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("an entry") << fileWithEveryKey(setEntry);
        QTest::newRow("the default") << QByteArray();
    }

    void aCachedGetterKeepsItsFirstAnswer()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        const QStringList before = everyAnswer();
        QVERIFY(writeFile(addressFile(),
                          fileWithEveryKey([](const ExpectedUrl &, size_t) { return QString("http://new.example"); })));
        CSettingsManager::instance()->getUrlSettings()->sync();
        const std::vector<ExpectedUrl> rows = expectedUrls();
        for (size_t i = 0; i < rows.size(); ++i) {
            const QString expected =
                rows[i].form == UrlForm::Cached ? before.at(static_cast<int>(i)) : QString("http://new.example");
            QVERIFY2(rows[i].ask("group 7") == expected, rows[i].name);
        }
        CSettingsManager::instance()->getUrlSettings()->setValue("/favorite/addUrl", "http://newer.example");
        QCOMPARE(CUrlInfo::getAddFavoriteUrl(), everyAnswer(true).last());
        QVERIFY(!CUrlInfo::getAddFavoriteUrl().contains("newer"));
    }

    void aGetterDoesNotOpenTheFileAgain()
    {
        IN_A_CLIENT_WITH("[vcard]\nemailurl=http://old.example\n")
        QCOMPARE(CUrlInfo::getEmailUrl(), QString("http://old.example"));
        QVERIFY(QFile::remove(addressFile()));
        QCOMPARE(CUrlInfo::getEmailUrl(), QString("http://old.example"));
        CSettingsManager::instance()->getUrlSettings()->sync();
        QCOMPARE(CUrlInfo::getEmailUrl(), QString("http://center.kelvar.example/center/user/getEmails.do"));
    }

    void theTextGoesInForTheMarker_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("answer");
        QTest::newRow("no marker") << "http://g.example/all"
                                   << "7"
                                   << "http://g.example/all";
        QTest::newRow("one marker") << "http://g.example/%1/list"
                                    << "7"
                                    << "http://g.example/7/list";
        QTest::newRow("two markers") << "%1-%1"
                                     << "7"
                                     << "7-7";
        QTest::newRow("empty text") << "http://g.example/%1/list"
                                    << ""
                                    << "http://g.example//list";
        QTest::newRow("text with a marker") << "http://g.example/%1"
                                            << "%1%2"
                                            << "http://g.example/%1%2";
        QTest::newRow("text of another script") << "http://g.example/%1"
                                                << "同事"
                                                << "http://g.example/同事";
        QTest::newRow("no entry") << ""
                                  << "7"
                                  << "";
    }

    void theTextGoesInForTheMarker()
    {
        QFETCH(QString, entry);
        IN_A_CLIENT_WITH(fileWithEveryKey([&entry](const ExpectedUrl &, size_t) { return entry; }))
        QFETCH(QString, text);
        QTEST(CUrlInfo::usersByGroupIdUrl(text), "answer");
        QTEST(CUrlInfo::changeGroupNameUrl(text), "answer");
        QTEST(CUrlInfo::deleteGroupUrl(text), "answer");
        QTEST(CUrlInfo::deleteContactsUrl(text), "answer");
    }

    void theOfficeLinkEndsInItsEncodedTarget_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("link");
        QTest::newRow("both") << QByteArray("[oaurl]\ntheurl=http://oa.example/go?who=%1&to=\n"
                                            "tarurl=http://oa.example/mail?a=b c~-_.\n")
                              << "http://oa.example/go?who=user one&to=http%3A%2F%2Foa.example%2Fmail%3Fa%3Db%20c~-_.";
        QTest::newRow("another script") << QByteArray("[oaurl]\ntheurl=%1/\ntarurl=邮件\n")
                                        << "user one/%E9%82%AE%E4%BB%B6";
        QTest::newRow("no marker") << QByteArray("[oaurl]\ntheurl=http://oa.example/\ntarurl=x\n")
                                   << "http://oa.example/x";
        QTest::newRow("template only") << QByteArray("[oaurl]\ntheurl=http://oa.example/%1\n")
                                       << "http://oa.example/user one";
        QTest::newRow("target only") << QByteArray("[oaurl]\ntarurl=a/b\n") << "a%2Fb";
        QTest::newRow("neither") << QByteArray("[oaurl]\n") << "";
        QTest::newRow("no file") << QByteArray() << "";
    }

    void theOfficeLinkEndsInItsEncodedTarget()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        QTEST(CUrlInfo::getSOAUrl("user one"), "link");
    }

    void numberRangesGoToTheirHosts_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Domains>("domains");
        QTest::newRow("no file") << QByteArray() << Domains{{"000000", "sip.kelvar.example"}};
        QTest::newRow("no keys") << QByteArray("[sipphone]\n") << Domains{{"000000", "sip.kelvar.example"}};
        QTest::newRow("a host without ranges ends the list")
            << QByteArray("[sipphone]\ndomain0=x\ndomain1=y\nnumrange1=025\n") << Domains{{"000000", "x"}};
        QTest::newRow("ranges and no catch-all")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025,010\n") << Domains{{"025", "x"}, {"010", "x"}};
        QTest::newRow("one range") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025\n") << Domains{{"025", "x"}};
        QTest::newRow("a catch-all after ranges")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025\ndomain1=y\ndomain2=z\nnumrange2=020\n")
            << Domains{{"025", "x"}, {"000000", "y"}};
        QTest::newRow("a gap ends the list")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025\ndomain2=z\nnumrange2=020\n") << Domains{{"025", "x"}};
        QTest::newRow("a list that starts at 1 is not found")
            << QByteArray("[sipphone]\ndomain1=x\nnumrange1=025\n") << Domains{{"000000", "sip.kelvar.example"}};
        QTest::newRow("a later pair wins") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025,010\ndomain1=y\n"
                                                         "numrange1=010\n")
                                           << Domains{{"025", "x"}, {"010", "y"}};
        QTest::newRow("empty ranges") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=\n") << Domains{{"000000", "x"}};
        QTest::newRow("empty items") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=,025,,010,\n")
                                     << Domains{{"025", "x"}, {"010", "x"}};
        QTest::newRow("only empty items")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=,,\n") << Domains{{"000000", "x"}};
        QTest::newRow("a range in quotes is one range")
            << QByteArray("[sipphone]\ndomain0=x\nnumrange0=\"025,010\"\n") << Domains{{"025,010", "x"}};
        QTest::newRow("a host with a comma is none")
            << QByteArray("[sipphone]\ndomain0=x,y\nnumrange0=025\n") << Domains{{"000000", "sip.kelvar.example"}};
    }

    void numberRangesGoToTheirHosts()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        Domains domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QTEST(domains, "domains");
    }

    void twelvePairsAreRead()
    {
        QByteArray file = "[sipphone]\n";
        for (int i = 0; i < 12; ++i) {
            file += QString("domain%1=host%1\nnumrange%1=range%1\n").arg(i).toLatin1();
        }
        IN_A_CLIENT_WITH(file)
        Domains domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QCOMPARE(domains.size(), 12);
        QCOMPARE(domains.value("range11"), QString("host11"));
    }

    void entriesOfTheMapAreKept_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Domains>("domains");
        QTest::newRow("and count, so that no catch-all is added")
            << QByteArray() << Domains{{"021", "kept"}, {"025", "kept"}};
        QTest::newRow("unless a range has the same key") << QByteArray("[sipphone]\ndomain0=x\nnumrange0=025,010\n")
                                                         << Domains{{"021", "kept"}, {"025", "x"}, {"010", "x"}};
    }

    void entriesOfTheMapAreKept()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        Domains domains{{"021", "kept"}, {"025", "kept"}};
        CUrlInfo::getSipPhoneRegDomain(domains);
        QTEST(domains, "domains");
    }

    void theCatchAllsKeyIsTranslated_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Domains>("domains");
        QTest::newRow("built-in host") << QByteArray() << Domains{{"rest", "sip.kelvar.example"}};
        QTest::newRow("host of the file") << QByteArray("[sipphone]\ndomain0=x\n") << Domains{{"rest", "x"}};
    }

    void theCatchAllsKeyIsTranslated()
    {
        QFETCH(QByteArray, file);
        IN_A_CLIENT_WITH(file)
        CatchAllTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        Domains domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QCoreApplication::removeTranslator(&translator);
        QTEST(domains, "domains");
    }

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
        const QByteArray good = QByteArray("\n[innerquery]\ntheurl=") + GOOD_ADDRESS + "\n";
        IN_A_CLIENT_WITH("[vcard]\nloadurl=" + QByteArray(GOOD_ADDRESS) + "\n" + broken + good)
        CUrlInfo::updateUserVcardUrl();
        QCOMPARE(CUrlInfo::userVcardUrl(), QString(GOOD_ADDRESS));
        QCOMPARE(CUrlInfo::innerQueryUrl(), QString(GOOD_ADDRESS));
        QCOMPARE(CUrlInfo::getModifyUrl(), QString("http://passport.kelvar.example/ids/login"));
        QCOMPARE(everyAnswer(), everyAnswer());
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
        Domains domains;
        CUrlInfo::getSipPhoneRegDomain(domains);
        QCOMPARE(domains, Domains({{"000000", "sip.kelvar.example"}}));
        QCOMPARE(CUrlInfo::getSOAUrl("x"), QString());
    }

    void threadsReadTogetherAfterTheFirstCall()
    {
        IN_A_CLIENT_WITH(fileWithEveryKey(setEntry))
        QStringList expected;
        const std::vector<ExpectedUrl> rows = expectedUrls();
        for (size_t i = 0; i < rows.size(); ++i) {
            expected << setAnswer(rows[i], i);
        }
        CUrlInfo::getEmailUrl();
        std::array<QStringList, 4> answers;
        std::vector<std::thread> threads;
        for (QStringList &list : answers) {
            threads.emplace_back([&list] {
                for (int round = 0; round < 20; ++round) {
                    list = everyAnswer();
                }
            });
        }
        for (std::thread &thread : threads) {
            thread.join();
        }
        for (const QStringList &list : answers) {
            QCOMPARE(list, expected);
        }
    }

    void theClassIsAnObjectOfItsOwnName()
    {
        const CUrlInfo info;
        QCOMPARE(info.metaObject()->className(), "CUrlInfo");
        QVERIFY(info.inherits("QObject"));
    }
};

QTEST_GUILESS_MAIN(tst_CUrlInfo)
#include "tst_CUrlInfo.moc"
