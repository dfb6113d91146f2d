#include "common/AppInfo.h"
#include "common/AppPaths.h"
#include "common/settings/ConfigFile.h"
#include "common/system/OwnProcess.h"
#include "fakes/FileBytes.h"

#include <QDir>
#include <QTranslator>
#include <QtTest>

namespace {

/// Knows the title's key alone, in the context of texts that belong to no class.
class TitleTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        const bool known = qstrcmp(context, "QObject") == 0 && qstrcmp(sourceText, "tarvoShowName") == 0;
        return known ? QStringLiteral("语音") : QString();
    }

    bool isEmpty() const override { return false; }
};

} // namespace

class tst_AppInfo : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(strAPP_VERSION_FILE_PATH());
        QFile::remove(strAPP_INFO_FILE_PATH());
    }

    void versionIsAConstant()
    {
        AppInfo::setIMVertion("9.9");
        QCOMPARE(AppInfo::getIMVertion(), QStringLiteral("4.5.0.0"));
    }

    void settingTheVersionWritesTheVersionFile()
    {
        AppInfo::setIMVertion(QStringLiteral("4.6 版"));
        QCOMPARE(readBytes(strAPP_VERSION_FILE_PATH()), QByteArray("[ThisVersion]\nthisversion=4.6 版\n"));
    }

    void settingTheVersionMakesAFileNamedByItsRegistryPath()
    {
        const QString name = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Kelvar\\IM");
        QFile::remove(name);
        AppInfo::setIMVertion(QStringLiteral("4.6 版"));
        QCOMPARE(readBytes(QDir::currentPath() + '/' + name), QByteArray("[General]\nThisVersion=4.6 版\n"));
    }

    void titleComesFromTheVersionFile()
    {
        QVERIFY(QDir().mkpath(strAPP_DOCUMENT_IM_PATH()));
        QVERIFY(writeFile(strAPP_VERSION_FILE_PATH(), "[ThisVersion]\ntitle=我的客户端\n"));
        QCOMPARE(AppInfo::getIMWindowTitle(), QStringLiteral("我的客户端"));
    }

    void withoutATitleTheTranslatedKeyStandsIn()
    {
        QCOMPARE(AppInfo::getIMWindowTitle(), QStringLiteral("tarvoShowName"));
        TitleTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(AppInfo::getIMWindowTitle(), QStringLiteral("语音"));
        QCoreApplication::removeTranslator(&translator);
    }

    void emptyTitleCountsAsNone()
    {
        QVERIFY(QDir().mkpath(strAPP_DOCUMENT_IM_PATH()));
        QVERIFY(writeFile(strAPP_VERSION_FILE_PATH(), "[ThisVersion]\ntitle=\n"));
        QCOMPARE(AppInfo::getIMWindowTitle(), QStringLiteral("tarvoShowName"));
    }

    void foldersInPlaceOfTheFilesReadAsMissing()
    {
        QVERIFY(QDir().mkpath(strAPP_VERSION_FILE_PATH()));
        QVERIFY(QDir().mkpath(strAPP_INFO_FILE_PATH()));
        AppInfo::setIMVertion("9.9");
        QCOMPARE(AppInfo::getIMWindowTitle(), QStringLiteral("tarvoShowName"));
        QCOMPARE(AppInfo::getApplicationLanguage(), QStringLiteral("zh_CN"));
        QVERIFY(QDir().rmdir(strAPP_VERSION_FILE_PATH()));
        QVERIFY(QDir().rmdir(strAPP_INFO_FILE_PATH()));
    }

    void thisIsThePublicVersion() { QVERIFY(AppInfo::IsPubicVersion()); }

    void languageInTheFileIsReturnedUnchecked()
    {
        ConfigFile::changeConfigValue(strAPP_INFO_FILE_PATH(), "/languageSetting/language", "uk");
        QCOMPARE(AppInfo::getApplicationLanguage(), QStringLiteral("uk"));
        ConfigFile::changeConfigValue(strAPP_INFO_FILE_PATH(), "/languageSetting/language", "no such 语言");
        QCOMPARE(AppInfo::getApplicationLanguage(), QStringLiteral("no such 语言"));
    }

    void withoutALanguageTheSystemLocaleDecides_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("language");
        QTest::newRow("Taiwan") << QByteArray("zh_TW.UTF-8") << "zh_TW";
        QTest::newRow("Hong Kong") << QByteArray("zh_HK.UTF-8") << "zh_TW";
        QTest::newRow("China") << QByteArray("zh_CN.UTF-8") << "zh_CN";
        QTest::newRow("Japan") << QByteArray("ja_JP.UTF-8") << "zh_CN";
        QTest::newRow("England") << QByteArray("en_GB.UTF-8") << "zh_CN";
    }
    void withoutALanguageTheSystemLocaleDecides()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QString, language);
        if (inOwnProcess()) {
            QCOMPARE(AppInfo::getApplicationLanguage(), language);
            return;
        }
        QCOMPARE(failureInOwnProcess({"LC_ALL=" + locale}), QByteArray());
    }

    void suffixIsOneOfTwo_data()
    {
        QTest::addColumn<QLocale::Language>("language");
        QTest::addColumn<QLocale::Country>("country");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("English") << QLocale::English << QLocale::UnitedKingdom << "zh_CN";
        QTest::newRow("Japanese") << QLocale::Japanese << QLocale::Japan << "zh_CN";
        QTest::newRow("German") << QLocale::German << QLocale::Germany << "zh_CN";
        QTest::newRow("English in Hong Kong") << QLocale::English << QLocale::HongKong << "zh_CN";
        QTest::newRow("Chinese in China") << QLocale::Chinese << QLocale::China << "zh_CN";
        QTest::newRow("Chinese in Singapore") << QLocale::Chinese << QLocale::Singapore << "zh_CN";
        QTest::newRow("Chinese in Hong Kong") << QLocale::Chinese << QLocale::HongKong << "zh_TW";
        QTest::newRow("Chinese in Taiwan") << QLocale::Chinese << QLocale::Taiwan << "zh_TW";
    }
    void suffixIsOneOfTwo()
    {
        QFETCH(QLocale::Language, language);
        QFETCH(QLocale::Country, country);
        QTEST(AppInfo::getLanguageFileSuffix(language, country), "suffix");
    }

    void webviewPathsGetTheirScheme()
    {
        QCOMPARE(AppInfo::getAbsoluteWebviewFilePath("/a/b.html"), QStringLiteral("file:////a/b.html"));
        QCOMPARE(AppInfo::getAbsoluteWebviewFilePath(QString()), QStringLiteral("file:///"));
    }

    void remainingDiskSpaceIsAConstant()
    {
        QCOMPARE(AppInfo::GetRemainDiskSpace("/"), Q_INT64_C(100000000000));
        QCOMPARE(AppInfo::GetRemainDiskSpace("/no/such/path"), Q_INT64_C(100000000000));
        QCOMPARE(AppInfo::GetRemainDiskSpace(QString()), Q_INT64_C(100000000000));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_AppInfo, Guiless)
#include "tst_AppInfo.moc"
