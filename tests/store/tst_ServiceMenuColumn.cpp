#include "model/CServiceNumData.h"
#include "store/StoreFixture.h"

#include <QTest>

#include <json/reader.h>
#include <json/value.h>

namespace {

const char *const cService = R"({"iServiceCode":"c1","menuList":[
  {"name":"\u83dc\u5355 'top' \u0022x\u0022","type":1,"value":"a\\b\n","child":[
    {"name":"one","leaf":true,"type":2,"pcLink":"m.example/?a=1&b=2"},
    {"name":"two","child":[{"name":"deep","leaf":true,"moLink":"m"}]}]},
  {"name":"end","leaf":true}]})";

// All that a tree of nodes holds, as one text.
QString told(const QList<ServiceMenu> &nodes)
{
    QString text;
    for (const ServiceMenu &node : nodes) {
        text += QString("(%1|%2|%3|%4|%5|%6%7)")
                    .arg(node.m_strName, QString::number(node.m_bLeaf), QString::number(node.m_iType), node.m_strValue,
                         node.m_strPcLink, node.m_strMoLink, told(node.m_listChild));
    }
    return text;
}

} // namespace

class tst_ServiceMenuColumn : public QObject
{
    Q_OBJECT

private slots:
    void aMenuGoesThroughTheTablesAndBack_data()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("servicenumber") << "servicenumber";
        QTest::newRow("localservicenumber") << "localservicenumber";
    }

    void aMenuGoesThroughTheTablesAndBack()
    {
        QFETCH(QString, table);
        const StoreFixture fixture;
        QVERIFY(fixture.open());
        Json::Value value;
        QVERIFY(Json::Reader().parse(cService, value));
        CServiceNumData sent;
        sent.parseFromJson(value);

        QSqlQuery query(DB::getDB());
        QVERIFY(query.prepare("INSERT INTO " + table + " (servicecode, menu) VALUES (?, ?)"));
        query.addBindValue(sent.m_strServiceCode);
        query.addBindValue(sent.m_strMenuText);
        QVERIFY(query.exec());
        QVERIFY(query.exec("SELECT menu FROM " + table + " WHERE servicecode = 'c1'") && query.next());
        CServiceNumData stored;
        stored.parseServiceMenuFromString(query.value(0).toString());

        QCOMPARE(stored.m_strMenuText, sent.m_strMenuText);
        QCOMPARE(told(stored.m_listMenu), told(sent.m_listMenu));
        QCOMPARE(told(stored.m_listMenu), QString("(菜单 'top' \"x\"|0|1|a\\b\n||(one|1|2||m.example/?a=1&b=2|)"
                                                  "(two|0|0|||(deep|1|0|||m)))(end|1|0|||)"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ServiceMenuColumn, Guiless)
#include "tst_ServiceMenuColumn.moc"
