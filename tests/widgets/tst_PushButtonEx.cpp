#include "fakes/Patience.h"
#include "widgets/BareWindow.h"
#include "widgets/OwnSkin.h"
#include "widgets/PushButtonEx.h"

#include <QDialog>
#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

QString rule(const char *pState, const QString &text, const QString &background)
{
    return QStringLiteral("QPushButton#btnEx") + QLatin1String(pState) + QStringLiteral("{color:") + text +
           QStringLiteral(";background-color:") + background + QStringLiteral(";border-style:none;}");
}

// The skin's button colours in these tests: no two alike, so that a mixed-up member shows.
const QString cBorder = QStringLiteral("#000033");
const QString cBack = QStringLiteral("#000034");
const QString cHoverBack = QStringLiteral("#000035");
const QString cDisabledBack = QStringLiteral("#000036");
const QString cText = QStringLiteral("#000037");
const QString cHoverText = QStringLiteral("#000038");
const QString cDisabledText = QStringLiteral("#000039");
const QString cSecondBack = QStringLiteral("#000040");
const QString cSecondHoverBack = QStringLiteral("#000041");
const QString cSecondDisabledBack = QStringLiteral("#000042");
const QString cSecondText = QStringLiteral("#000043");

struct Looks
{
    QString normal;
    QString hover;
    QString checked;
    QString disabled;
    QString all() const { return normal + hover + checked + disabled; }
};

Looks setA()
{
    return {rule("", cText, cBack), rule("::hover", cHoverText, cHoverBack), rule(":checked", cHoverText, cHoverBack),
            rule("::disabled", cDisabledText, cDisabledBack)};
}

Looks setB()
{
    return {rule("", cSecondText, cSecondBack), rule("::hover", cSecondText, cSecondHoverBack),
            rule(":checked", cSecondText, cSecondHoverBack), rule("::disabled", cSecondText, cSecondDisabledBack)};
}

} // namespace

class tst_PushButtonEx : public QObject
{
    Q_OBJECT

private:
    static QPushButton *inner(const PushButtonEx &button)
    {
        return button.findChild<QPushButton *>(QStringLiteral("btnEx"));
    }
    static QWidget *back(const PushButtonEx &button) { return button.findChild<QWidget *>(QStringLiteral("widgetBG")); }
    static QString face(const PushButtonEx &button) { return inner(button)->styleSheet(); }
    static QString frame(const QString &color)
    {
        return QStringLiteral("QWidget#widgetBG{border:1px solid ") + color +
               QStringLiteral(";border-radius:2px;background-color:transparent;}");
    }

    void moveIn() { m_window.moveTo(m_pButton->geometry().center()); }

    OwnSkin m_skin;
    BareWindow m_window;
    PushButtonEx *m_pButton = nullptr;

private slots:
    void init()
    {
        m_skin->m_strButtonBorderColor = cBorder;
        m_skin->m_strButtonBackgroundColor = cBack;
        m_skin->m_strButtonHoverBackgroundColor = cHoverBack;
        m_skin->m_strButtonDisabledBackgroundColor = cDisabledBack;
        m_skin->m_strButtonTextColor = cText;
        m_skin->m_strButtonHoverTextColor = cHoverText;
        m_skin->m_strButtonDisabledTextColor = cDisabledText;
        m_skin->m_strSecondButtonBackgroundColor = cSecondBack;
        m_skin->m_strSecondButtonHoverBackgroundColor = cSecondHoverBack;
        m_skin->m_strSecondButtonDisabledBackgroundColor = cSecondDisabledBack;
        m_skin->m_strSecondButtonTextColor = cSecondText;
        m_pButton = new PushButtonEx(&m_window);
        m_window.showAround(m_pButton, QRect(40, 40, 72, 32), QSize(160, 100));
    }

    void cleanup() { m_window.takeAway(m_pButton); }

