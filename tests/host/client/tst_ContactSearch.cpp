#include "client/ContactSearch.h"

#include <QTest>

class tst_ContactSearch : public QObject
{
    Q_OBJECT

private slots:
    void textFindsByNameNumberAndInitials_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");

        const QString liLei = QStringLiteral("30010001");
        const QString maria = QStringLiteral("30010002");
        const QString wangFang = QStringLiteral("30010003");
        const QString stranger = QStringLiteral("30010007");
        QTest::newRow("a name") << "Maria Silva" << QStringList{maria};
        QTest::newRow("part of a name in another case") << "SILV" << QStringList{maria};
        QTest::newRow("a Chinese name") << QStringLiteral("李雷") << QStringList{liLei};
        QTest::newRow("part of a Chinese name") << QStringLiteral("芳") << QStringList{wangFang};
        QTest::newRow("initials") << "ll" << QStringList{liLei};
        QTest::newRow("initials in upper case") << "WF" << QStringList{wangFang};
        QTest::newRow("the end of the initials") << "f" << QStringList{wangFang};
        QTest::newRow("a number") << "30010007" << QStringList{stranger};
        QTest::newRow("the end of a number") << "0002" << QStringList{maria};
        QTest::newRow("spaces around it") << "  maria " << QStringList{maria};
        QTest::newRow("a stranger's name is not known") << QStringLiteral("韩梅梅") << QStringList();
        QTest::newRow("nor are a stranger's initials") << "hmm" << QStringList();
        QTest::newRow("what nobody has") << "zzz" << QStringList();
        QTest::newRow("spaces alone") << "  " << QStringList{liLei, maria, wangFang, stranger};
        QTest::newRow("nothing") << QString() << QStringList{liLei, maria, wangFang, stranger};
    }

    void textFindsByNameNumberAndInitials()
    {
        QFETCH(QString, text);
        const ContactBook book(QStringLiteral("example.org"));
        QStringList found;
        for (const int row : {0, 1, 2, 6}) {
            if (ContactSearch::finds(book.entries().at(row), text)) {
                found.append(book.entries().at(row).uid);
            }
        }
        QTEST(found, "found");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ContactSearch, Guiless)
#include "tst_ContactSearch.moc"
