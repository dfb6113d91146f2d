#include "common/settings/ConfigFile.h"
#include "fakes/FileBytes.h"

#include <QDir>
#include <QSettings>
#include <QtTest>

class tst_ConfigFile : public QObject
{
    Q_OBJECT

private slots:
    void missingFileGivesTheDefault()
    {
        QCOMPARE(ConfigFile::getConfigValue("absent.ini", "a/b", 7).toInt(), 7);
        QVERIFY(!ConfigFile::getConfigValue("absent.ini", "a/b").isValid());
        QVERIFY(!QFile::exists("absent.ini"));
    }

    void missingKeyGivesTheDefault()
    {
        QVERIFY(writeFile("one.ini", "[a]\nb=1\n"));
        QCOMPARE(ConfigFile::getConfigValue("one.ini", "a/c", "none").toString(), QStringLiteral("none"));
    }

    void leadingSlashNamesTheSameKey()
    {
        QVERIFY(writeFile("slash.ini", "[a]\nb=1\n"));
        QCOMPARE(ConfigFile::getConfigValue("slash.ini", "/a/b", "none").toString(), QStringLiteral("1"));
    }

    void changeIsOnTheDiskAtOnce()
    {
        ConfigFile::changeConfigValue("new.ini", "section/name", "value");
        QCOMPARE(readBytes("new.ini"), QByteArray("[section]\nname=value\n"));
    }

    void otherKeysSurviveAChange()
    {
        QVERIFY(writeFile("keep.ini", "[a]\nb=1\nc=2\n"));
        ConfigFile::changeConfigValue("keep.ini", "a/b", 3);
        QCOMPARE(ConfigFile::getConfigValue("keep.ini", "a/b", {}).toInt(), 3);
        QCOMPARE(ConfigFile::getConfigValue("keep.ini", "a/c", {}).toInt(), 2);
    }

    void textIsUtf8OnTheDisk()
    {
        ConfigFile::changeConfigValue("utf8.ini", "a/b", QStringLiteral("语音会议"));
        QCOMPARE(readBytes("utf8.ini"), QByteArray("[a]\nb=语音会议\n"));
        QCOMPARE(ConfigFile::getConfigValue("utf8.ini", "a/b", {}).toString(), QStringLiteral("语音会议"));
    }

    void everyReadLooksAnew()
    {
        QVERIFY(writeFile("fresh.ini", "[a]\nb=old\n"));
        QCOMPARE(ConfigFile::getConfigValue("fresh.ini", "a/b", {}).toString(), QStringLiteral("old"));
        QVERIFY(writeFile("fresh.ini", "[a]\nb=newer\n"));
        QCOMPARE(ConfigFile::getConfigValue("fresh.ini", "a/b", {}).toString(), QStringLiteral("newer"));
    }

    void unwritableFileIsIgnored()
    {
        QVERIFY(writeFile("plain", "x"));
        ConfigFile::changeConfigValue("plain/inside.ini", "a/b", 1);
        QVERIFY(!ConfigFile::getConfigValue("plain/inside.ini", "a/b").isValid());
    }

    void folderInPlaceOfTheFileReadsAsMissing()
    {
        QVERIFY(QDir().mkpath("folder.ini"));
        ConfigFile::changeConfigValue("folder.ini", "a/b", 1);
        QCOMPARE(ConfigFile::getConfigValue("folder.ini", "a/b", 7).toInt(), 7);
        QVERIFY(QDir("folder.ini").isEmpty());
    }