    void formHasItsNamesAndMargins()
    {
        QCOMPARE(m_pButton->objectName(), QStringLiteral("PushButtonEx"));
        QCOMPARE(m_pButton->layout()->objectName(), QStringLiteral("verticalLayout_3"));
        QCOMPARE(m_pButton->layout()->contentsMargins(), QMargins());
        QCOMPARE(back(*m_pButton)->layout()->objectName(), QStringLiteral("horizontalLayout"));
        QCOMPARE(back(*m_pButton)->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
        QCOMPARE(inner(*m_pButton)->geometry(), QRect(1, 1, 70, 30));
        QVERIFY(!inner(*m_pButton)->isFlat());
    }

    void newButtonHasTheDefaultLook()
    {
        QVERIFY(m_pButton->isEnabled());
        QVERIFY(inner(*m_pButton)->isEnabled());
        QCOMPARE(inner(*m_pButton)->font().family(), QStringLiteral("微软雅黑"));
        QCOMPARE(inner(*m_pButton)->font().pixelSize(), 12);
        QCOMPARE(face(*m_pButton), setA().all());
        QCOMPARE(back(*m_pButton)->styleSheet(), frame(cBorder));
    }

    void typesChooseASet_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("strong");
        QTest::newRow("0 is the strong one") << 0 << true;
        QTest::newRow("1 is the default") << 1 << false;
        QTest::newRow("7 looks like 1") << 7 << false;
        QTest::newRow("-1 looks like 1") << -1 << false;
    }

    void typesChooseASet()
    {
        QFETCH(int, type);
        QFETCH(bool, strong);
        m_pButton->setBtnType(type == 1 ? 0 : 1);
        m_pButton->setBtnType(type);
        QCOMPARE(face(*m_pButton), strong ? setB().all() : setA().all());
        QCOMPARE(back(*m_pButton)->styleSheet(), frame(cBorder));
    }

