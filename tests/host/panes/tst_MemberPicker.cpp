#include "client/ContactBook.h"
#include "client/HostSkins.h"
#include "panes/MemberPicker.h"
#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/Deeds.h"
#include "host/panes/PressButton.h"

#include <QCheckBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolTip>

namespace {

const QString cAnswers = QStringLiteral("30010001");
const QString cBusy = QStringLiteral("30010002");

} // namespace

class tst_MemberPicker : public QObject
{
    Q_OBJECT

private slots:
    void newConferenceListsEverybodyWithTheNamedChecked()
    {
        const MemberPicker picker(m_book, MemberPicker::NewConference, {cBusy}, nullptr);
        QCOMPARE(list(picker)->count(), m_book.entries().size());
        QCOMPARE(picker.wish().uids, QStringList{cBusy});
    }

    void namedStrangersToTheBookAreListedToo()
    {
        const MemberPicker picker(m_book, MemberPicker::NewConference, {QStringLiteral("4711")}, nullptr);
        QCOMPARE(list(picker)->count(), m_book.entries().size() + 1);
        QCOMPARE(picker.wish().uids, QStringList{QStringLiteral("4711")});
    }

    void moreMembersLeavesOutThosePresent()
    {
        MemberPicker picker(m_book, MemberPicker::MoreMembers, {cBusy, QStringLiteral("4711")}, nullptr);
        show(picker);
        QCOMPARE(list(picker)->count(), m_book.entries().size() - 1);
        QVERIFY(picker.wish().uids.isEmpty());
        QCOMPARE(WindowProbe::text(&picker, "lblAsked"),
                 QStringLiteral("Already in the conference: Maria Silva, 4711"));
    }

    void clickAnywhereInTheRowTurnsTheMark_data()
    {
        QTest::addColumn<int>("x");
        QTest::newRow("the box") << 11;
        QTest::newRow("the name") << 90;
    }

    void clickAnywhereInTheRowTurnsTheMark()
    {
        QFETCH(int, x);
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        const QRect row = list(picker)->visualItemRect(list(picker)->item(0));
        for (const bool checked : {true, false, true}) {
            QTest::mouseClick(list(picker)->viewport(), Qt::LeftButton, Qt::NoModifier,
                              QPoint(row.left() + x, row.center().y()));
            QCOMPARE(picker.wish().uids.contains(cAnswers), checked);
        }
    }

