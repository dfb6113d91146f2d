#include "client/ContactBook.h"
#include "panes/SignatureCard.h"
#include "screen/WindowProbe.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>

class tst_SignatureCard : public QObject
{
    Q_OBJECT

private slots:
    void saysWhoItIs()
    {
        SignatureCard card(m_book);
        card.showCard(jid("30010002"), {700, 300}, 500);
        QCOMPARE(WindowProbe::text(&card, "lblName"), QStringLiteral("Maria Silva"));
        QCOMPARE(WindowProbe::text(&card, "lblSignature"), QStringLiteral("Back in five minutes"));
        QVERIFY(!card.findChild<QLabel *>(QStringLiteral("lblHead"))->pixmap(Qt::ReturnByValue).isNull());
    }

    void strangerWithoutASignatureIsSaidToHaveNone()
    {
        SignatureCard card(m_book);
        card.showCard(jid("30010007"), {700, 300}, 500);
        QCOMPARE(WindowProbe::text(&card, "lblName"), QStringLiteral("韩梅梅"));
        QCOMPARE(WindowProbe::text(&card, "lblSignature"), QStringLiteral("(no signature)"));
    }

    void unknownUserIsNamedById()
    {
        SignatureCard card(m_book);
        card.showCard(jid("4711"), {700, 300}, 500);
        QCOMPARE(WindowProbe::text(&card, "lblName"), QStringLiteral("4711"));
    }

    void changesOverToAnotherPerson()
    {
        SignatureCard card(m_book);
        card.showCard(jid("30010002"), {700, 300}, 500);
        card.showCard(jid("30010004"), {700, 400}, 500);
        QVERIFY(card.isVisible());
        QCOMPARE(WindowProbe::text(&card, "lblName"), QStringLiteral("Tom Baker"));
        QCOMPARE(card.y(), 400);
    }

    void wordsAreTextAndNoMarkup()
    {
        SignatureCard card(m_book);
        card.showCard(QStringLiteral("<b>") + QString(10000, QLatin1Char('x')), {700, 300}, 500);
        const auto *name = card.findChild<QLabel *>(QStringLiteral("lblName"));
        QCOMPARE(name->textFormat(), Qt::PlainText);
        QVERIFY(name->text().startsWith(QStringLiteral("<b>x")));
        QVERIFY(screen().contains(card.geometry()));
    }

    void standsOnTheListsLeft()
    {
        SignatureCard card(m_book);
        card.showCard(jid("30010002"), {700, 300}, 500);
        QVERIFY(card.geometry().right() < 700);
        QCOMPARE(card.y(), 300);
    }

    void standsOnTheListsRightWhereTheLeftHasNoRoom()
    {
        SignatureCard card(m_book);
        card.showCard(jid("30010002"), {screen().left() + 20, 300}, 500);
        QVERIFY(card.x() >= screen().left() + 20 + 500);
    }

    void staysWholeOnTheScreen_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<int>("width");
        const QRect area = screen();
        QTest::newRow("top left") << area.topLeft() - QPoint(50, 50) << 500;
        QTest::newRow("bottom right") << area.bottomRight() << 500;
        QTest::newRow("list as wide as the screen") << area.bottomLeft() << area.width();
        QTest::newRow("far out") << QPoint(100000, 100000) << 500;
        QTest::newRow("far out on the other side") << QPoint(-100000, -100000) << -1;
    }

    void staysWholeOnTheScreen()
    {
        QFETCH(QPoint, place);
        QFETCH(int, width);
        SignatureCard card(m_book);
        card.showCard(jid("30010002"), place, width);
        QVERIFY(screen().contains(card.geometry()));
    }

    void takesNeitherFocusNorMouse()
    {
        SignatureCard card(m_book);
        card.showCard(jid("30010002"), {700, 300}, 500);
        QVERIFY(card.testAttribute(Qt::WA_ShowWithoutActivating));
        QVERIFY(card.windowFlags().testFlag(Qt::WindowTransparentForInput));
        QVERIFY(card.windowFlags().testFlag(Qt::FramelessWindowHint));
    }

private:
    static QRect screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    static QString jid(const char *strUid) { return QLatin1String(strUid) + QStringLiteral("@example.org"); }

    ContactBook m_book{QStringLiteral("example.org")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SignatureCard, Widgets)
#include "tst_SignatureCard.moc"