    void enablingUsesTheStrongSetForEveryTypeButOne_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("strong");
        QTest::newRow("0") << 0 << true;
        QTest::newRow("1") << 1 << false;
        QTest::newRow("7") << 7 << true;
    }

    void enablingUsesTheStrongSetForEveryTypeButOne()
    {
        QFETCH(int, type);
        QFETCH(bool, strong);
        const Looks looks = strong ? setB() : setA();
        m_pButton->setBtnType(type);
        m_pButton->setEnabled(false);
        QVERIFY(!m_pButton->isEnabled());
        QVERIFY(!inner(*m_pButton)->isEnabled());
        QCOMPARE(face(*m_pButton), looks.disabled);
        m_pButton->setEnabled(true);
        QVERIFY(m_pButton->isEnabled());
        QVERIFY(inner(*m_pButton)->isEnabled());
        QCOMPARE(face(*m_pButton), looks.normal + looks.hover);
    }

    void skinChangeShowsAtTheNextHover()
    {
        const QString strNew = QStringLiteral("#ff0000");
        m_skin->m_strButtonBorderColor = strNew;
        QCOMPARE(back(*m_pButton)->styleSheet(), frame(cBorder));
        moveIn();
        QTRY_COMPARE_WITH_TIMEOUT(back(*m_pButton)->styleSheet(), frame(strNew), cPatienceMs);
        m_skin->m_strButtonBorderColor = cBorder;
        m_window.moveOut();
        QTRY_COMPARE_WITH_TIMEOUT(back(*m_pButton)->styleSheet(), frame(cBorder), cPatienceMs);
    }

    void updateTakesTheSkinAndRepaints()
    {
        m_skin->m_strButtonBackgroundColor = QStringLiteral("#ff0000");
        m_pButton->update();
        QVERIFY(face(*m_pButton).startsWith(rule("", cText, QStringLiteral("#ff0000"))));
        QCOMPARE(m_pButton->grab().toImage().pixelColor(5, 5), QColor(Qt::red));
    }

    void setStylesAloneDoesNotChangeTheLook()
    {
        m_skin->m_strButtonBackgroundColor = QStringLiteral("#ff0000");
        m_pButton->setStyles();
        QCOMPARE(face(*m_pButton), setA().all());
        m_pButton->setBtnType(1);
        QVERIFY(face(*m_pButton) != setA().all());
    }

    void typeStaysOverAHover()
    {
        m_pButton->setBtnType(0);
        m_pButton->setEnabled(true);
        QCOMPARE(face(*m_pButton), setB().normal + setB().hover);
        moveIn();
        QTRY_COMPARE_WITH_TIMEOUT(face(*m_pButton), setB().all(), cPatienceMs);
    }

    void fontSizeIsInPixels()
    {
        m_pButton->setFontSize(16);
        QCOMPARE(inner(*m_pButton)->font().pixelSize(), 16);
        QCOMPARE(inner(*m_pButton)->font().family(), QStringLiteral("微软雅黑"));
    }

    void fontSizeBelowOneChangesNothing()
    {
        m_pButton->setFontSize(0);
        m_pButton->setFontSize(-3);
        QCOMPARE(inner(*m_pButton)->font().pixelSize(), 12);
    }

    void textIsTheInnerButtons()
    {
        m_pButton->setText(QStringLiteral("取消"));
        QCOMPARE(m_pButton->text(), QStringLiteral("取消"));
        QCOMPARE(inner(*m_pButton)->text(), QStringLiteral("取消"));
    }

    void innerButtonTakesWhatItIsGiven()
    {
        m_pButton->setFlat(true);
        QVERIFY(inner(*m_pButton)->isFlat());
        m_pButton->setAutoDefault(true);
        QVERIFY(inner(*m_pButton)->autoDefault());
        m_pButton->setAutoDefault(false);
        QVERIFY(!inner(*m_pButton)->autoDefault());
        m_pButton->setDefault(true);
        QVERIFY(inner(*m_pButton)->isDefault());
    }

    void checkedNeedsACheckableButton()
    {
        m_pButton->setChecked(true);
        QVERIFY(!m_pButton->isChecked());
        m_pButton->setCheckable(true);
        m_pButton->setChecked(true);
        QVERIFY(m_pButton->isChecked());
        QVERIFY(inner(*m_pButton)->isChecked());
    }

    void statesAreSeen()
    {
        const QPoint inside(6, 6);
        const auto seen = [&] { return m_pButton->grab().toImage().pixelColor(inside); };
        QCOMPARE(seen(), QColor(cBack));
        QCOMPARE(m_pButton->grab().toImage().pixelColor(36, 0), QColor(cBorder));
        moveIn();
        QTRY_COMPARE_WITH_TIMEOUT(seen(), QColor(cHoverBack), cPatienceMs);
        m_window.moveOut();
        QTRY_COMPARE_WITH_TIMEOUT(seen(), QColor(cBack), cPatienceMs);
        m_pButton->setEnabled(false);
        QCOMPARE(seen(), QColor(cDisabledBack));
        m_pButton->setEnabled(true);
        m_pButton->setCheckable(true);
        m_pButton->setChecked(true);
        m_pButton->setBtnType(0);
        QCOMPARE(seen(), QColor(cSecondHoverBack));
        m_pButton->setChecked(false);
        QCOMPARE(seen(), QColor(cSecondBack));
    }

    void clickIsSent()
    {
        const QSignalSpy clicked(m_pButton, &PushButtonEx::clicked);
        QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, m_pButton->geometry().center());
        QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, cPatienceMs);
        QTest::mouseClick(m_window.windowHandle(), Qt::RightButton, {}, m_pButton->geometry().center());
        QCoreApplication::processEvents();
        QCOMPARE(clicked.count(), 1);
    }

    void disabledButtonSendsNothing()
    {
        const QSignalSpy clicked(m_pButton, &PushButtonEx::clicked);
        m_pButton->setEnabled(false);
        QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, m_pButton->geometry().center());
        QCoreApplication::processEvents();
        QCOMPARE(clicked.count(), 0);
    }

    void keyboardClicks()
    {
        QDialog dialog;
        PushButtonEx button(&dialog);
        button.setDefault(true);
        const QSignalSpy clicked(&button, &PushButtonEx::clicked);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog, cPatienceMs));
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(clicked.count(), 1);
        QTest::keyClick(inner(button), Qt::Key_Space);
        QCOMPARE(clicked.count(), 2);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_PushButtonEx, Widgets)

#include "tst_PushButtonEx.moc"
