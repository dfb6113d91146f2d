#include "client/HostLanguage.h"
#include "screen/ScreenKeys.h"
#include "screen/WindowProbe.h"

#include "host/history/CallRows.h"
#include "host/panes/CallsPaneTest.h"
#include "host/panes/Deeds.h"
#include "host/panes/PressButton.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>

namespace {

// What the pane has of the half of a screen 1600 pixels wide.
constexpr int cHalfScreen = 376;

} // namespace

/// The history of calls, by the mouse and by the keyboard.
class tst_CallsPane : public CallsPaneTest
{
    Q_OBJECT

private slots:
    void withoutCallsItSaysSo()
    {
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblNoCalls"), QStringLiteral("No calls yet"));
        m_pHistory->add(callRow("30010001"));
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "lblNoCalls"));
        QVERIFY(m_pTable->isVisible());
        QTest::keyClicks(m_pPane->findChild<QLineEdit *>(), QStringLiteral("zz"));
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblNoCalls"), QStringLiteral("No call matches"));
        QTest::keyClick(m_pPane->findChild<QLineEdit *>(), Qt::Key_Escape);
        QVERIFY(m_pTable->isVisible());
    }

    void emptyFilterSaysWhatThereIsNoneOf_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QString>("none");
        QTest::addColumn<QString>("noneFound");
        QTest::newRow("missed") << QByteArray("btnFilterMissed") << QStringLiteral("No missed calls")
                                << QStringLiteral("No missed call matches");
        QTest::newRow("conferences") << QByteArray("btnFilterConferences") << QStringLiteral("No conferences")
                                     << QStringLiteral("No conference matches");
    }

    void emptyFilterSaysWhatThereIsNoneOf()
    {
        QFETCH(QByteArray, button);
        QFETCH(QString, none);
        QFETCH(QString, noneFound);
        m_pHistory->add(callRow("30010001"));
        auto *filter = m_pPane->findChild<QPushButton *>(QLatin1String(button));
        auto *search = m_pPane->findChild<QLineEdit *>();
        QVERIFY(Deeds({Deeds::click([this] { return m_pPane.get(); }, button, [&] { return filter->isChecked(); })})
                    .finish());
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblNoCalls"), none);
        search->setFocus();
        QVERIFY(press("z", [&] { return search->text() == QLatin1String("z"); }));
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblNoCalls"), noneFound);
    }

    void searchFindsTheWordOfTheOutcome()
    {
        m_pHistory->add(missedRow("30010001", 1));
        m_pHistory->add(callRow("30010002"));
        auto *search = m_pPane->findChild<QLineEdit *>();
        search->setFocus();
        QVERIFY(ScreenKeys().type(QStringLiteral("miss")));
        QTRY_COMPARE_WITH_TIMEOUT(search->text(), QStringLiteral("miss"), cPatienceMs);
        QCOMPARE(m_pTable->model()->rowCount(), 1);
        QCOMPARE(m_pPane->model()->entryAt(0).uid, QStringLiteral("30010001"));
        QVERIFY(press("Escape", [&] { return search->text().isEmpty(); }));
        QVERIFY(ScreenKeys().type(QStringLiteral("busy")));
        QTRY_COMPARE_WITH_TIMEOUT(search->text(), QStringLiteral("busy"), cPatienceMs);
        QCOMPARE(m_pTable->model()->rowCount(), 1);
        QCOMPARE(m_pPane->model()->entryAt(0).uid, QStringLiteral("30010002"));
    }

    void doubleClickCallsAgain()
    {
        CallEntry video = callRow("30010001", 1);
        video.video = true;
        m_pHistory->add(video);
        m_pHistory->add(callRow("30010002"));
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        Deeds deeds({Deeds::again([this] { return Deeds::clickOn(*m_pTable->viewport(), middle(1), Deeds::Double); },
                                  [&called] { return called.count() > 0; })});
        QVERIFY(deeds.finish());
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010001"), true}));
    }

    void enterCallsTheChosenCallAgain()
    {
        m_pHistory->add(callRow("30010001", 1));
        m_pHistory->add(callRow("30010002"));
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        m_pTable->setFocus();
        Deeds deeds({Deeds::key("Down"), Deeds::until([this] { return m_pTable->currentIndex().row() == 1; }),
                     Deeds::key("Return"), Deeds::until([&called] { return called.count() > 0; })});
        QVERIFY(deeds.finish());
        QCOMPARE(called.count(), 1);
        QCOMPARE(called.at(0), (QList<QVariant>{QStringLiteral("30010001"), false}));
    }

    void conferenceIsCalledTogetherAgain()
    {
        CallEntry invitation = conferenceRow("30010002", "30010004");
        invitation.caller = false;
        invitation.uid = QStringLiteral("30010008");
        m_pHistory->add(conferenceRow("30010001", "30010002", 1));
        m_pHistory->add(invitation);
        QSignalSpy wanted(m_pPane.get(), &CallsPane::conferenceWanted);
        m_pTable->setFocus();
        QTest::keyClick(m_pTable, Qt::Key_Return);
        QTest::keyClick(m_pTable, Qt::Key_Down);
        QTest::keyClick(m_pTable, Qt::Key_Return);
        QCOMPARE(wanted.count(), 2);
        QCOMPARE(wanted.at(0).at(0).toStringList(), (QStringList{"30010008", "30010002", "30010004"}));
        QCOMPARE(wanted.at(1).at(0).toStringList(), (QStringList{"30010001", "30010002"}));
    }

    void callThatIsOnLeadsToItsWindow_data()
    {
        QTest::addColumn<bool>("byKeys");
        QTest::newRow("by a click") << false;
        QTest::newRow("by Enter") << true;
    }

    void callThatIsOnLeadsToItsWindow()
    {
        QFETCH(bool, byKeys);
        CallEntry running = callRow("30010001");
        running.outcome = outcomeRunning;
        m_pHistory->add(running);
        QSignalSpy wanted(m_pPane.get(), &CallsPane::callWindowWanted);
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        m_pTable->setFocus();
        const Deeds::Deed click = [this] { return Deeds::clickOn(*m_pTable->viewport(), middle(0)); };
        Deeds deeds({Deeds::again(byKeys ? Deeds::key("Return") : click, [&wanted] { return wanted.count() > 0; })});
        QVERIFY(deeds.finish());
        QCOMPARE(called.count(), 0);
    }

    void everyDirectionIsShownWholeInBoldLetters_data()
    {
        QTest::addColumn<QString>("language");
        for (const HostLanguage::Choice &choice : HostLanguage::choices()) {
            QTest::newRow(qPrintable(choice.setting)) << choice.setting;
        }
    }

    void everyDirectionIsShownWholeInBoldLetters()
    {
        QFETCH(QString, language);
        HostLanguage words(QStringLiteral(VOIP_TRANSLATIONS));
        QVERIFY(words.use(language));
        CallEntry call = missedRow("30010001");
        call.video = true;
        m_pHistory->add(call);
        call.caller = true;
        m_pHistory->add(call);
        m_pTable->scrollTo(m_pTable->model()->index(0, 0));
        for (int row = 0; row < 2; ++row) {
            QVERIFY(isShownWholeInBoldLetters(m_pTable->model()->index(row, CallHistoryModel::Direction)));
        }
    }

    void narrowPaneHasAllColumnsAndArrowsForDirections_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "zh_CN", "zh_TW"}) {
            QTest::newRow(language) << QString::fromLatin1(language);
        }
    }

    void narrowPaneHasAllColumnsAndArrowsForDirections()
    {
        QFETCH(QString, language);
        HostLanguage words(QStringLiteral(VOIP_TRANSLATIONS));
        QVERIFY(words.use(language));
        m_pHistory->add(missedRow("30010001"));
        const auto columnsEnd = [this] {
            const QHeaderView *header = m_pTable->horizontalHeader();
            return header->sectionViewportPosition(CallHistoryModel::When) +
                   header->sectionSize(CallHistoryModel::When);
        };
        const QModelIndex direction = m_pTable->model()->index(0, CallHistoryModel::Direction);
        const QString whole = direction.data().toString();
        QVERIFY(whole.size() > 1);
        m_pPane->resize(cHalfScreen, 400);
        QTRY_COMPARE_WITH_TIMEOUT(direction.data().toString(), whole.left(1), cPatienceMs);
        QVERIFY(whole.endsWith(direction.data(Qt::ToolTipRole).toString()));
        QVERIFY(direction.data(Qt::AccessibleTextRole).toString().size() > 1);
        QTRY_COMPARE_WITH_TIMEOUT(columnsEnd(), m_pTable->viewport()->width(), cPatienceMs);
        for (int column = CallHistoryModel::Outcome; column <= CallHistoryModel::When; ++column) {
            const QModelIndex index = m_pTable->model()->index(0, column);
            QVERIFY2(isShownWholeInBoldLetters(index), qPrintable(index.data().toString()));
        }
        QVERIFY(m_pTable->columnWidth(CallHistoryModel::Who) >= 72);
        m_pPane->resize(640, 400);
        QTRY_COMPARE_WITH_TIMEOUT(direction.data().toString(), whole, cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(columnsEnd(), m_pTable->viewport()->width(), cPatienceMs);
    }

    void focusChoosesTheNewestCall()
    {
        m_pHistory->add(callRow("30010001", 1));
        m_pHistory->add(callRow("30010002"));
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        m_pTable->setFocus();
        QTest::keyClick(m_pTable, Qt::Key_Enter);
        QCOMPARE(called.value(0), (QList<QVariant>{QStringLiteral("30010002"), false}));
    }

    void clickAloneCallsNobody()
    {
        m_pHistory->add(callRow("30010001"));
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        QTest::mouseClick(m_pTable->viewport(), Qt::LeftButton, Qt::NoModifier, middle(0));
        QCOMPARE(called.count(), 0);
    }

    void deletedByKeyAndBroughtBackByButtonOrKey_data()
    {
        QTest::addColumn<bool>("key");
        QTest::newRow("by the button") << false;
        QTest::newRow("by the key") << true;
    }

    void deletedByKeyAndBroughtBackByButtonOrKey()
    {
        QFETCH(bool, key);
        for (int i = 0; i < 4; ++i) {
            m_pHistory->add(callRow("30010001", 10 - i));
        }
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "btnUndo"));
        m_pTable->setFocus();
        const auto rows = [this] { return m_pTable->model()->rowCount(); };
        Deeds remove({Deeds::key("Down"), Deeds::key("shift+Down"), Deeds::key("Delete"),
                      Deeds::until([rows] { return rows() == 2; })});
        QVERIFY(remove.finish());
        QCOMPARE(m_pTable->currentIndex().row(), 1);
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblRemoved"), QStringLiteral("2 call(s) deleted"));
        const auto isBack = [rows] { return rows() == 4; };
        Deeds restore({key ? Deeds::again(Deeds::key("ctrl+z"), isBack)
                           : Deeds::click([this] { return m_pPane.get(); }, "btnUndo", isBack)});
        QVERIFY(restore.finish());
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "btnUndo"));
    }

    void lastCallDeletedLeavesTheKeyboardAtUndo_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("the button") << QByteArray("space");
        QTest::newRow("Ctrl+Z") << QByteArray("ctrl+z");
    }

    void lastCallDeletedLeavesTheKeyboardAtUndo()
    {
        QFETCH(QByteArray, key);
        m_pHistory->add(callRow("30010001"));
        m_pTable->setFocus();
        QVERIFY(press("Delete", [this] { return m_pTable->model()->rowCount() == 0; }));
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblNoCalls"), QStringLiteral("No calls yet"));
        QCOMPARE(m_pPane->focusWidget()->objectName(), QStringLiteral("btnUndo"));
        QVERIFY(press(key, [this] { return m_pTable->model()->rowCount() == 1; }));
        QVERIFY(m_pTable->hasFocus());
    }

    void eachUndoBringsBackTheDeletionBefore()
    {
        for (int i = 0; i < 3; ++i) {
            m_pHistory->add(callRow("30010001", 10 - i));
        }
        const auto rows = [this](int iRows) {
            return [this, iRows] { return m_pTable->model()->rowCount() == iRows; };
        };
        m_pTable->setFocus();
        m_pTable->selectRow(0);
        QVERIFY(press("Delete", rows(2)));
        QVERIFY(press("shift+Down", [this] { return m_pTable->selectionModel()->selectedRows().size() == 2; }));
        QVERIFY(press("Delete", rows(0)));
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblRemoved"), QStringLiteral("2 call(s) deleted"));
        QVERIFY(press("ctrl+z", rows(2)));
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblRemoved"), QStringLiteral("1 call(s) deleted"));
        QVERIFY(press("ctrl+z", rows(3)));
        QVERIFY(!WindowProbe::isShown(m_pPane.get(), "btnUndo"));
    }

    void callThatIsOnStaysAndSaysWhy()
    {
        CallEntry running = callRow("30010001");
        running.outcome = outcomeRunning;
        m_pHistory->add(callRow("30010002", 1));
        m_pHistory->add(running);
        QSignalSpy refused(m_pPane.get(), &CallsPane::refused);
        m_pTable->setFocus();
        m_pTable->selectRow(1);
        QVERIFY(press("Delete", [this] { return m_pTable->model()->rowCount() == 1; }));
        QCOMPARE(refused.count(), 0);
        QVERIFY(press("Delete", [&] { return refused.count() == 1; }));
        QCOMPARE(refused.at(0).at(0).toString(), QStringLiteral("A call that is on cannot be deleted."));
        QCOMPARE(m_pTable->model()->rowCount(), 1);
        // What was deleted before is told as it is.
        QCOMPARE(WindowProbe::text(m_pPane.get(), "lblRemoved"), QStringLiteral("1 call(s) deleted"));

        QAction *entry = nullptr;
        bool disabled = false;
        QString tip;
        Deeds deeds({Deeds::key("Menu"), Deeds::until([&] {
                         auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                         entry = menu == nullptr ? nullptr : menu->actions().constLast();
                         return entry != nullptr;
                     }),
                     Deeds::act([&] {
                         disabled = entry->text() == QStringLiteral("Delete") && !entry->isEnabled();
                         tip = entry->toolTip();
                     }),
                     Deeds::key("Escape"), Deeds::until([] { return QApplication::activePopupWidget() == nullptr; })});
        QVERIFY(deeds.finish());
        QVERIFY(disabled);
        QCOMPARE(tip, QStringLiteral("A call that is on cannot be deleted."));
    }

    void menuCallsAndDeletes_data()
    {
        QTest::addColumn<bool>("byKeys");
        QTest::newRow("by the right button") << false;
        QTest::newRow("by the Menu key") << true;
    }

    void menuCallsAndDeletes()
    {
        QFETCH(bool, byKeys);
        m_pHistory->add(callRow("30010002"));
        m_pHistory->add(callRow("30010001"));
        QSignalSpy called(m_pPane.get(), &CallsPane::callWanted);
        m_pTable->setFocus();
        QVERIFY(chooseFromMenu(byKeys, QStringLiteral("Call by video"), [&called] { return called.count() > 0; }));
        QCOMPARE(called.value(0), (QList<QVariant>{QStringLiteral("30010001"), true}));
        QVERIFY(chooseFromMenu(byKeys, QStringLiteral("Delete"), [this] { return m_pHistory->entries().size() < 2; }));
        QCOMPARE(m_pHistory->entries().at(0).uid, QStringLiteral("30010002"));
    }

    void tabGoesThroughTheParts()
    {
        m_pHistory->add(missedRow("30010001"));
        m_pPane->findChild<QWidget *>(QStringLiteral("btnMissed"))->setFocus();
        QStringList stops;
        for (int i = 0; i < 7; ++i) {
            stops << m_pPane->focusWidget()->objectName();
            QTest::keyClick(m_pPane->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(stops, (QStringList{"btnMissed", "btnCentre", "btnCallAgain", "btnSeen", "editCallSearch",
                                     "btnFilterAll", "tableRecords"}));
    }

private:
    bool isShownWholeInBoldLetters(const QModelIndex &index) const
    {
        QFont font = m_pTable->font();
        font.setBold(index.data(Qt::FontRole).value<QFont>().bold());
        const int margin = m_pTable->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_pTable) + 1;
        const int needed = QFontMetrics(font).horizontalAdvance(index.data().toString()) + 2 * margin;
        return font.bold() && needed <= m_pTable->visualRect(index).width();
    }

    /// Presses a key of the real keyboard and waits until that is so.
    static bool press(const QByteArray &strKey, const std::function<bool()> &hasEffect)
    {
        return Deeds({Deeds::key(strKey), Deeds::until(hasEffect)}).finish();
    }
    /// Chooses that item in the menu of the newest call, by the real mouse or the real keys.
    bool chooseFromMenu(bool bByKeys, const QString &strItem, const std::function<bool()> &hasEffect) const
    {
        const Deeds::Deed click = [this] { return Deeds::clickOn(*m_pTable->viewport(), middle(0), Deeds::Right); };
        return Deeds(Deeds::choose(bByKeys ? Deeds::key("Menu") : click, bByKeys, strItem, hasEffect)).finish();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsPane, Widgets)
#include "tst_CallsPane.moc"
