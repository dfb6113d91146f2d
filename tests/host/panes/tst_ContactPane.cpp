#include "client/ContactBook.h"
#include "panes/ContactPane.h"
#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/Deeds.h"
#include "host/panes/PressButton.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

/// Search field and contacts, by the keyboard and by the mouse.
class tst_ContactPane : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pPane = std::make_unique<ContactPane>();
        m_pPane->fill(m_book);
        m_pPane->resize(380, 640);
        m_pPane->show();
        m_pPane->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pPane.get(), cPatienceMs));
        m_pSearch = m_pPane->findChild<QLineEdit *>(QStringLiteral("editSearch"));
        m_pPane->startSearch();
    }

    void cleanup() { m_pPane.reset(); }

    void everyRowTellsThePresence()
    {
        QCOMPARE(WindowProbe::text(row("30010001"), "lblPresence"), QStringLiteral("online"));
        QCOMPARE(WindowProbe::text(row("30010004"), "lblPresence"), QStringLiteral("away"));
        QCOMPARE(WindowProbe::text(row("30010005"), "lblPresence"), QStringLiteral("offline"));
        QCOMPARE(row("30010002")->accessibleName(), QStringLiteral("Maria Silva, busy"));
        QCOMPARE(row("30010002")->accessibleDescription(), QStringLiteral("30010002 · Busy"));
    }

    void typedTextLeavesTheContactsThatItFinds()
    {
        QCOMPARE(shownRows().size(), m_book.entries().size());
        QTest::keyClicks(m_pSearch, QStringLiteral("wf"));
        QCOMPARE(shownRows(), QStringList{"30010003"});
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "lblNoMatch"));
    }

    void noMatchIsSaid()
    {
        QTest::keyClicks(m_pSearch, QStringLiteral("zzz"));
        QCOMPARE(shownRows(), QStringList());
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblNoMatch"), QStringLiteral("No contact matches"));
    }

    void escapeEmptiesTheSearch()
    {
        QTest::keyClicks(m_pSearch, QStringLiteral("zzz"));
        press(Qt::Key_Escape);
        QVERIFY(m_pSearch->text().isEmpty());
        QCOMPARE(shownRows().size(), m_book.entries().size());
        QCOMPARE(focus(), QStringLiteral("editSearch"));
    }

    void clearButtonEmptiesTheSearch()
    {
        QTest::keyClicks(m_pSearch, QStringLiteral("zzz"));
        auto *button = m_pSearch->findChild<QToolButton *>(QStringLiteral("btnClearSearch"));
        QCOMPARE(button->accessibleName(), QStringLiteral("Clear the search"));
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(m_pSearch->text().isEmpty());
        QCOMPARE(shownRows().size(), m_book.entries().size());
    }

    void downLeadsToTheFirstContactFound()
    {
        QTest::keyClicks(m_pSearch, QStringLiteral("an"));
        press(Qt::Key_Down);
        QCOMPARE(focus(), QStringLiteral("30010006"));
    }

    void returnLeadsIntoTheListToo()
    {
        QTest::keyClicks(m_pSearch, QStringLiteral("wf"));
        press(Qt::Key_Return);
        QCOMPARE(focus(), QStringLiteral("30010003"));
    }

    void downWithoutAMatchStaysInTheField()
    {
        QTest::keyClicks(m_pSearch, QStringLiteral("zzz"));
        press(Qt::Key_Down);
        QCOMPARE(focus(), QStringLiteral("editSearch"));
    }

    void arrowsGoFromRowToRow()
    {
        press(Qt::Key_Down);
        QCOMPARE(focus(), QStringLiteral("30010001"));
        press(Qt::Key_Down);
        QCOMPARE(focus(), QStringLiteral("30010002"));
        press(Qt::Key_End);
        QCOMPARE(focus(), QStringLiteral("30010010"));
        press(Qt::Key_Down);
        QCOMPARE(focus(), QStringLiteral("30010010"));
        press(Qt::Key_Up);
        QCOMPARE(focus(), QStringLiteral("30010009"));
        press(Qt::Key_Home);
        QCOMPARE(focus(), QStringLiteral("30010001"));
    }

    void hiddenRowsArePassedOver()
    {
        QTest::keyClicks(m_pSearch, QStringLiteral("ar"));
        QCOMPARE(shownRows(), (QStringList{"30010002", "30010010"}));
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QCOMPARE(focus(), QStringLiteral("30010010"));
    }

    void upFromTheFirstRowLeadsBackToTheField()
    {
        press(Qt::Key_Down);
        press(Qt::Key_Up);
        QCOMPARE(focus(), QStringLiteral("editSearch"));
    }

    void tabStopsAtOneRowAndItsButtons()
    {
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QStringList stops;
        for (int i = 0; i < 6; ++i) {
            stops.append(focus());
            press(Qt::Key_Tab);
        }
        QCOMPARE(stops, (QStringList{"30010002", "btnCall", "btnVideo", "editNumber", "btnConference", "editSearch"}));
    }

    void enterCallsTheRow()
    {
        QSignalSpy called(m_pPane.get(), &ContactPane::callWanted);
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010001"), false}));
    }

    void doubleClickCallsTheRow()
    {
        QSignalSpy called(m_pPane.get(), &ContactPane::callWanted);
        QWidget *contact = row("30010001");
        Deeds deeds(
            {Deeds::again([contact] { return Deeds::clickOn(*contact, contact->rect().center(), Deeds::Double); },
                          [&called] { return called.count() > 0; })});
        QVERIFY(deeds.finish());
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010001"), false}));
    }

    void whoseStateNobodyTellsHasNeitherWordNorDot()
    {
        ContactPane pane;
        pane.fill(ContactBook(QStringLiteral("example.org"), QString::fromLatin1(ContactBook::cOwnId),
                              ContactBook::World::People));
        auto *maria = pane.findChild<QWidget *>(QStringLiteral("30010002"));
        QCOMPARE(maria->accessibleName(), QStringLiteral("Maria Silva"));
        QCOMPARE(WindowProbe::text(maria, "lblPresence"), QString());
        const auto *head = maria->findChild<QLabel *>(QStringLiteral("lblHead"));
        const auto *known = row("30010002")->findChild<QLabel *>(QStringLiteral("lblHead"));
        const QImage without = head->pixmap(Qt::ReturnByValue).toImage();
        const QImage with = known->pixmap(Qt::ReturnByValue).toImage();
        const QRect dot(without.width() * 3 / 4, without.height() * 3 / 4, without.width() / 8, without.height() / 8);
        QVERIFY(without.copy(dot) != with.copy(dot));
        const QRect rest(0, 0, without.width() / 2, without.height());
        QCOMPARE(without.copy(rest), with.copy(rest));
    }

    void enterOnAButtonPressesIt_data()
    {
        QTest::addColumn<int>("tabs");
        QTest::addColumn<bool>("video");
        QTest::newRow("call") << 1 << false;
        QTest::newRow("video call") << 2 << true;
    }

    void enterOnAButtonPressesIt()
    {
        QFETCH(int, tabs);
        QFETCH(bool, video);
        QSignalSpy called(m_pPane.get(), &ContactPane::callWanted);
        press(Qt::Key_Down);
        for (int i = 0; i < tabs; ++i) {
            press(Qt::Key_Tab);
        }
        press(Qt::Key_Return);
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010001"), video}));
    }

    void arrowsOnAButtonGoToTheNextRow()
    {
        press(Qt::Key_Down);
        press(Qt::Key_Tab);
        QCOMPARE(focus(), QStringLiteral("btnCall"));
        press(Qt::Key_Down);
        QCOMPARE(focus(), QStringLiteral("30010002"));
    }

    void rightAndLeftGoToTheButtonsAndBack()
    {
        press(Qt::Key_Down);
        Deeds deeds({key("Right", "btnCall"), key("Right", "btnVideo"), key("Left", "btnCall"), key("Left", "30010001"),
                     key("Down", "30010002"), key("Right", "btnCall")});
        QVERIFY(deeds.finish());
        QCOMPARE(m_pPane->window()->focusWidget()->parentWidget(), row("30010002"));
        // There is nothing further on.
        Deeds end({key("Right", "btnVideo"), Deeds::key("Right"), key("Down", "30010003")});
        QVERIFY(end.finish());
    }

    void disabledButtonsAreNoWayOn()
    {
        m_pPane->setObstacle(QStringLiteral("No."));
        press(Qt::Key_Down);
        Deeds deeds({Deeds::key("Right"), key("Down", "30010002")});
        QVERIFY(deeds.finish());
    }

    void menuOfARowCallsInBothWays_data()
    {
        QTest::addColumn<bool>("byKeys");
        QTest::addColumn<QString>("item");
        QTest::addColumn<bool>("video");
        QTest::newRow("Menu key, voice") << true << QStringLiteral("Call Maria Silva") << false;
        QTest::newRow("Menu key, video") << true << QStringLiteral("Call Maria Silva by video") << true;
        QTest::newRow("right button, video") << false << QStringLiteral("Call Maria Silva by video") << true;
    }

    void menuOfARowCallsInBothWays()
    {
        QFETCH(bool, byKeys);
        QFETCH(QString, item);
        QFETCH(bool, video);
        QSignalSpy called(m_pPane.get(), &ContactPane::callWanted);
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        const QWidget *chosen = row("30010002");
        const Deeds::Deed click = [chosen] { return Deeds::clickOn(*chosen, chosen->rect().center(), Deeds::Right); };
        Deeds deeds(
            Deeds::choose(byKeys ? Deeds::key("Menu") : click, byKeys, item, [&called] { return called.count() > 0; }));
        QVERIFY(deeds.finish());
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010002"), video}));
    }

    void menuSaysWhyNobodyCanBeCalled()
    {
        m_pPane->setObstacle(QStringLiteral("No."));
        press(Qt::Key_Down);
        QStringList tips;
        Deeds deeds({Deeds::again(Deeds::key("Menu"), [] { return !WindowProbe::menuTexts().isEmpty(); }),
                     Deeds::act([&tips] {
                         for (const QAction *action : QApplication::activePopupWidget()->actions()) {
                             tips << (action->isEnabled() ? QString() : action->toolTip());
                         }
                     }),
                     Deeds::again(Deeds::key("Escape"), [] { return WindowProbe::menuTexts().isEmpty(); })});
        QVERIFY(deeds.finish());
        QCOMPARE(tips, (QStringList{"No.", "No."}));
    }

    void clickMakesTheRowTheTabStop()
    {
        QTest::mouseClick(row("30010003"), Qt::LeftButton);
        QCOMPARE(focus(), QStringLiteral("30010003"));
        QCOMPARE(row("30010003")->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(row("30010001")->focusPolicy(), Qt::ClickFocus);
    }

    void rowWithTheFocusIsScrolledIntoView()
    {
        m_pPane->resize(380, 300);
        QTRY_VERIFY_WITH_TIMEOUT(row("30010010")->visibleRegion().isEmpty(), cPatienceMs);
        press(Qt::Key_Down);
        press(Qt::Key_End);
        QTRY_COMPARE_WITH_TIMEOUT(row("30010010")->visibleRegion().boundingRect(), row("30010010")->rect(),
                                  cPatienceMs);
    }

    void numberIsCalledByReturn()
    {
        QSignalSpy called(m_pPane.get(), &ContactPane::callWanted);
        auto *number = m_pPane->findChild<QLineEdit *>(QStringLiteral("editNumber"));
        QTest::keyClicks(number, QStringLiteral(" "));
        QTest::keyClick(number, Qt::Key_Return);
        QCOMPARE(called.count(), 0);
        QTest::keyClicks(number, QStringLiteral("4711"));
        QTest::keyClick(number, Qt::Key_Return);
        QCOMPARE(called.value(0), (QList<QVariant>{QStringLiteral("4711"), false}));
        QVERIFY(number->text().isEmpty());
    }

private:
    QStringList shownRows() const
    {
        QStringList shown;
        for (const ContactBook::Entry &entry : m_book.entries()) {
            if (WindowProbe::isShown(m_pPane.get(), qPrintable(entry.uid))) {
                shown.append(entry.uid);
            }
        }
        return shown;
    }

    /// Presses a real key, and waits until the focus is there.
    Deeds::Deed key(const QByteArray &strKey, const char *strFocus) const
    {
        return [press = Deeds::key(strKey), strFocus, bPressed = false, this]() mutable {
            bPressed = bPressed || press();
            return focus() == QLatin1String(strFocus);
        };
    }
    void press(Qt::Key key) { QTest::keyClick(m_pPane->window()->focusWidget(), key); }
    QString focus() const { return m_pPane->window()->focusWidget()->objectName(); }
    QWidget *row(const char *strUid) const { return m_pPane->findChild<QWidget *>(QLatin1String(strUid)); }

    ContactBook m_book{QStringLiteral("example.org")};
    std::unique_ptr<ContactPane> m_pPane;
    QLineEdit *m_pSearch = nullptr;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ContactPane, Widgets)
#include "tst_ContactPane.moc"
