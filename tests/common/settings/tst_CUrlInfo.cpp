#include "common/CSettingsManager.h"
#include "common/settings/ExpectedUrls.h"
#include "common/system/ClientFolder.h"

#include <QMap>
#include <QSet>

#include <array>
#include <thread>

namespace {

constexpr int cGetters = 220;

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
    const std::vector<ExpectedUrl> &rows = expectedUrls();
    for (size_t i = 0; i < rows.size(); ++i) {
        QStringList parts = rows[i].key.split('/');
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
    return "http://set.example/" + QString::number(number) + "/" + item + "?a=b&c=d";
}

/// What the address file names for a row: a template for one of the form Arg.
QString setEntry(const ExpectedUrl &row, size_t number)
{
    return setAddress(number, row.form == UrlForm::Arg ? "%1" : "x");
}

QString setAnswer(const ExpectedUrl &row, size_t number)
{
    return setAddress(number, row.form == UrlForm::Arg ? "group 7" : "x");
}

} // namespace

class tst_CUrlInfo : public QObject
{
    Q_OBJECT

private slots:
    void theListHasEveryGetterWithItsKeyAndForm()
    {
        const std::vector<ExpectedUrl> &rows = expectedUrls();
        QCOMPARE(static_cast<int>(rows.size()), cGetters);
        QMap<QString, QPair<QString, QString>> listed;
        int count = 0;
#define URL_GETTER(name, key, endpoint, path, form)                                                                    \
    listed[#name] = {key, #form};                                                                                      \
    ++count;
#include "common/CUrlInfo.def"
        QCOMPARE(count, cGetters);
        QCOMPARE(listed.size(), cGetters);
        int cached = 0;
        int withText = 0;
        for (const ExpectedUrl &row : rows) {
            QVERIFY2(listed.contains(row.name), row.name);
            QCOMPARE(listed.value(row.name).first, row.key);
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
        QCOMPARE(keys.size(), cGetters);
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
            QVERIFY2(answer == row.defaultValue, qPrintable(row.name + (": " + answer)));
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
        const std::vector<ExpectedUrl> &rows = expectedUrls();
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
        const std::vector<ExpectedUrl> &rows = expectedUrls();
        for (size_t i = 0; i < rows.size(); ++i) {
            const QString expected =
                rows[i].form == UrlForm::Cached ? before.at(static_cast<int>(i)) : QString("http://new.example");
            QVERIFY2(rows[i].ask("group 7") == expected, rows[i].name);
        }
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

    void threadsReadTogetherAfterTheFirstCall()
    {
        IN_A_CLIENT_WITH(fileWithEveryKey(setEntry))
        QStringList expected;
        const std::vector<ExpectedUrl> &rows = expectedUrls();
        for (size_t i = 0; i < rows.size(); ++i) {
            expected << setAnswer(rows[i], i);
        }
        CUrlInfo::getEmailUrl();
        std::array<QStringList, 4> answers;
        std::vector<std::thread> threads;
        threads.reserve(answers.size());
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

#include "support/TestProgram.h"
VOIP_TEST(tst_CUrlInfo, Guiless)
#include "tst_CUrlInfo.moc"
