// The texts behind the keys of the plug-in and the words of the client: each has one in each language, and the windows
// show them.

#include "HostCatalogue.h"
#include "HostLanguage.h"

#include "fakes/EngineFixture.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

// A key with its context, and its text when it is finished.
struct Entry
{
    QString name;
    QString text;
};

QString entryName(const QString &strContext, const QString &strKey)
{
    return strContext + QStringLiteral("::") + strKey;
}

/// A text with forms for several numbers stands in its first form.
QString readText(QXmlStreamReader &xml)
{
    const QString state = xml.attributes().value(QStringLiteral("type")).toString();
    QString text;
    QString form;
    while (!(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == QLatin1String("translation"))) {
        if (xml.isCharacters())
            text.append(xml.text());
        else if (xml.isStartElement() && form.isEmpty())
            form = xml.readElementText();
        else if (xml.isStartElement())
            xml.skipCurrentElement();
    }
    return state.isEmpty() ? (form.isEmpty() ? text : form) : QString();
}

/// The entries of a translation file in its order; an unfinished, vanished or obsolete one has no text.
QList<Entry> readFile(const QString &strPath)
{
    QList<Entry> entries;
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            entries.append({entryName(context, xml.readElementText()), QString()});
        else if (xml.name() == QLatin1String("translation"))
            entries.last().text = readText(xml);
    }
    return entries;
}

QStringList namesOf(const QList<Entry> &entries)
{
    QStringList names;
    for (const Entry &entry : entries)
        names.append(entry.name);
    names.sort();
    return names;
}

