// The texts behind the keys of the plug-in, the words of its forms and those of the programs: each has one in each
// language, and the windows show them.

#include "client/HostCatalogue.h"
#include "client/HostLanguage.h"

#include "fakes/EngineFixture.h"
#include "ui/VoipWidget.h"
#include "widgets/ErrorMessage.h"
#include "widgets/PushButtonEx.h"

#include <QDirIterator>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <vector>

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

/// A text with forms for several numbers stands in its first form, and is none when one of them is empty.
QString readText(QXmlStreamReader &xml)
{
    const QString state = xml.attributes().value(QStringLiteral("type")).toString();
    QString text;
    QStringList forms;
    while (!(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == QLatin1String("translation"))) {
        if (xml.isCharacters()) {
            text.append(xml.text());
        } else if (xml.isStartElement()) {
            forms.append(xml.readElementText());
        }
    }
    if (!state.isEmpty() || forms.contains(QString())) {
        return {};
    }
    return forms.isEmpty() ? text : forms.first();
}

/// The entries of a translation file in its order; an unfinished, vanished or obsolete one has no text.
QList<Entry> readFile(const QString &strPath)
{
    QList<Entry> entries;
    QFile file(strPath);
    if (!file.open(QIODevice::ReadOnly)) {
        return entries;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            entries.append({entryName(context, xml.readElementText()), QString()});
        } else if (xml.name() == QLatin1String("translation")) {
            entries.last().text = readText(xml);
        }
    }
    return entries;
}

QStringList namesOf(const QList<Entry> &entries)
{
    QStringList names;
    for (const Entry &entry : entries) {
        names.append(entry.name);
    }
    names.sort();
    return names;
}

/// The first names without the others, as one text.
QString without(const QStringList &names, const QStringList &others)
{
    QStringList left;
    for (const QString &name : names) {
        if (!others.contains(name)) {
            left.append(name);
        }
    }
    return left.join(QLatin1String(", "));
}

QStringList sourceFiles(const std::vector<const char *> &folders)
{
    QStringList files;
    for (const char *folder : folders) {
        QDirIterator walk(QLatin1String(folder), {"*.cpp", "*.h", "*.def", "*.ui"}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            files.append(walk.next());
        }
    }
    return files;
}

/// What Qt's own tool finds in the sources of these folders.
QList<Entry> entriesOfSources(const std::vector<const char *> &folders)
{
    const QTemporaryDir folder;
    const QString strFound = folder.filePath(QStringLiteral("found.ts"));
    QFile list(folder.filePath(QStringLiteral("files.lst")));
    if (!list.open(QIODevice::WriteOnly)) {
        return {};
    }
    list.write(sourceFiles(folders).join(QLatin1Char('\n')).toUtf8());
    list.close();
    return QProcess::execute(QStringLiteral(VOIP_LUPDATE), {"-silent", "@" + list.fileName(), "-ts", strFound}) == 0
               ? readFile(strFound)
               : QList<Entry>();
}

QString wordsFile(const QString &strLanguage)
{
    return QStringLiteral(VOIP_WORDS "/kelvarim_%1.ts").arg(strLanguage);
}

