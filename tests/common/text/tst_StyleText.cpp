#include "common/text/StyleText.h"
#include "fakes/FileBytes.h"

#include <QFile>
#include <QTest>

class tst_StyleText : public QObject
{
    Q_OBJECT

private slots:
    void sheetsAreReadInTheirCodec()
    {
        QVERIFY(writeFile("one.qss", "QLabel{font:'\xce\xa2\xc8\xed'}\r\n"));
        QVERIFY(writeFile("two.qss", ""));
        QCOMPARE(StyleText::readStyleSheet({"one.qss", "two.qss"}), QStringList({"QLabel{font:'微软'}\n", ""}));
        QVERIFY(StyleText::readStyleSheet({}).isEmpty());
    }

    void oneMissingSheetDropsAll()
    {
        QVERIFY(writeFile("one.qss", "a"));
        QCOMPARE(StyleText::readStyleSheet({"one.qss", "missing.qss"}), QStringList({QString()}));
        QCOMPARE(StyleText::readStyleSheet({"."}), QStringList({QString()}));
    }

    void coloursInDecimal_data()
    {
        QTest::addColumn<QString>("colour");
        QTest::addColumn<QString>("decimal");
        QTest::newRow("green") << "#33af56"
                               << "51,175,86";
        QTest::newRow("without the mark") << "ffffff"
                                          << "255,255,255";
        QTest::newRow("last two digits") << "#01020304"
                                         << "1,2,4";
        QTest::newRow("no number") << "#zzzzzz"
                                   << "0,0,0";
        QTest::newRow("empty") << QString() << "0,0,0";
    }

    void coloursInDecimal()
    {
        QFETCH(QString, colour);
        QTEST(StyleText::transformToRGBAStr(colour), "decimal");
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_StyleText, Guiless)
#include "tst_StyleText.moc"
