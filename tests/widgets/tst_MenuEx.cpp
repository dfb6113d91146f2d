#include "common/Palette.h"
#include "fakes/Patience.h"
#include "widgets/MenuEx.h"

#include <QShowEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

namespace {

const QString cPlainSheet =
    QStringLiteral("QMenu{max-width:300px;border-radius:2px;background-color:#ffffff;border: 1px solid #e0e0e0;"
                   "padding-top:5px;font-size:14px;color:#333333;}"
                   "QMenu::item:selected{background: #e0e0e0;color:#333333;}"
                   "QMenu::item:disabled{color:#c8c8c8;}"
                   "QMenu::item{color:#333333;height:30px; padding-left:15px;padding-right:20px;}");

const QString cCheckSheet =
    QStringLiteral("QMenu{max-width:300px;border-radius:2px;background-color:#ffffff;border: 1px solid #e0e0e0;"
                   "padding-top:5px;font-size:14px;color:#333333;}"
                   "QMenu::item:selected{background: #e0e0e0;color:#333333;}"
                   "QMenu::item:disabled{color:#c8c8c8;}"
                   "QMenu::item{color:#333333;height:30px; padding-left:35px;padding-right:20px;}"
                   "QMenu::indicator:non-exclusive:checked {margin-left:10px;width:15;height:15;"
                   "border-image:url(Resources/images/CommonCtrls/kvim_list_ic_selected.png);}"
                   "QMenu::indicator:exclusive:checked {margin-left:10px;width:15;height:15;"
                   "border-image:url(Resources/images/CommonCtrls/kvim_list_ic_selected.png);}");

const QString cIconSheet =
    QStringLiteral("QMenu{max-width:300px;padding: 5px;border-radius:2px;background-color:#ffffff;"
                   "border: 1px solid #585858;padding-top:5px;font-size:14px;color:#322926;}"
                   "QMenu::item:selected{background: #e0e0e0;color:#333333;}"
                   "QMenu::item:disabled{color:#c8c8c8;}"
                   "QMenu::item{color:#333333;height:30px; padding-left:35px;padding-right:20px;}"
                   "QMenu::icon{padding-left:20px;}");

/// The menu with its handler in reach.
class DerivedMenu : public CMenuEx
{
public:
    using CMenuEx::showEvent;
};

} // namespace

class tst_MenuEx : public QObject
{
    Q_OBJECT

private:
    // A menu on the screen whose one entry counts how often it is triggered.
    static std::unique_ptr<CMenuEx> shownMenu()
    {
        auto menu = std::make_unique<CMenuEx>();
        menu->addAction(QStringLiteral("entry"));
        menu->popup(QPoint(100, 100));
        return menu;
    }
    static QPoint entry(const CMenuEx &menu) { return menu.actionGeometry(menu.actions().first()).center(); }

private slots:
    void eachTypeHasItsSheet_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("icon menu") << 0 << cIconSheet;
        QTest::newRow("check menu") << 1 << cCheckSheet;
        QTest::newRow("plain menu") << 2 << cPlainSheet;
        QTest::newRow("another number is the plain menu") << 7 << cPlainSheet;
        QTest::newRow("a negative number is the plain menu") << -1 << cPlainSheet;
    }

    void eachTypeHasItsSheet()
    {
        QFETCH(int, type);
        CMenuEx menu;
        menu.setMenuType(CMenuEx::IconMenu);
        menu.setMenuType(static_cast<CMenuEx::MenuType>(type));
        QTEST(menu.styleSheet(), "sheet");
    }

    void newMenuIsPlainAndAtMost300Wide()
    {
        QWidget parent;
        const CMenuEx menu(&parent);
        QCOMPARE(menu.styleSheet(), cPlainSheet);
        QCOMPARE(menu.maximumWidth(), 300);
        QCOMPARE(menu.parentWidget(), &parent);
        QVERIFY(menu.title().isEmpty());
    }

    void titleConstructorGivesThePlainMenuToo()
    {
        const CMenuEx menu(QStringLiteral("title"), nullptr);
        QCOMPARE(menu.title(), QStringLiteral("title"));
        QCOMPARE(menu.styleSheet(), cPlainSheet);
        QCOMPARE(menu.maximumWidth(), 300);
    }

    void longEntryStaysWithin300Pixels()
    {
        CMenuEx menu;
        menu.addAction(QString(400, QLatin1Char('W')));
        menu.popup(QPoint(100, 100));
        QVERIFY(QTest::qWaitForWindowExposed(&menu, cPatienceMs));
        QVERIFY(menu.width() <= 300);
    }

    void showEventIsAccepted()
    {
        DerivedMenu menu;
        QShowEvent show;
        show.ignore();
        menu.showEvent(&show);
        QVERIFY(show.isAccepted());
    }

    void leftClickTriggersTheEntryAndClosesTheMenu()
    {
        const std::unique_ptr<CMenuEx> menu = shownMenu();
        QVERIFY(QTest::qWaitForWindowExposed(menu.get(), cPatienceMs));
        const QSignalSpy triggered(menu.get(), &QMenu::triggered);
        QTest::mouseClick(menu.get(), Qt::LeftButton, Qt::NoModifier, entry(*menu));
        QCOMPARE(triggered.count(), 1);
        QVERIFY(!menu->isVisible());
    }

    void rightClickOnAnEntryLeavesTheMenuOpen()
    {
        const std::unique_ptr<CMenuEx> menu = shownMenu();
        QVERIFY(QTest::qWaitForWindowExposed(menu.get(), cPatienceMs));
        const QSignalSpy triggered(menu.get(), &QMenu::triggered);
        QTest::mouseClick(menu.get(), Qt::RightButton, Qt::NoModifier, entry(*menu));
        QCOMPARE(triggered.count(), 0);
        QVERIFY(menu->isVisible());
    }

    void pressOutsideClosesTheMenu()
    {
        const std::unique_ptr<CMenuEx> menu = shownMenu();
        QVERIFY(QTest::qWaitForWindowExposed(menu.get(), cPatienceMs));
        QTest::mousePress(menu.get(), Qt::LeftButton, Qt::NoModifier, QPoint(-20, -20));
        QVERIFY(!menu->isVisible());
    }

    void keyboardChoosesAnEntry()
    {
        const std::unique_ptr<CMenuEx> menu = shownMenu();
        QVERIFY(QTest::qWaitForWindowExposed(menu.get(), cPatienceMs));
        const QSignalSpy triggered(menu.get(), &QMenu::triggered);
        QTest::keyClick(menu.get(), Qt::Key_Down);
        QTest::keyClick(menu.get(), Qt::Key_Return);
        QCOMPARE(triggered.count(), 1);
        QVERIFY(!menu->isVisible());
    }

    void choiceIsTheResultOfExec()
    {
        CMenuEx menu;
        const QAction *pEntry = menu.addAction(QStringLiteral("entry"));
        QTimer::singleShot(0, &menu, [&menu] {
            if (QTest::qWaitForWindowExposed(&menu, cPatienceMs)) {
                QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, entry(menu));
            }
            menu.close();
        });
        QCOMPARE(menu.exec(QPoint(100, 100)), pEntry);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MenuEx, Widgets)

#include "tst_MenuEx.moc"
