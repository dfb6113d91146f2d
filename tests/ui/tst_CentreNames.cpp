// Names that come from the network, in the conference centre: in the list, on the page of one conference, among its
// members. They are text and nothing else.

#include "CentreTest.h"

#include "fakes/ForeignText.h"

class tst_CentreNames : public CentreTest
{
    Q_OBJECT

private slots:
    void namesAreTextOnBothPages_data() { ForeignText::addRows(); }

    void namesAreTextOnBothPages()
    {
        QFETCH(QString, name);
        m_pContacts->addContact(QStringLiteral("ann"), ContactFixture::card(name, name, name));
        ConfInfoData info = record(QStringLiteral("c1"), {"ann", name, "me"});
        info.m_strCreatTime = name;
        info.m_strCallTime = name;
        QVERIFY(DBConfInfo::saveConfInfo(info));
        ConfInfoData byStranger = record(QStringLiteral("c2"));
        byStranger.m_strCreatUserID = name;
        QVERIFY(DBConfInfo::saveConfInfo(byStranger));
        open({});
        showAt({40, 40});
        QCOMPARE(list()->model()->rowCount(), 2);
        QVERIFY(!m_pWindow->grab().isNull());
        QCOMPARE(ForeignText::faults(m_pWindow.get(), name), QStringList());

        for (const char *pId : {"c1", "c2"}) {
            call("slot_ShowConfDetail", QString::fromLatin1(pId));
            expectPage(1);
            QVERIFY(!m_pWindow->grab().isNull());
            QCOMPARE(ForeignText::faults(m_pWindow.get(), name), QStringList());
        }
        QVERIFY(part<QLabel>("CreatName")->text().contains(name.left(20)));
    }

    void labelsForNamesNeverRunMarkup()
    {
        open({QStringLiteral("c1")});
        QCOMPARE(part<QLabel>("CreatName")->textFormat(), Qt::PlainText);
        QCOMPARE(part<QLabel>("lblCreateTime")->textFormat(), Qt::PlainText);
        QCOMPARE(part<QLabel>("lblCallTime")->textFormat(), Qt::PlainText);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CentreNames, Widgets)
#include "tst_CentreNames.moc"
