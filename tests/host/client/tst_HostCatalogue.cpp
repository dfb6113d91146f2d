#include "client/HostCatalogue.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_HostCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void languageOfTheSettingsChoosesTheFile_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("cancel");
        QTest::addColumn<QString>("copy");

        QTest::newRow("Simplified Chinese") << "zh_CN" << QStringLiteral("取消") << QStringLiteral("复制");
        QTest::newRow("Traditional Chinese") << "zh_TW" << QStringLiteral("取消") << QStringLiteral("複製");
        QTest::newRow("English") << "en" << QStringLiteral("Cancel") << QStringLiteral("Copy");
        QTest::newRow("English by its older name") << "uk" << QStringLiteral("Cancel") << QStringLiteral("Copy");
        QTest::newRow("none") << QString() << QStringLiteral("取消") << QStringLiteral("复制");
        QTest::newRow("another") << "ja" << QStringLiteral("取消") << QStringLiteral("复制");
        QTest::newRow("a path") << "../en" << QStringLiteral("取消") << QStringLiteral("复制");
    }

    void languageOfTheSettingsChoosesTheFile()
    {
        QFETCH(QString, language);
        HostCatalogue catalogue;
        QVERIFY(catalogue.read(QStringLiteral(VOIP_TRANSLATIONS), language));
        QVERIFY(QCoreApplication::installTranslator(&catalogue));
        QTEST(QCoreApplication::translate("CVoipWidget", "cancel"), "cancel");
        QTEST(QObject::tr("duplicate"), "copy");
    }

    void keysShowAsThemselvesWithoutACatalogue()
    {
        QCOMPARE(QCoreApplication::translate("CVoipManage", "soundfailedinsound"),
                 QStringLiteral("soundfailedinsound"));
        QCOMPARE(QObject::tr("sure"), QStringLiteral("sure"));
    }

    void fileThatCannotBeReadLeavesTheKeys_data()
    {
        QTest::addColumn<QByteArray>("content");

        QTest::newRow("missing") << QByteArray();
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("something else") << QByteArray(4096, 'x');
        QFile whole(QStringLiteral(VOIP_TRANSLATIONS "/kelvarim_zh_CN.qm"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        QTest::newRow("cut off") << whole.read(20);
    }

    void fileThatCannotBeReadLeavesTheKeys()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        if (!content.isNull()) {
            QFile file(folder.filePath(QStringLiteral("kelvarim_zh_CN.qm")));
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(content), qint64(content.size()));
        }
        HostCatalogue catalogue;
        catalogue.read(folder.path(), QStringLiteral("zh_CN"));
        QCoreApplication::installTranslator(&catalogue);
        QCOMPARE(QObject::tr("sure"), QStringLiteral("sure"));
    }

    void unknownKeyStaysAsItIs()
    {
        HostCatalogue catalogue;
        QVERIFY(catalogue.read(QStringLiteral(VOIP_TRANSLATIONS), QStringLiteral("zh_CN")));
        QVERIFY(QCoreApplication::installTranslator(&catalogue));
        QCOMPARE(QObject::tr("Sure"), QStringLiteral("Sure"));
    }

    void cataloguesLieBesideTheExecutable()
    {
        QCOMPARE(HostCatalogue::folder(), QCoreApplication::applicationDirPath() + "/Resources/Translations");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HostCatalogue, Guiless)
#include "tst_HostCatalogue.moc"
