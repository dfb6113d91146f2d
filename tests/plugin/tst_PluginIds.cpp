#include "plugin/PluginIds.h"

#include <QTest>

class tst_PluginIds : public QObject
{
    Q_OBJECT

private slots:
    void idsAreTheExactTexts_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");
        QTest::newRow("own") << voipPluginId() << "{2EFF6261-40D8-448C-8E4C-8D52A7ABF3D1}";
        QTest::newRow("session") << sessionPluginId() << "{FE9829B7-5267-D9AA-3917-514F39C709F0}";
        QTest::newRow("contact") << contactPluginId() << "{7123C2B9-E89C-0CC5-5B1E-9496BB7427C8}";
        QTest::newRow("vCard") << vcardPluginId() << "{5EE3221F-AC38-4b54-9DDF-83773A91981B}";
        QTest::newRow("message box") << msgBoxPluginId() << "{D2421E81-FC91-45ce-BA71-7116B45D04B1}";
        QTest::newRow("signature list") << signListPluginId() << "{77CCE3F9-79F5-C5E8-17E7-F6B7389AAA6E}";
    }

    void idsAreTheExactTexts()
    {
        QFETCH(QString, id);
        QFETCH(QString, text);
        QCOMPARE(id, text);
        QCOMPARE(id.size(), 38);
    }

    void ownIdIsUpperCase() { QCOMPARE(voipPluginId().toUpper(), voipPluginId()); }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PluginIds, Guiless)
#include "tst_PluginIds.moc"
