#include "common/system/WeatherFiles.h"
#include "fakes/FileBytes.h"
#include "fakes/QtMessages.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

using Maps = QList<QMap<QString, QString>>;

const QString cCities = QStringLiteral("Resources/BaseConfig/ProvinceWeath.xml");

} // namespace

class tst_WeatherFiles : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QFile::remove(cCities); }

    void aReplyBecomesOneMapOfFourAndOneForEachDay()
    {
        QVERIFY(writeFile("w.xml",
                          "<?xml version='1.0' encoding='UTF-8'?><reply><city><name>北京</name><code>1</code><wind/>"
                          "<time>8</time><day><low>1</low><high>9</high></day><day><low>2</low></day></city>"
                          "<city><name>other</name></city></reply>"));
        const Maps wanted = {{{"name", "北京"}, {"code", "1"}, {"wind", ""}, {"time", "8"}},
                             {{"low", "1"}, {"high", "9"}},
                             {{"low", "2"}}};
        QCOMPARE(WeatherFiles::parseWeatherXml("w.xml"), wanted);
    }

    void aReplyMayBeLaidOutInLines()
    {
        QVERIFY(writeFile("w.xml",
                          "<reply>\n  <city>\n    <name>a</name>\n    <code>1</code>\n    <wind/>\n    <time>8</time>\n"
                          "    <day>\n      <low>1</low>\n    </day>\n  </city>\n</reply>\n"));
        const Maps wanted = {{{"name", "a"}, {"code", "1"}, {"wind", ""}, {"time", "8"}}, {{"low", "1"}}};
        QCOMPARE(WeatherFiles::parseWeatherXml("w.xml"), wanted);
    }

    void otherShapes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("maps");
        QTest::newRow("empty") << QByteArray() << 0;
        QTest::newRow("no XML") << QByteArray("weather") << 0;
        QTest::newRow("no children") << QByteArray("<a/>") << 0;
        QTest::newRow("text for a child") << QByteArray("<a>b</a>") << 0;
        QTest::newRow("three nodes") << QByteArray("<a><b><c/><d/><e/></b></a>") << 0;
        QTest::newRow("four nodes") << QByteArray("<a><b><c/><d/><e/><f/></b></a>") << 1;
        QTest::newRow("a comment counts as a node") << QByteArray("<a><b><c/><d/><!-- --><f/></b></a>") << 1;
        QTest::newRow("a fifth without children") << QByteArray("<a><b><c/><d/><e/><f/><g/></b></a>") << 2;
        QTest::newRow("bottomless") << QByteArray("<a>").repeated(100000) << 0;
    }

    void otherShapes()
    {
        QFETCH(QByteArray, text);
        QVERIFY(writeFile("w.xml", text));
        QTEST(WeatherFiles::parseWeatherXml("w.xml").size(), "maps");
    }

    void aMissingFileGivesNothingAndSaysNothing()
    {
        const QtMessages messages;
        QVERIFY(WeatherFiles::parseWeatherXml("none.xml").isEmpty());
        QCOMPARE(messages.debugLines, QStringList());
    }

    void aFileThatDoesNotOpenSaysSo()
    {
        QTest::ignoreMessage(QtDebugMsg, "open file failure!");
        QVERIFY(WeatherFiles::parseWeatherXml(".").isEmpty());
    }

    void provincesStandBeforeTheirCities()
    {
        QVERIFY(writeFile(cCities,
                          "<all><p Name='A'><c Name='a1'/><c Name='a2'/></p><!-- --><p Name='B'/><p><c/></p></all>"));
        QCOMPARE(WeatherFiles::parseCityXml(), QStringList({"A", "a1", "a2", "B", "", ""}));
    }

    void withoutItsFileThereAreNoCities()
    {
        QVERIFY(WeatherFiles::parseCityXml().isEmpty());
        QVERIFY(writeFile(cCities, "<all><p Name='A'>"));
        QVERIFY(WeatherFiles::parseCityXml().isEmpty());
    }

    void theShippedFileNamesAllProvinces()
    {
        QVERIFY(QDir().mkpath(QFileInfo(cCities).path()));
        QVERIFY(QFile::copy(VOIP_RESOURCES "/BaseConfig/ProvinceWeath.xml", cCities));
        const QStringList names = WeatherFiles::parseCityXml();
        QVERIFY(names.size() > 34 * 2);
        QVERIFY(names.contains("内蒙古") && names.contains("呼和浩特"));
        QVERIFY(!names.contains(QString()));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WeatherFiles, Guiless)
#include "tst_WeatherFiles.moc"