/// What the call window's form writes on its buttons.
QStringList wordsOf(const CVoipWidget &window)
{
    return {window.findChild<QPushButton *>("btnAddMember")->text(),
            window.findChild<PushButtonEx *>("btnCancelCall")->text(),
            window.findChild<PushButtonEx *>("HangUp")->text()};
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_wanted = entriesOfSources({VOIP_SOURCES, VOIP_PROGRAMS});
        // One of each way in which a key can stand in the sources: a class's own, another's, in a table, in a list, in
        // a form of the plug-in.
        const QStringList names = namesOf(m_wanted);
        for (const char *known :
             {"CVoipWidget::beSureToCloseCalling", "QObject::yesterday", "QObject::yourHotKeyUsedAndRevise",
              "QObject::ThemeGreen", "CVoipWidget::挂断", "ErrorMessage::组名：",
              // The client's own words, of a form, of a source and of a table.
              "SettingsPage::Language", "MainWindow::Signed out", "Presence::away"}) {
            QVERIFY2(names.contains(QString::fromUtf8(known)), known);
        }
    }

    void everyKeyOfTheSourcesAndNoOtherHasATranslation_data() { addLanguages(); }

    void everyKeyOfTheSourcesAndNoOtherHasATranslation()
    {
        QFETCH(QString, language);
        const QList<Entry> entries = readFile(wordsFile(language));
        const QStringList names = namesOf(entries);
        const QStringList wanted = namesOf(m_wanted);
        QCOMPARE(without(wanted, names), QString());
        QCOMPARE(without(names, wanted), QString());
        QCOMPARE(names, wanted);
        for (const Entry &entry : entries) {
            QVERIFY2(!entry.text.trimmed().isEmpty(), qPrintable(entry.name));
        }
    }

    // Who writes a host of his own reads there what his catalogue needs.
    void hostContractListsTheKeysOfThePlugin()
    {
        QStringList wanted;
        for (const Entry &entry : entriesOfSources({VOIP_SOURCES})) {
            wanted.append(entry.name);
        }
        wanted.sort();
        QVERIFY2(wanted.size() > 80, qPrintable(QString::number(wanted.size())));
        QFile document(QStringLiteral(VOIP_HOST_CONTRACT));
        QVERIFY(document.open(QIODevice::ReadOnly));
        static const QRegularExpression row(QStringLiteral("^\\| `(\\w+)` \\| `([^`]+)` \\| (.*) \\|$"),
                                            QRegularExpression::MultilineOption);
        QStringList listed;
        QStringList english;
        for (auto rows = row.globalMatch(QString::fromUtf8(document.readAll())); rows.hasNext();) {
            const QRegularExpressionMatch match = rows.next();
            listed.append(entryName(match.captured(1), match.captured(2)));
            english.append(listed.last() + ": " + match.captured(3));
        }
        listed.sort();
        QCOMPARE(without(wanted, listed), QString());
        QCOMPARE(without(listed, wanted), QString());
        QCOMPARE(listed, wanted);
        QStringList catalogued;
        for (const Entry &entry : readFile(wordsFile(QStringLiteral("en")))) {
            catalogued.append(entry.name + ": " + entry.text.trimmed());
        }
        QCOMPARE(without(english, catalogued), QString());
    }

    void compiledCatalogueGivesTheTexts_data() { addLanguages(); }

    void compiledCatalogueGivesTheTexts()
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

    void chineseTextsAreChinese_data()
    {
        QTest::addColumn<QString>("language");

        QTest::newRow("zh_CN") << "zh_CN";
        QTest::newRow("zh_TW") << "zh_TW";
    }

    void chineseTextsAreChinese()
    {
        QFETCH(QString, language);
        // A number that is compared, the name of the client, and a clock.
        const QStringList sameEverywhere = {"CUrlInfo::000000", "QObject::tarvoShowName", "CVoipWidget::00:00"};
        const QRegularExpression chinese(QStringLiteral("[\u3002\u4e00-\u9fa5]"));
        const QList<Entry> entries = readFile(wordsFile(language));
        for (const Entry &entry : entries) {
            QVERIFY2(sameEverywhere.contains(entry.name) || entry.text.contains(chinese), qPrintable(entry.name));
        }
    }

    void textsAreWrittenInTheirLanguagesLetters_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QByteArray>("letters");

        // The character sets of the countries: each lacks what only the other one writes, the last has no Chinese at
        // all.
        QTest::newRow("zh_CN") << "zh_CN" << QByteArray("GB2312");
        QTest::newRow("zh_TW") << "zh_TW" << QByteArray("Big5");
        QTest::newRow("en") << "en" << QByteArray("ISO-8859-1");
    }

    void textsAreWrittenInTheirLanguagesLetters()
    {
        QFETCH(QString, language);
        QFETCH(QByteArray, letters);
        // Marks that stand in texts of all languages.
        static const QRegularExpression marks(QStringLiteral("[\u2010-\u21ff]"));
        QTextCodec *pLetters = QTextCodec::codecForName(letters);
        QVERIFY(pLetters != nullptr);
        const QList<Entry> entries = readFile(wordsFile(language));
        for (const Entry &entry : entries) {
            QVERIFY2(pLetters->canEncode(QString(entry.text).remove(marks)), qPrintable(entry.name));
        }
    }

    void catchAllOfTheAddressesIsTheSameInEveryLanguage_data() { addLanguages(); }

    // Client and plug-ins look the catch-all domain up under this number, whatever their language.
    void catchAllOfTheAddressesIsTheSameInEveryLanguage()
    {
        QFETCH(QString, language);
        const QList<Entry> entries = readFile(wordsFile(language));
        const auto found = std::find_if(entries.begin(), entries.end(), [](const Entry &entry) {
            return entry.name == QLatin1String("CUrlInfo::000000");
        });
        QVERIFY(found != entries.end());
        QCOMPARE(found->text, QStringLiteral("000000"));
    }

    void wordsOfTheFormsAreInTheClientsLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("window");
        QTest::addColumn<QStringList>("dialog");

        QTest::newRow("zh_CN") << "zh_CN" << QStringList{"邀请成员", "取消", "挂断"}
                               << QStringList{"提示", "回复内容(100字以内)：", "组名："};
        QTest::newRow("zh_TW") << "zh_TW" << QStringList{"邀請成員", "取消", "掛斷"}
                               << QStringList{"提示", "回覆內容(100字以內)：", "群組名稱："};
        QTest::newRow("en") << "en" << QStringList{"Invite", "Cancel", "Hang up"}
                            << QStringList{"Notice", "Reply (up to 200 letters):", "Group name:"};
    }

    void wordsOfTheFormsAreInTheClientsLanguage()
    {
        QFETCH(QString, language);
        HostCatalogue catalogue;
        QVERIFY(catalogue.read(QStringLiteral(VOIP_TRANSLATIONS), language));
        QVERIFY(QCoreApplication::installTranslator(&catalogue));
        CVoipWidget window;
        QTEST(wordsOf(window), "window");
        ErrorMessage dialog(QString(), QString(), nullptr);
        const QStringList words{dialog.windowTitle(), dialog.findChild<QLabel *>("autoReplyLabel")->text(),
                                dialog.findChild<QLabel *>("label_group")->text()};
        QTEST(words, "dialog");
    }

    // The client may change its language while the window is there, in the middle of a call too.
    void callWindowFollowsTheLanguage()
    {
        CVoipWidget window;
        window.setVoipCallInfo({QStringLiteral("anna")}, CVoipWidget::Voice, true, true);
        QMetaObject::invokeMethod(window.findChild<QWidget *>("btnMic"), "clicked");
        QMetaObject::invokeMethod(&window, "slot_WindowChangeButtonClicked");
        auto *pClock = window.findChild<QLabel *>("currentPlayTimeLabel");
        pClock->setText(QStringLiteral("00:01:25"));

        HostCatalogue catalogue;
        QVERIFY(catalogue.read(QStringLiteral(VOIP_TRANSLATIONS), QStringLiteral("en")));
        QVERIFY(QCoreApplication::installTranslator(&catalogue));
        QCoreApplication::processEvents();

        QCOMPARE(wordsOf(window), (QStringList{"Invite", "Cancel", "Hang up"}));
        QStringList tips;
        for (const char *button : {"btnClose", "btnMic", "btnSpeaker", "btnChangeWindow"}) {
            tips.append(window.findChild<QWidget *>(button)->toolTip());
        }
        QCOMPARE(tips, (QStringList{"Close", "Unmute the microphone", "Sound off", "Restore"}));
        QCOMPARE(pClock->text(), QStringLiteral("00:01:25"));
    }

    void messageOfTheEngineIsInTheClientsLanguage_data()
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

    void messageOfTheEngineIsInTheClientsLanguage()
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

    void messageOfTheEngineShowsItsKeysWithoutACatalogue()
    {
        EngineFixture f;
        f.manager->callSingleUser(QStringLiteral("anna"), false);
        f.manager->callSingleUser(QStringLiteral("bert"), false);
        QCOMPARE(f.boxes.titles, QStringList{"tip"});
        QCOMPARE(f.boxes.texts, QStringList{"soundfailedinsound"});
    }

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");

        for (const HostLanguage::Choice &choice : HostLanguage::choices()) {
            QTest::newRow(qPrintable(choice.setting)) << choice.setting;
        }
    }

    QList<Entry> m_wanted;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_Translations, Widgets)
#include "tst_Translations.moc"
