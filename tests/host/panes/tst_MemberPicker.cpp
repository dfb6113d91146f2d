#include "client/ContactBook.h"
#include "panes/MemberPicker.h"
#include "screen/WindowProbe.h"

#include "fakes/Patience.h"
#include "host/panes/PressButton.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTimer>

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
        QVERIFY(!WindowProbe::isShown(&more, "editText"));
        MemberPicker fresh(m_book, MemberPicker::NewConference, {}, nullptr);
        show(fresh);
        QTest::keyClicks(fresh.findChild<QLineEdit *>(QStringLiteral("editText")), QStringLiteral("talk"));
        fresh.findChild<QCheckBox *>(QStringLiteral("boxFlag"))->click();
        QCOMPARE(fresh.wish().text, QStringLiteral("talk"));
        QVERIFY(fresh.wish().flag);
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
    static void show(MemberPicker &picker)
    {
        picker.show();
        QVERIFY(QTest::qWaitForWindowExposed(&picker, cPatienceMs));
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