QStringList sourceFiles()
{
    QStringList files;
    const auto collect = [&](const QString &strFolder, const QStringList &names) {
        QDirIterator walk(strFolder, names, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            files.append(walk.next());
    };
    // The plug-in's forms stay out: their texts are Chinese in every language.
    collect(QStringLiteral(VOIP_SOURCES), {"*.cpp", "*.h", "*.def"});
    collect(QStringLiteral(VOIP_CLIENT), {"*.cpp", "*.h", "*.ui"});
    return files;
}

QString wordsFile(const QString &strLanguage)
{
    return QStringLiteral(VOIP_WORDS "/kelvarim_%1.ts").arg(strLanguage);
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyKeyOfTheSourcesAndNoOtherHasATranslation_data();
    void everyKeyOfTheSourcesAndNoOtherHasATranslation();
    void compiledCatalogueGivesTheTexts_data();
    void compiledCatalogueGivesTheTexts();
    void chineseTextsAreChinese_data();
    void chineseTextsAreChinese();
    void catchAllOfTheAddressesIsTheSameInEveryLanguage_data();
    void catchAllOfTheAddressesIsTheSameInEveryLanguage();
    void messageOfTheEngineIsInTheClientsLanguage_data();
    void messageOfTheEngineIsInTheClientsLanguage();
    void messageOfTheEngineShowsItsKeysWithoutACatalogue();

private:
    static void addLanguages();

    QList<Entry> m_wanted;
};

void tst_Translations::initTestCase()
{
    const QTemporaryDir folder;
    const QString strFound = folder.filePath(QStringLiteral("found.ts"));
    QFile list(folder.filePath(QStringLiteral("files.lst")));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write(sourceFiles().join(QLatin1Char('\n')).toUtf8());
    list.close();
    QCOMPARE(QProcess::execute(QStringLiteral(VOIP_LUPDATE), {"-silent", "@" + list.fileName(), "-ts", strFound}), 0);
    m_wanted = readFile(strFound);
    // One of each way in which a key can stand in the sources: a class's own, another's, in a table, in a list.
    const QStringList names = namesOf(m_wanted);
    for (const char *known : {"CVoipWidget::beSureToCloseCalling", "QObject::yesterday",
                              "QObject::yourHotKeyUsedAndRevise", "QObject::ThemeGreen",
                              // The client's own words, of a form, of a source and of a table.
                              "SettingsPage::Language", "MainWindow::Signed out", "Presence::away"})
        QVERIFY2(names.contains(QLatin1String(known)), known);
}

void tst_Translations::addLanguages()
{
    QTest::addColumn<QString>("language");

    for (const HostLanguage::Choice &choice : HostLanguage::choices())
        QTest::newRow(qPrintable(choice.setting)) << choice.setting;
}

void tst_Translations::everyKeyOfTheSourcesAndNoOtherHasATranslation_data()
{
    addLanguages();
}

void tst_Translations::everyKeyOfTheSourcesAndNoOtherHasATranslation()
{
    QFETCH(QString, language);
    const QList<Entry> entries = readFile(wordsFile(language));
    QCOMPARE(namesOf(entries), namesOf(m_wanted));
    for (const Entry &entry : entries)
        QVERIFY2(!entry.text.trimmed().isEmpty(), qPrintable(entry.name));
}

void tst_Translations::compiledCatalogueGivesTheTexts_data()
{
    addLanguages();
}

void tst_Translations::compiledCatalogueGivesTheTexts()
{
    QFETCH(QString, language);
    HostCatalogue catalogue;
    QVERIFY(catalogue.read(QStringLiteral(VOIP_TRANSLATIONS), language));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    const QList<Entry> entries = readFile(wordsFile(language));
    for (const Entry &entry : entries) {
        const QByteArray context = entry.name.section(QStringLiteral("::"), 0, 0).toUtf8();
        const QByteArray key = entry.name.section(QStringLiteral("::"), 1).toUtf8();
        QCOMPARE(QCoreApplication::translate(context.constData(), key.constData()), entry.text);
    }
}

void tst_Translations::chineseTextsAreChinese_data()
{
    QTest::addColumn<QString>("language");

    QTest::newRow("zh_CN") << "zh_CN";
    QTest::newRow("zh_TW") << "zh_TW";
}

void tst_Translations::chineseTextsAreChinese()
{
    QFETCH(QString, language);
    // A number that is compared, and the name of the client.
    const QStringList sameEverywhere = {"CUrlInfo::000000", "QObject::tarvoShowName"};
    const QRegularExpression chinese(QStringLiteral("[\u3002\u4e00-\u9fa5]"));
    const QList<Entry> entries = readFile(wordsFile(language));
    for (const Entry &entry : entries)
        QVERIFY2(sameEverywhere.contains(entry.name) || entry.text.contains(chinese), qPrintable(entry.name));
}

void tst_Translations::catchAllOfTheAddressesIsTheSameInEveryLanguage_data()
{
    addLanguages();
}

// Client and plug-ins look the catch-all domain up under this number, whatever their language.
void tst_Translations::catchAllOfTheAddressesIsTheSameInEveryLanguage()
{
    QFETCH(QString, language);
    const QList<Entry> entries = readFile(wordsFile(language));
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [](const Entry &entry) { return entry.name == QLatin1String("CUrlInfo::000000"); });
    QVERIFY(found != entries.end());
    QCOMPARE(found->text, QStringLiteral("000000"));
}

void tst_Translations::messageOfTheEngineIsInTheClientsLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");

    QTest::newRow("zh_CN") << "zh_CN" << QStringLiteral("提示") << QStringLiteral("正在通话中，请先结束当前通话");
    QTest::newRow("zh_TW") << "zh_TW" << QStringLiteral("提示") << QStringLiteral("正在通話中，請先結束目前的通話");
    QTest::newRow("en") << "en"
                        << "Notice"
                        << "You are in a call already. Please end it first.";
}

void tst_Translations::messageOfTheEngineIsInTheClientsLanguage()
{
    QFETCH(QString, language);
    HostCatalogue catalogue;
    QVERIFY(catalogue.read(QStringLiteral(VOIP_TRANSLATIONS), language));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    EngineFixture f;
    f.manager->callSingleUser(QStringLiteral("anna"), false);
    f.manager->callSingleUser(QStringLiteral("bert"), false);
    QTEST(f.boxes.titles.join('|'), "title");
    QTEST(f.boxes.texts.join('|'), "text");
}

void tst_Translations::messageOfTheEngineShowsItsKeysWithoutACatalogue()
{
    EngineFixture f;
    f.manager->callSingleUser(QStringLiteral("anna"), false);
    f.manager->callSingleUser(QStringLiteral("bert"), false);
    QCOMPARE(f.boxes.titles, QStringList{"tip"});
    QCOMPARE(f.boxes.texts, QStringList{"soundfailedinsound"});
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
