#include "conference/UserId.h"

#include <QtTest>

class tst_UserId : public QObject
{
    Q_OBJECT

private slots:
    void userIdIsShortAndPlain()
    {
        QVERIFY(isUserId(QStringLiteral("30010001")));
        QVERIFY(isUserId(QStringLiteral("李雷")));
        QVERIFY(isUserId(QString(128, QLatin1Char('x'))));
        QVERIFY(!isUserId(QString(129, QLatin1Char('x'))));
        QVERIFY(!isUserId(QString()));
        QVERIFY(!isUserId(QStringLiteral("a\nb")));
        QVERIFY(!isUserId(QStringLiteral("a\u202Eb")));
        QVERIFY(!isUserId(QStringLiteral("a") + QChar(0xd800)));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_UserId, Appless)
#include "tst_UserId.moc"