    void brokenFileIsReadAsFarAsItGoesAndCanBeWritten_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("value");
        QTest::newRow("no section") << QByteArray("words only") << "none";
        QTest::newRow("quote never closed") << QByteArray("[a]\nb=\"open") << "open";
        QTest::newRow("escape of nothing") << QByteArray("[a]\nb=x\\") << "x";
        QTest::newRow("escape of no digits") << QByteArray("[a]\nb=\\xZZ") << "ZZ";
        QTest::newRow("brackets never closed") << QByteArray("[[[\n===\n[a]\nb=1") << "1";
        QTest::newRow("NUL bytes") << QByteArray(100, '\0') << "none";
        QTest::newRow("type that is none") << QByteArray("[a]\nb=@Variant(\\0\\0\\0\\xff)") << "";
    }
    void brokenFileIsReadAsFarAsItGoesAndCanBeWritten()
    {
        QFETCH(QByteArray, text);
        const QString name = QStringLiteral("broken %1.ini").arg(QTest::currentDataTag());
        QVERIFY(writeFile(name, text));
        QString value = ConfigFile::getConfigValue(name, "a/b", "none").toString();
        value.remove(QChar(QChar::Null));
        QTEST(value, "value");
        ConfigFile::changeConfigValue(name, "a/b", "mended");
        QCOMPARE(ConfigFile::getConfigValue(name, "a/b").toString(), QStringLiteral("mended"));
        QVERIFY(readBytes(name).contains("b=mended\n"));
    }

    void translationShortensOpenDialogs()
    {
        translate([](QSettings &source) {
            source.setValue("DialogOpen/list", QStringList{"room1@conference.im.kelvar.example", "u1@im.kelvar.example",
                                                           "other", "conference-conference"});
        });
        QCOMPARE(target("DialogOpen/list").toStringList(), (QStringList{"room1@c.im", "u1@im", "other", "c-c"}));
    }

    void translationShortensRoomKeysAndReadsNumbers()
    {
        translate([](QSettings &source) {
            source.setValue("RoomMsgSet/room1@conference.im.kelvar.example", "2");
            source.setValue("RoomMsgSet/plain", "no number");
        });
        QCOMPARE(target("RoomMsgSet/room1@c.im").toInt(), 2);
        QVERIFY(!target("RoomMsgSet/room1@conference.im.kelvar.example").isValid());
        QCOMPARE(target("RoomMsgSet/plain").toString(), QStringLiteral("0"));
    }

    void translationCopiesOtherGroupsAsTheyAre()
    {
        translate([](QSettings &source) {
            source.setValue("Other/conference.im.kelvar.example", "conference.im.kelvar.example");
            source.setValue("Other/sub/key", "nested");
            source.setValue("Other/name", QStringLiteral("会议"));
        });
        QCOMPARE(target("Other/conference.im.kelvar.example").toString(),
                 QStringLiteral("conference.im.kelvar.example"));
        QCOMPARE(target("Other/sub/key").toString(), QStringLiteral("nested"));
        QVERIFY(!readBytes("source.ini").contains("会议"));
        QVERIFY(readBytes("target.ini").contains("name=会议\n"));
    }

    void translationReadsTheSourceInTheDefaultCoding()
    {
        QVERIFY(writeFile("latin.ini", "[Other]\nname=caf\xe9\n"));
        ConfigFile::translateIniToUtf8Code("latin.ini", "utf8 of latin.ini");
        QCOMPARE(readBytes("utf8 of latin.ini"), QByteArray("[Other]\nname=café\n"));
    }

    void translationLeavesKeysOutsideGroups()
    {
        translate([](QSettings &source) {
            source.setValue("loose", 1);
            source.setValue("Other/key", 2);
        });
        QVERIFY(!target("loose").isValid());
        QCOMPARE(target("Other/key").toInt(), 2);
    }

    void translationKeepsWhatTheTargetHolds()
    {
        QVERIFY(writeFile("target.ini", "[Mine]\nkey=语音\n"));
        QVERIFY(writeFile("source.ini", "[Other]\nkey=2\n"));
        ConfigFile::translateIniToUtf8Code("source.ini", "target.ini");
        QCOMPARE(target("Mine/key").toString(), QStringLiteral("语音"));
        QCOMPARE(target("Other/key").toInt(), 2);
    }

    void translationOfAMissingSourceMakesNothing()
    {
        ConfigFile::translateIniToUtf8Code("absent.ini", "unmade.ini");
        QVERIFY(!QFile::exists("unmade.ini"));
    }

private:
    static QVariant target(const QString &key) { return ConfigFile::getConfigValue("target.ini", key); }

    template <typename Fill>
    static void translate(Fill fill)
    {
        QFile::remove("source.ini");
        QFile::remove("target.ini");
        {
            QSettings source("source.ini", QSettings::IniFormat);
            fill(source);
        }
        ConfigFile::translateIniToUtf8Code("source.ini", "target.ini");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConfigFile, Guiless)
#include "tst_ConfigFile.moc"
