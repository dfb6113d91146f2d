#include "fakes/Patience.h"
#include "widgets/IconButtonTest.h"

#include <QLayout>
#include <QSignalSpy>

class tst_IconButtonMouse : public IconButtonTest
{
    Q_OBJECT

private slots:
    void enterAndLeaveRestyle()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 2);
        m_skin->m_strThirdIconColor = QStringLiteral("#00ff00");
        moveIn();
        QTRY_COMPARE_WITH_TIMEOUT(face(*m_pButton), glyphIn(cIcon, QStringLiteral("#00ff00")), cPatienceMs);
        m_skin->m_strThirdIconColor = QStringLiteral("#0000ff");
        m_window.moveOut();
        QTRY_COMPARE_WITH_TIMEOUT(face(*m_pButton), glyphIn(cIcon, QStringLiteral("#0000ff")), cPatienceMs);
    }

    void enterDoesNotRestyleADisabledButton()
    {
        m_pButton->setIconFont(QStringLiteral("x"), 12, 0);
        m_pButton->setEnabled(false);
        moveIn();
        QTRY_VERIFY_WITH_TIMEOUT(m_pButton->underMouse(), cPatienceMs);
        QCOMPARE(face(*m_pButton), glyphIn(cDisabled));
        m_window.moveOut();
        QTRY_VERIFY_WITH_TIMEOUT(!m_pButton->underMouse(), cPatienceMs);
        QCOMPARE(face(*m_pButton), glyphIn(cDisabled));
    }

    void hoverBackgroundShowsUnderTheMouse()
    {
        m_pButton->setIconFont(cBlock, 10, 3);
        const QColor around = m_window.grab().toImage().pixelColor(2, 2);
        QCOMPARE(seenAt(3, cSide / 2), around);
        moveIn();
        QTRY_VERIFY_WITH_TIMEOUT(m_pButton->underMouse(), cPatienceMs);
        QCOMPARE(seenAt(3, cSide / 2), QColor(cFifth));
        QCOMPARE(seenAt(cSide / 2, cSide / 2), QColor(Qt::white));
        // The background's corners are round.
        QVERIFY(seenAt(0, 0) != QColor(cFifth));
        m_window.moveOut();
        QTRY_VERIFY_WITH_TIMEOUT(!m_pButton->underMouse(), cPatienceMs);
        QCOMPARE(seenAt(3, cSide / 2), around);
    }

    void clickIsSentOnRelease()
    {
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        const QSignalSpy innerClicked(inner(*m_pButton), &QPushButton::clicked);
        press(Qt::LeftButton, QPoint(13, 13));
        QCOMPARE(clicked.count(), 0);
        release(Qt::LeftButton, QPoint(13, 13));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(innerClicked.count(), 0);
    }

    void everyPixelOfTheButtonClicks_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::newRow("first") << QPoint(0, 0);
        QTest::newRow("last") << QPoint(cSide - 1, cSide - 1);
    }

    void everyPixelOfTheButtonClicks()
    {
        QFETCH(QPoint, at);
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        click(Qt::LeftButton, at);
        QCOMPARE(clicked.count(), 1);
    }

    void pressIsSwallowed()
    {
        const QSignalSpy pressed(inner(*m_pButton), &QPushButton::pressed);
        press(Qt::LeftButton, QPoint(13, 13));
        QVERIFY(!inner(*m_pButton)->isDown());
        QCOMPARE(pressed.count(), 0);
        release(Qt::LeftButton, QPoint(13, 13));
    }

    void rightClickSendsNothing()
    {
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        click(Qt::RightButton, QPoint(13, 13));
        QCOMPARE(clicked.count(), 0);
    }

    void middleClickIsSent()
    {
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        click(Qt::MiddleButton, QPoint(13, 13));
        QCOMPARE(clicked.count(), 1);
    }

    void releaseOutsideSendsNothing_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::newRow("right of it") << QPoint(cSide, 13);
        QTest::newRow("left of it") << QPoint(-1, 13);
        QTest::newRow("above") << QPoint(13, -1);
        QTest::newRow("below") << QPoint(13, cSide);
    }

    void releaseOutsideSendsNothing()
    {
        QFETCH(QPoint, at);
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        press(Qt::LeftButton, QPoint(13, 13));
        m_window.moveTo(m_pButton->pos() + at);
        release(Qt::LeftButton, at);
        QCOMPARE(clicked.count(), 0);
        click(Qt::LeftButton, QPoint(13, 13));
        QCOMPARE(clicked.count(), 1);
    }

    void doubleClickIsTwoClicksAndLeavesTheButtonUp()
    {
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        QTest::mouseDClick(m_window.windowHandle(), Qt::LeftButton, {}, m_pButton->geometry().center());
        QCoreApplication::processEvents();
        QCOMPARE(clicked.count(), 2);
        QVERIFY(!inner(*m_pButton)->isDown());
    }

    void disabledByEitherFlagSendsNothing_data()
    {
        QTest::addColumn<bool>("own");
        QTest::addColumn<bool>("innerButtons");
        QTest::newRow("own flag") << true << false;
        QTest::newRow("inner button's") << false << true;
        QTest::newRow("both") << true << true;
    }

    void disabledByEitherFlagSendsNothing()
    {
        QFETCH(bool, own);
        QFETCH(bool, innerButtons);
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        m_pButton->setEnabled(!own);
        inner(*m_pButton)->setEnabled(!innerButtons);
        click(Qt::LeftButton, QPoint(13, 13));
        QCOMPARE(clicked.count(), 0);
        m_pButton->setEnabled(true);
        click(Qt::LeftButton, QPoint(13, 13));
        QCOMPARE(clicked.count(), 1);
    }

    void releaseOnTheBackgroundClicksToo()
    {
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        inner(*m_pButton)->setFixedSize(12, 12);
        back(*m_pButton)->layout()->activate();
        QVERIFY(!inner(*m_pButton)->geometry().contains(QPoint(1, cSide - 2)));
        click(Qt::LeftButton, QPoint(1, cSide - 2));
        QCOMPARE(clicked.count(), 1);
    }

    void keyboardDoesNotReachTheInnerButton()
    {
        const QSignalSpy clicked(m_pButton, &CIconButtonEx::clicked);
        QApplication::setActiveWindow(&m_window);
        QTest::keyClick(&m_window, Qt::Key_Tab);
        QVERIFY(!inner(*m_pButton)->hasFocus());
        QCOMPARE(inner(*m_pButton)->focusPolicy(), Qt::NoFocus);
        QCOMPARE(clicked.count(), 0);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_IconButtonMouse, Widgets)

#include "tst_IconButtonMouse.moc"
