#include "common/DomText.h"

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
        QTest::newRow("one too deep") << nested(DomText::DEEPEST + 1);
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

    void theDeepestTreeStands()
    {
        QDomDocument document;
        QVERIFY(DomText::parse(nested(DomText::DEEPEST), document));
        QVERIFY(!document.toString(-1).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_DomText)
#include "tst_DomText.moc"
