// The remove and mute buttons of the conference member list: when they are painted, where, and what the mouse does
// there.

#include "MemberListTest.h"

#include "fakes/Patience.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QToolTip>

class tst_ConferenceListButtons : public MemberListTest
{
    Q_OBJECT

private:
    /// Ann in the first row with this status, bob in the second one with the same; painted once.
    void show(int iStatus, bool bCallByMe = true)
    {
        m_pList->setIsCallByMe(bCallByMe);
        m_pList->addUserList({QStringLiteral("ann"), QStringLiteral("bob")});
        for (const char *uid : {"ann", "bob"}) {
            m_pList->updateConferenceUserStatus(QLatin1String(uid), iStatus);
        }
        showList();
    }

    /// Whether anything green stands in the rectangle, as the word of a connected member is.
    static bool hasGreen(const QImage &image, const QRect &place)
    {
        const qreal ratio = image.devicePixelRatio();
        for (int y = qRound(place.top() * ratio); y < qRound((place.bottom() + 1) * ratio); ++y) {
            for (int x = qRound(place.left() * ratio); x < qRound((place.right() + 1) * ratio); ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.green() > color.red() + 40 && color.green() > color.blue() + 40) {
                    return true;
                }
            }
        }
        return false;
    }

private slots:
    void statusDecidesWhichButtonsThereAre_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("remove");
        QTest::addColumn<bool>("mute");
        QTest::newRow("calling") << 0 << false << false;
        QTest::newRow("connected") << 1 << true << true;
        QTest::newRow("failed") << 2 << true << false;
        QTest::newRow("busy") << 3 << true << false;
        QTest::newRow("hung up") << 4 << true << false;
        QTest::newRow("rejected") << 5 << true << false;
        QTest::newRow("six") << 6 << true << false;
        QTest::newRow("negative") << -1 << true << false;
    }

    void statusDecidesWhichButtonsThereAre()
    {
        QFETCH(int, status);
        QFETCH(bool, remove);
        QFETCH(bool, mute);
        show(status);
        QCOMPARE(!place(0, ROLE_REMOVE_RECT).isNull(), remove);
        QCOMPARE(!place(0, ROLE_MUTE_RECT).isNull(), mute);
        const QColor gray(158, 158, 158);
        const QImage now = picture();
        const QRect r = row(0);
        QCOMPARE(countPixels(now, QRect(r.right() - 37, r.top() + 10, 18, 18), gray) > 0, remove);
        QCOMPARE(countPixels(now, QRect(r.right() - 73, r.top() + 10, 18, 18), gray) > 0, mute);
    }

    void invitedMemberSeesNoButtons()
    {
        show(1, false);
        QVERIFY(!data(0, ROLE_REMOVE_RECT).isValid());
        QVERIFY(!data(0, ROLE_MUTE_RECT).isValid());
    }

    void buttonsStandAtTheRowsRightEnd()
    {
        show(1);
        for (const int iRow : {0, 1}) {
            const QRect r = row(iRow);
            QCOMPARE(place(iRow, ROLE_REMOVE_RECT), QRect(r.right() + 1 - 38, r.top() + 10, 18, 18));
            QCOMPARE(place(iRow, ROLE_MUTE_RECT), QRect(r.right() + 1 - 74, r.top() + 10, 18, 18));
        }
    }

    void statusStandsLeftOfTheButtonsForTheCallerOnly()
    {
        show(1);
        const QRect r = row(0);
        const QRect mine(r.right() + 1 - 224, r.top() + 10, 50, 27);
        const QRect theirs(r.right() + 1 - 70, r.top() + 10, 50, 27);
        QVERIFY(hasGreen(picture(), mine));
        QVERIFY(!hasGreen(picture(), theirs));
        m_pList->clearMembers();
        show(1, false);
        QVERIFY(!hasGreen(picture(), mine));
        QVERIFY(hasGreen(picture(), theirs));
    }

    void paintingAgainDoesNotChangeTheItem()
    {
        show(1);
        const QSignalSpy changed(m_pList->model(), &QAbstractItemModel::dataChanged);
        picture();
        QCOMPARE(changed.count(), 0);
    }

    void mutedMemberShowsAnotherMicrophone()
    {
        show(1);
        const QImage before = picture();
        m_pList->setMuteAll(true);
        QVERIFY(picture() != before);
    }

    void cursorOnTheRemoveButtonLightsItUp()
    {
        show(1);
        const QRect button = place(0, ROLE_REMOVE_RECT);
        moveTo(button.center());
        QTRY_COMPARE_WITH_TIMEOUT(data(0, ROLE_REMOVE_HOVER), QVariant(true), cPatienceMs);
        QCOMPARE(data(0, ROLE_MUTE_HOVER), QVariant(false));
        QCOMPARE(data(1, ROLE_REMOVE_HOVER), QVariant(false));
        QCOMPARE(m_pList->cursor().shape(), Qt::PointingHandCursor);
        QCOMPARE(QToolTip::text(), QStringLiteral("移出会议"));
        const QColor red(255, 97, 88);
        // No stroke of the glyph need cover a whole pixel.
        constexpr int edge = 40;
        QVERIFY(countPixels(picture(), button, red, edge) > 0);
        QCOMPARE(countPixels(picture(), place(1, ROLE_REMOVE_RECT), red, edge), 0);
    }

    void cursorOnTheMuteButtonLightsItUp()
    {
        show(1);
        const QRect button = place(1, ROLE_MUTE_RECT);
        moveTo(button.center());
        QTRY_COMPARE_WITH_TIMEOUT(data(1, ROLE_MUTE_HOVER), QVariant(true), cPatienceMs);
        QCOMPARE(data(1, ROLE_REMOVE_HOVER), QVariant(false));
        QCOMPARE(m_pList->cursor().shape(), Qt::PointingHandCursor);
        QVERIFY(countPixels(picture(), button, QColor(0, 185, 31)) > 0);
    }

    void muteTipTellsWhatAClickDoes()
    {
        show(1);
        moveTo(place(0, ROLE_MUTE_RECT).center());
        QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QStringLiteral("静音"), cPatienceMs);
        m_pList->setMuteAll(true);
        moveTo(place(0, ROLE_MUTE_RECT).center() + QPoint(1, 0));
        QTRY_COMPARE_WITH_TIMEOUT(QToolTip::text(), QStringLiteral("取消静音"), cPatienceMs);
    }

    void leavingTheButtonsWithinTheRowPutsThemOut()
    {
        show(1);
        moveTo(place(0, ROLE_REMOVE_RECT).center());
        QTRY_COMPARE_WITH_TIMEOUT(data(0, ROLE_REMOVE_HOVER), QVariant(true), cPatienceMs);
        moveTo(QPoint(100, row(0).center().y()));
        QTRY_COMPARE_WITH_TIMEOUT(data(0, ROLE_REMOVE_HOVER), QVariant(false), cPatienceMs);
        QCOMPARE(data(0, ROLE_MUTE_HOVER), QVariant(false));
        QCOMPARE(m_pList->cursor().shape(), Qt::ArrowCursor);
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), cPatienceMs);
    }

    void movingFromButtonToButtonKeepsTheFirstOnesFlag()
    {
        show(1);
        moveTo(place(0, ROLE_REMOVE_RECT).center());
        QTRY_COMPARE_WITH_TIMEOUT(data(0, ROLE_REMOVE_HOVER), QVariant(true), cPatienceMs);
        moveTo(place(0, ROLE_MUTE_RECT).center());
        QTRY_COMPARE_WITH_TIMEOUT(data(0, ROLE_MUTE_HOVER), QVariant(true), cPatienceMs);
        QCOMPARE(data(0, ROLE_REMOVE_HOVER), QVariant(true));
    }

    void movingBelowTheRowsChangesNothing()
    {
        show(1);
        moveTo(place(1, ROLE_REMOVE_RECT).center());
        QTRY_COMPARE_WITH_TIMEOUT(data(1, ROLE_REMOVE_HOVER), QVariant(true), cPatienceMs);
        const QSignalSpy changed(m_pList->model(), &QAbstractItemModel::dataChanged);
        moveTo(QPoint(100, row(1).bottom() + 60));
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 0);
        QCOMPARE(m_pList->cursor().shape(), Qt::PointingHandCursor);
    }

    void clickOnRemoveAsksForTheRowsMember()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
        show(2);
        click(place(1, ROLE_REMOVE_RECT).center());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.at(0).at(0).toString(), QStringLiteral("bob"));
        QCOMPARE(muted.count(), 0);
        QCOMPARE(m_pList->model()->rowCount(), 2);
    }

    void clickOnMuteTurnsItAndTellsWhichWay()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
        show(1);
        for (const bool bMute : {true, false}) {
            click(place(0, ROLE_MUTE_RECT).center());
            QCOMPARE(muted.last(), (QList<QVariant>{QStringLiteral("ann"), bMute}));
            QCOMPARE(data(0, ROLE_MUTED), QVariant(bMute));
            QCOMPARE(data(1, ROLE_MUTED), QVariant(false));
        }
        QCOMPARE(muted.count(), 2);
        QCOMPARE(removed.count(), 0);
    }

    void clickOnTheEdgeOfAButtonCounts()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        show(2);
        const QRect button = place(0, ROLE_REMOVE_RECT);
        click(button.topLeft());
        click(button.bottomRight());
        QCOMPARE(removed.count(), 2);
        click(button.topLeft() - QPoint(1, 0));
        click(button.bottomRight() + QPoint(0, 1));
        QCOMPARE(removed.count(), 2);
    }

    void clickBesideTheButtonsAsksForNothing()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
        show(1);
        click(row(0).center());
        click(QPoint(100, row(1).bottom() + 60));
        QCOMPARE(removed.count() + muted.count(), 0);
    }

    void rightAndMiddleClicksAskForNothing()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        show(1);
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            click(place(0, ROLE_REMOVE_RECT).center(), button);
        }
        QCOMPARE(removed.count(), 0);
    }

    void leftReleaseIsTakenAndRightReleaseIsNot()
    {
        struct OpenList : CConferenceListView
        {
            using CConferenceListView::mouseReleaseEvent;
        };
        OpenList list;
        list.addUser(QStringLiteral("ann"));
        const QPoint position = list.visualRect(list.model()->index(0, 0)).center();
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            QMouseEvent release(QEvent::MouseButtonRelease, position, button, Qt::NoButton, Qt::NoModifier);
            release.setAccepted(button == Qt::RightButton);
            list.mouseReleaseEvent(&release);
            QCOMPARE(release.isAccepted(), button == Qt::LeftButton);
        }
    }

    void clickOnARowIsNotToldByTheView()
    {
        const QSignalSpy told(m_pList.get(), &QAbstractItemView::clicked);
        show(1);
        for (const QPoint &position :
             {row(0).center(), place(0, ROLE_REMOVE_RECT).center(), place(1, ROLE_MUTE_RECT).center()}) {
            click(position);
        }
        QCOMPARE(told.count(), 0);
    }

    void viewTellsWhichRowTheMouseEnters()
    {
        const QSignalSpy entered(m_pList.get(), &QAbstractItemView::entered);
        const QSignalSpy left(m_pList.get(), &QAbstractItemView::viewportEntered);
        show(1);
        const QList<QPoint> positions{place(0, ROLE_REMOVE_RECT).center(), place(1, ROLE_MUTE_RECT).center(),
                                      row(0).center()};
        for (int i = 0; i < positions.size(); ++i) {
            moveTo(positions.at(i));
            QTRY_COMPARE_WITH_TIMEOUT(entered.count(), i + 1, cPatienceMs);
            QCOMPARE(entered.last().first().toModelIndex(), m_pList->indexAt(positions.at(i)));
        }
        const int iBefore = left.count();
        moveTo(QPoint(100, row(1).bottom() + 60));
        QTRY_COMPARE_WITH_TIMEOUT(left.count(), iBefore + 1, cPatienceMs);
    }

    void memberIsMutedBeforeItIsTold()
    {
        show(1);
        bool bMuted = false;
        connect(m_pList.get(), &CConferenceListView::signal_MuteUser, m_pList.get(),
                [&] { bMuted = data(0, ROLE_MUTED).toBool(); });
        click(place(0, ROLE_MUTE_RECT).center());
        QVERIFY(bMuted);
    }

    void buttonAnswersAtItsOldPlaceAfterTheStatusFellBack()
    {
        const QSignalSpy muted(m_pList.get(), &CConferenceListView::signal_MuteUser);
        show(1);
        m_pList->updateConferenceUserStatus(QStringLiteral("ann"), 0);
        picture();
        click(place(0, ROLE_MUTE_RECT).center());
        QCOMPARE(muted.count(), 1);
    }

    void removedRowsPlaceBelongsToTheNextOne()
    {
        const QSignalSpy removed(m_pList.get(), &CConferenceListView::signal_RemoveUser);
        connect(m_pList.get(), &CConferenceListView::signal_RemoveUser, m_pList.get(),
                &CConferenceListView::removeUser);
        show(1);
        const QPoint position = place(0, ROLE_REMOVE_RECT).center();
        click(position);
        QCOMPARE(m_pList->model()->rowCount(), 1);
        picture();
        click(position);
        QCOMPARE(m_pList->model()->rowCount(), 0);
        QCOMPARE(removed.last().at(0).toString(), QStringLiteral("bob"));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceListButtons, Widgets)

#include "tst_ConferenceListButtons.moc"
