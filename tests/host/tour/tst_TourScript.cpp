#include "tour/TourScript.h"

#include "model/MemberRoles.h"

#include <QTest>

class tst_TourScript : public QObject
{
    Q_OBJECT

private slots:
    void memberCheckSaysTheStatusAsTheListDoes_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("words");

        QTest::newRow("first of the table") << int(ConferenceCalling) << QStringLiteral("呼叫中");
        QTest::newRow("last of the table") << int(ConferenceRejected) << QStringLiteral("已拒绝");
        QTest::newRow("not in the table") << 4711 << QStringLiteral("4711");
        QTest::newRow("negative") << -1 << QStringLiteral("-1");
    }

    void memberCheckSaysTheStatusAsTheListDoes()
    {
        QFETCH(int, status);
        QFETCH(QString, words);
        QCOMPARE(TourScript::member("30010001", "李雷", status).words,
                 QStringLiteral("the member list shows 李雷: ") + words);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_TourScript, Appless)
#include "tst_TourScript.moc"
