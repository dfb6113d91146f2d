#include "common/html/DomText.h"

#include <QDomDocument>
#include <QTest>

namespace {

QString nested(int depth)
{
    return QString("<a>").repeated(depth) + QString("</a>").repeated(depth);
}

// A text of a few lines whose one entity stands for 10 to the power of `levels` letters.
QString multiplied(int levels)
{
    QString text = "<!DOCTYPE a [<!ENTITY e0 'x'>";
    for (int level = 1; level <= levels; ++level) {
        text += QString("<!ENTITY e%1 '%2'>").arg(level).arg(QString("&e%1;").arg(level - 1).repeated(10));
    }
    return text + QString("]><a>&e%1;</a>").arg(levels);
}

// A text with an entity of so many letters, and so many references to it.
QString declared(int letters, int references)
{
    return "<!DOCTYPE a [<!ENTITY b '" + QString(letters, 'x') + "'>]><a>" + QString("&b;").repeated(references) +
           "</a>";
}

} // namespace

class tst_DomText : public QObject
{
    Q_OBJECT

private slots:
    void wellFormedTextBecomesATree()
    {
        QDomDocument document;
        QVERIFY(DomText::parse(QString("<a><b>中</b></a>"), document));
        QCOMPARE(document.documentElement().firstChildElement().text(), QString("中"));
    }

    void bytesNameTheirCodec()
    {
        QDomDocument document;
        QVERIFY(DomText::parse(QByteArray("<?xml version='1.0' encoding='GBK'?><a>\xd6\xd0</a>"), document));
        QCOMPARE(document.documentElement().text(), QString("中"));
    }

    void textThatIsNotWellFormedGivesAnEmptyTree_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("plain") << "hello";
        QTest::newRow("open") << "<a><b></a>";
        QTest::newRow("entities that multiply") << multiplied(20);
        QTest::newRow("two levels of entities") << multiplied(1);
        QTest::newRow("entities in disguise") << "<!DOCTYPE a [<!ENTITY b 'c'><!ENTITY d '&#38;b;'>]><a>&d;</a>";
        QTest::newRow("an entity too long") << declared(DomText::cLongestEntity + 1, 1);
        QTest::newRow("a long entity millions of times") << declared(4000, 2000000);
        QTest::newRow("in an attribute") << declared(4000, 2000000).replace("<a>", "<a b='").replace("</a>", "'/>");
        QTest::newRow("one too deep") << nested(DomText::cDeepest + 1);
        QTest::newRow("bottomless") << QString("<a>").repeated(1000000);
        QTest::newRow("bottomless behind a comment") << "<r><!--</a></a>-->" + nested(100000) + "</r>";
    }

    void textThatIsNotWellFormedGivesAnEmptyTree()
    {
        QFETCH(QString, text);
        QDomDocument document("old");
        QVERIFY(!DomText::parse(text, document));
        QVERIFY(document.documentElement().isNull());
    }

    void shortEntitiesAreRead()
    {
        QDomDocument document;
        QVERIFY(DomText::parse(declared(DomText::cLongestEntity, 2), document));
        QCOMPARE(document.documentElement().text(), QString(2 * DomText::cLongestEntity, 'x'));
    }

    void theDeepestTreeStands()
    {
        QDomDocument document;
        QVERIFY(DomText::parse(nested(DomText::cDeepest), document));
        QVERIFY(!document.toString(-1).isEmpty());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_DomText, Guiless)
#include "tst_DomText.moc"