    void spaceTurnsTheMark()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        list(picker)->setCurrentRow(1);
        QTest::keyClick(list(picker), Qt::Key_Space);
        QCOMPARE(picker.wish().uids, QStringList{cBusy});
    }

    void nobodyPickedCannotBeInvited()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        QVERIFY(!pressButton(&picker, "btnInvite"));
        list(picker)->item(0)->setCheckState(Qt::Checked);
        QCOMPARE(WindowProbe::text(&picker, "btnInvite"), QStringLiteral("Invite (1)"));
        QVERIFY(pressButton(&picker, "btnInvite"));
    }

    void textAndFlagBelongToANewConferenceOnly()
    {
        MemberPicker more(m_book, MemberPicker::MoreMembers, {}, nullptr);
        show(more);
        QVERIFY(!WindowProbe::isShown(&more, "btnMore"));
        QVERIFY(!WindowProbe::isShown(&more, "editText"));
        MemberPicker fresh(m_book, MemberPicker::NewConference, {}, nullptr);
        show(fresh);
        QVERIFY(!WindowProbe::isShown(&fresh, "editText"));
        QVERIFY(pressButton(&fresh, "btnMore"));
        QTest::keyClicks(fresh.findChild<QLineEdit *>(QStringLiteral("editText")), QStringLiteral("talk"));
        fresh.findChild<QCheckBox *>(QStringLiteral("boxFlag"))->click();
        QCOMPARE(fresh.wish().text, QStringLiteral("talk"));
        QVERIFY(fresh.wish().flag);
    }

    void filterFindsAsTheContactSearchDoes_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("name") << QStringLiteral("maria") << QStringList{cBusy};
        QTest::newRow("number") << QStringLiteral("0010005") << QStringList{QStringLiteral("30010005")};
        QTest::newRow("initials") << QStringLiteral("wf") << QStringList{QStringLiteral("30010003")};
        QTest::newRow("nobody") << QStringLiteral("zzz") << QStringList();
        // Nothing is known of a stranger but the number.
        QTest::newRow("stranger") << QStringLiteral("hmm") << QStringList();
    }

    void filterFindsAsTheContactSearchDoes()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, found);
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        // The first thing that the keys reach.
        QTest::keyClicks(picker.focusWidget(), typed);
        QCOMPARE(shown(picker), found);
        QCOMPARE(WindowProbe::isShown(&picker, "lblNoMatch"), found.isEmpty());
        QCOMPARE(list(picker)->isVisible(), !found.isEmpty());
    }

    void picksAreKeptWhileTheFilterHidesThem()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        // Filter, go to the one that is found, pick it; and once more.
        for (const char *name : {"maria", "ll"}) {
            part<QLineEdit>(picker, "editFilter")->setFocus();
            part<QLineEdit>(picker, "editFilter")->selectAll();
            QTest::keyClicks(picker.focusWidget(), QLatin1String(name));
            QTest::keyClick(picker.focusWidget(), Qt::Key_Down);
            QCOMPARE(picker.focusWidget(), list(picker));
            QTest::keyClick(picker.focusWidget(), Qt::Key_Space);
        }
        QCOMPARE(shown(picker), QStringList{cAnswers});
        QCOMPARE(WindowProbe::text(&picker, "btnInvite"), QStringLiteral("Invite (2)"));
        QCOMPARE(picker.wish().uids, (QStringList{cAnswers, cBusy}));
    }

    void escapeEmptiesTheFilterFirst()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        QTest::keyClicks(picker.focusWidget(), QStringLiteral("zzz"));
        QTest::keyClick(picker.focusWidget(), Qt::Key_Escape);
        QVERIFY(picker.isVisible());
        QCOMPARE(shown(picker).size(), m_book.entries().size());
        QTest::keyClick(picker.focusWidget(), Qt::Key_Escape);
        QVERIFY(!picker.isVisible());
    }

    void enterInTheFilterLeadsIntoTheListAndDoesNotInvite()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {cBusy}, nullptr);
        show(picker);
        QTest::keyClicks(picker.focusWidget(), QStringLiteral("wf"));
        QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
        QVERIFY(picker.isVisible());
        QCOMPARE(list(picker)->currentItem()->data(MemberPicker::cUidRole).toString(), QStringLiteral("30010003"));
    }

    void freeNumberIsPutOnTheListByEnter()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        auto *number = part<QLineEdit>(picker, "editNumber");
        QVERIFY(!pressButton(&picker, "btnAdd"));
        number->setFocus();
        for (int i = 0; i < 2; ++i) {
            QTest::keyClicks(number, QStringLiteral(" 4711 "));
            QTest::keyClick(number, Qt::Key_Return);
            QVERIFY(picker.isVisible());
            QVERIFY(number->text().isEmpty());
        }
        QCOMPARE(picker.wish().uids, QStringList{QStringLiteral("4711")});
        QCOMPARE(list(picker)->count(), m_book.entries().size() + 1);
        // With nothing to add, Enter is the window's key as everywhere.
        QTest::keyClick(number, Qt::Key_Return);
        QCOMPARE(picker.result(), int(QDialog::Accepted));
    }

    void freeNumbersOfAContactPickTheContact()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        QTest::keyClicks(part<QLineEdit>(picker, "editFilter"), QStringLiteral("wf"));
        QTest::keyClicks(part<QLineEdit>(picker, "editNumber"), cBusy + QStringLiteral(", 4711@example.org"));
        QVERIFY(pressButton(&picker, "btnAdd"));
        QCOMPARE(picker.wish().uids, (QStringList{cBusy, QStringLiteral("4711")}));
        QCOMPARE(list(picker)->count(), m_book.entries().size() + 1);
        // What was added is seen.
        QCOMPARE(shown(picker).size(), list(picker)->count());
        QVERIFY(list(picker)->viewport()->rect().intersects(list(picker)->visualItemRect(list(picker)->currentItem())));
    }

    void numberThatCannotBeInvitedStaysInTheFieldWithTheReason_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("reason");
        QTest::newRow("own") << m_book.ownUid() << m_book.ownUid() + QStringLiteral(" is your own number.");
        QTest::newRow("present") << cBusy << cBusy + QStringLiteral(" is in the conference already.");
    }

    void numberThatCannotBeInvitedStaysInTheFieldWithTheReason()
    {
        QFETCH(QString, number);
        MemberPicker picker(m_book, MemberPicker::MoreMembers, {cBusy}, nullptr);
        show(picker);
        auto *edit = part<QLineEdit>(picker, "editNumber");
        QTest::keyClicks(edit, number + QStringLiteral(" 4711"));
        QVERIFY(pressButton(&picker, "btnAdd"));
        QTEST(WindowProbe::text(&picker, "lblNumberNote"), "reason");
        QCOMPARE(edit->text(), number);
        QCOMPARE(picker.wish().uids, QStringList{QStringLiteral("4711")});
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("4712"));
        QVERIFY(pressButton(&picker, "btnAdd"));
        QVERIFY(!WindowProbe::isShown(&picker, "lblNumberNote"));
    }

    void buttonsHaveTheClientsColours()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {cBusy}, nullptr);
        show(picker);
        const auto *invite = part<QPushButton>(picker, "btnInvite");
        const QImage image = picker.grab().toImage();
        const QPoint inside = (invite->mapTo(&picker, QPoint(6, 6)) * image.devicePixelRatio());
        QCOMPARE(image.pixelColor(inside), HostSkins::darkColour());
    }

    void textAndFlagSayWhatTheyAreFor_data()
    {
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("text") << QByteArray("editText");
        QTest::newRow("flag") << QByteArray("boxFlag");
    }

    void textAndFlagSayWhatTheyAreFor()
    {
        QFETCH(QByteArray, field);
        MemberPicker picker(m_book, MemberPicker::NewConference, {}, nullptr);
        show(picker);
        QVERIFY(pressButton(&picker, "btnMore"));
        QVERIFY(WindowProbe::text(&picker, "lblPassedOn").startsWith(QStringLiteral("For the call process")));
        auto *widget = part<QWidget>(picker, field);
        const QPoint place = widget->rect().center();
        QHelpEvent hover(QEvent::ToolTip, place, widget->mapToGlobal(place));
        QCoreApplication::sendEvent(widget, &hover);
        QVERIFY2(QToolTip::text().contains(QStringLiteral("the call process gets with the request for the conference")),
                 qPrintable(QToolTip::text()));
    }

    void letterOfTheButtonInvitesAndThatOfMoreOpensIt()
    {
        MemberPicker picker(m_book, MemberPicker::NewConference, {cBusy}, nullptr);
        show(picker);
        Deeds deeds({Deeds::again(Deeds::key("alt+m"), [&picker] { return WindowProbe::isShown(&picker, "boxFlag"); }),
                     Deeds::key("alt+i"), Deeds::until([&picker] { return !picker.isVisible(); })});
        QVERIFY(deeds.finish());
        QCOMPARE(picker.result(), int(QDialog::Accepted));
    }

    void cancelledPickerGivesNothing()
    {
        pressWhenOpen("btnCancel");
        QVERIFY(!MemberPicker::pickNew(m_book, {cBusy}, nullptr));
        pressWhenOpen("btnCancel");
        QVERIFY(MemberPicker::pickMore(m_book, {cBusy}, nullptr).isEmpty());
    }

    void acceptedPickerGivesWhatWasPicked()
    {
        pressWhenOpen("btnInvite");
        const std::optional<ConferenceWish> wish = MemberPicker::pickNew(m_book, {cBusy}, nullptr);
        QVERIFY(wish);
        QCOMPARE(wish->uids, QStringList{cBusy});
    }

private:
    static QListWidget *list(const MemberPicker &picker) { return picker.findChild<QListWidget *>(); }
    template <typename Part>
    static Part *part(const MemberPicker &picker, const char *strName)
    {
        return picker.findChild<Part *>(QLatin1String(strName));
    }
    /// The ids of the rows that a person can see or scroll to.
    static QStringList shown(const MemberPicker &picker)
    {
        QStringList uids;
        for (int row = 0; row < list(picker)->count(); ++row) {
            if (!list(picker)->item(row)->isHidden()) {
                uids << list(picker)->item(row)->data(MemberPicker::cUidRole).toString();
            }
        }
        return uids;
    }
    static void show(MemberPicker &picker)
    {
        picker.show();
        picker.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&picker, cPatienceMs));
    }
    /// Presses the button of the picker that comes up next, as soon as it is there.
    static void pressWhenOpen(const char *button)
    {
        auto *timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, button] {
            if (pressButton(WindowProbe::memberPicker(), button)) {
                timer->deleteLater();
            }
        });
        timer->start(10);
    }

    ContactBook m_book{QStringLiteral("example.org")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_MemberPicker, Widgets)
#include "tst_MemberPicker.moc"
