#include "client/WindowFont.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QTest>

class tst_WindowFont : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (const QString &family : WindowFont::families()) {
            QFont::removeSubstitutions(family);
        }
    }

    void bestInstalledCandidateStandsIn_data()
    {
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("family");

        const QStringList candidates = WindowFont::candidates();
        QTest::newRow("all") << candidates << candidates.first();
        QTest::newRow("the order of the system is of no account")
            << QStringList{candidates.last(), candidates.first()} << candidates.first();
        QTest::newRow("the last alone") << QStringList{"DejaVu Sans", candidates.last()} << candidates.last();
        QTest::newRow("in another case") << QStringList{candidates.at(1).toUpper()} << candidates.at(1);
        QTest::newRow("none of them") << QStringList{"DejaVu Sans"} << QString();
        QTest::newRow("no family at all") << QStringList() << QString();
    }

    void bestInstalledCandidateStandsIn()
    {
        QFETCH(QStringList, installed);
        QTEST(WindowFont::standIn(WindowFont::candidates(), installed), "family");
    }

    void missingFamilyShowsInAnInstalledOne_data()
    {
        QTest::addColumn<QString>("family");

        QTest::newRow("Chinese name") << QStringLiteral("微软雅黑");
        QTest::newRow("English name") << "Microsoft YaHei";
    }

    void missingFamilyShowsInAnInstalledOne()
    {
        QFETCH(QString, family);
        const QStringList installed = QFontDatabase().families();
        QVERIFY2(!installed.contains(family), "this machine has the family itself");
        const QString standIn = WindowFont::standIn(WindowFont::candidates(), installed);
        QVERIFY2(!standIn.isEmpty(), "this machine has no Chinese family");
        QVERIFY(QFontInfo(QFont(family)).family() != standIn);
        WindowFont::substituteMissing();
        QCOMPARE(QFont::substitutes(family), QStringList{standIn.toLower()});
        QCOMPARE(QFontInfo(QFont(family)).family(), standIn);
    }

    void secondCallChangesNothing()
    {
        WindowFont::substituteMissing();
        const QStringList once = QFont::substitutes(WindowFont::families().first());
        WindowFont::substituteMissing();
        QCOMPARE(QFont::substitutes(WindowFont::families().first()), once);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_WindowFont, Widgets)
#include "tst_WindowFont.moc"
