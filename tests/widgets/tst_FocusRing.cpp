// The kit's buttons by keys and for a screen reader: names, presses, Tab, and the ring that keys alone bring.

#include "fakes/Patience.h"
#include "widgets/IconButtonEx.h"
#include "widgets/PushButtonEx.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <memory>

class tst_FocusRing : public QObject
{
    Q_OBJECT

private:
    static QPushButton *inner(const CIconButtonEx &button) { return button.findChild<QPushButton *>("pushButton"); }
    QAccessibleInterface *face() const { return QAccessible::queryAccessibleInterface(inner(*m_pButton)); }
    QString spokenName() const { return face()->text(QAccessible::Name); }
    void activate()
    {
        m_pWindow->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
    }
    const QWidget *ring(const QWidget *pFrame) const
    {
        const auto *pRing = pFrame->findChild<QWidget *>("focusRing");
        return pRing != nullptr && pRing->isVisible() ? pRing : nullptr;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_pWindow->windowHandle(), key, modifiers);
    }

    std::unique_ptr<QWidget> m_pWindow;
    CIconButtonEx *m_pButton = nullptr;

private slots:
    void init()
    {
        m_pWindow = std::make_unique<QWidget>();
        m_pWindow->resize(120, 100);
        m_pButton = new CIconButtonEx(m_pWindow.get());
        m_pButton->setGeometry(40, 40, 26, 26);
        // The focus is in the window and in none of its parts.
        m_pWindow->setFocus();
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get(), cPatienceMs));
    }

    void cleanup() { m_pWindow.reset(); }

    void nameIsTheTipUnlessAnotherIsGiven()
    {
        m_pButton->setIconFont(QStringLiteral("\uE62C"), 8, CIconButtonEx::RedStyle);
        m_pButton->setToolTip(QStringLiteral("Close"));
        QCOMPARE(spokenName(), QStringLiteral("Close"));
        m_pButton->setAccessibleName(QStringLiteral("Close the window"));
        QCOMPARE(spokenName(), QStringLiteral("Close the window"));
        m_pButton->setToolTip(QStringLiteral("Shut"));
        QCOMPARE(spokenName(), QStringLiteral("Close the window"));
        m_pButton->setAccessibleName(QString());
        QCOMPARE(spokenName(), QStringLiteral("Shut"));
    }

    void screenReaderPressesIt()
    {
        QSignalSpy clicked(m_pButton, SIGNAL(clicked()));
        QAccessibleActionInterface *pActions = face()->actionInterface();
        QVERIFY(pActions != nullptr);
        for (int i = 1; i <= 3; ++i) {
            pActions->doAction(QAccessibleActionInterface::pressAction());
            QTRY_COMPARE_WITH_TIMEOUT(clicked.size(), i, cPatienceMs);
            // Checked is what the owner says.
            QVERIFY(!inner(*m_pButton)->isChecked());
        }
        m_pButton->setEnabled(false);
        pActions->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.size(), 3);
    }

    void keysOutliveANewGlyph()
    {
        QSignalSpy clicked(m_pButton, SIGNAL(clicked()));
        activate();
        m_pButton->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
        for (int i = 1; i <= 3; ++i) {
            m_pButton->setIconFont(QStringLiteral("\uE62C"), 8, CIconButtonEx::RedStyle);
            press(Qt::Key_M, Qt::ControlModifier);
            QTRY_COMPARE_WITH_TIMEOUT(clicked.size(), i, cPatienceMs);
        }
        m_pButton->setShortcut({});
        QVERIFY(inner(*m_pButton)->shortcut().isEmpty());
    }

    void takesNoFocusUnlessToldTo()
    {
        activate();
        press(Qt::Key_Tab);
        QVERIFY(!inner(*m_pButton)->hasFocus());
        m_pButton->setKeyFocus(true);
        press(Qt::Key_Tab);
        QVERIFY(inner(*m_pButton)->hasFocus());
        QVERIFY(ring(m_pButton) != nullptr);
        QCOMPARE(ring(m_pButton)->size(), m_pButton->size());
        QSignalSpy clicked(m_pButton, SIGNAL(clicked()));
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            press(key);
        }
        QCOMPARE(clicked.size(), 3);
        m_pButton->resize(40, 40);
        QCOMPARE(ring(m_pButton)->size(), QSize(40, 40));
        m_pButton->setKeyFocus(false);
        QCOMPARE(inner(*m_pButton)->focusPolicy(), Qt::NoFocus);
    }

    void mouseBringsNoRingAndTakesItAway()
    {
        activate();
        m_pButton->setKeyFocus(true);
        const QImage bare = m_pButton->grab().toImage();
        inner(*m_pButton)->setFocus();
        QVERIFY(ring(m_pButton) == nullptr);
        QCOMPARE(m_pButton->grab().toImage(), bare);
        inner(*m_pButton)->clearFocus();
        press(Qt::Key_Tab);
        QVERIFY(ring(m_pButton) != nullptr);
        QVERIFY(m_pButton->grab().toImage() != bare);
        QSignalSpy clicked(m_pButton, SIGNAL(clicked()));
        // The ring lets the mouse through.
        QTest::mouseClick(m_pWindow->windowHandle(), Qt::LeftButton, {}, m_pButton->geometry().center());
        QCOMPARE(clicked.size(), 1);
        QVERIFY(ring(m_pButton) == nullptr);
    }

    void textButtonShowsItsFocusToo()
    {
        PushButtonEx button(m_pWindow.get());
        button.setText(QStringLiteral("OK"));
        button.setGeometry(10, 10, 75, 25);
        button.show();
        activate();
        const QImage bare = button.grab().toImage();
        press(Qt::Key_Tab);
        QVERIFY(button.findChild<QPushButton *>()->hasFocus());
        QVERIFY(ring(&button) != nullptr);
        QVERIFY(button.grab().toImage() != bare);
        QSignalSpy clicked(&button, SIGNAL(clicked()));
        button.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
        button.setText(QStringLiteral("End"));
        press(Qt::Key_E, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(clicked.size(), 1, cPatienceMs);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_FocusRing, Widgets)

#include "tst_FocusRing.moc"
