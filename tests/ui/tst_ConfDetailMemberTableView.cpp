// The member grid of the conference detail page: which cell holds whom.

#include "MemberGridTest.h"

#include "common/BuiltInPictures.h"

#include <QHeaderView>

class tst_ConfDetailMemberTableView : public MemberGridTest
{
    Q_OBJECT

private slots:
    void sixMembersStandInARow_data()
    {
        QTest::addColumn<int>("iMembers");
        QTest::addColumn<int>("iRows");
        QTest::newRow("one") << 1 << 1;
        QTest::newRow("five") << 5 << 1;
        QTest::newRow("six") << 6 << 1;
        QTest::newRow("seven") << 7 << 2;
        QTest::newRow("twelve") << 12 << 2;
        QTest::newRow("thirteen") << 13 << 3;
        QTest::newRow("a thousand") << 1000 << 167;
    }
    void sixMembersStandInARow()
    {
        QFETCH(int, iMembers);
        QFETCH(int, iRows);
        m_pGrid->setMemList(members(iMembers));
        QCOMPARE(m_pGrid->model()->rowCount(), iRows);
        QCOMPARE(m_pGrid->model()->columnCount(), qMin(iMembers, 6));
        for (int i = 0; i < iRows * m_pGrid->model()->columnCount(); ++i) {
            QCOMPARE(uid(i / 6, i % 6), i < iMembers ? QStringLiteral("m%1").arg(i) : QString());
        }
    }

    void seventhMemberStandsAloneInTheSecondRow()
    {
        m_pGrid->setMemList(members(7));
        for (int iColumn = 0; iColumn < 6; ++iColumn) {
            QCOMPARE(uid(0, iColumn), QStringLiteral("m%1").arg(iColumn));
        }
        QCOMPARE(uid(1, 0), QStringLiteral("m6"));
        for (int iColumn = 1; iColumn < 6; ++iColumn) {
            QVERIFY(!data(1, iColumn, ROLE_USER_ID).isValid());
        }
    }

    void cellHoldsUidShownNameAndHead()
    {
        QVERIFY(QFile::copy(strDEFAULT_HEAD_PATH, QStringLiteral("ann.png")));
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), {}, QStringLiteral("ann.png")));
        m_pGrid->setMemList({QStringLiteral("ann")});
        QCOMPARE(uid(0, 0), QStringLiteral("ann"));
        QCOMPARE(data(0, 0, ROLE_DISPLAY_NAME).toString(), QStringLiteral("Ann"));
        QCOMPARE(data(0, 0, ROLE_HEAD_PATH).toString(), QStringLiteral("ann.png"));
        QVERIFY(!data(0, 0, ROLE_HEAD_RECT).isValid());
    }

    void headOfAWrongSuffixIsPutRight()
    {
        QVERIFY(QFile::copy(strDEFAULT_HEAD_PATH, QStringLiteral("eve.jpg")));
        m_pContacts->addContact(QStringLiteral("eve"), ContactFixture::card({}, {}, QStringLiteral("eve.jpg")));
        m_pGrid->setMemList({QStringLiteral("eve")});
        QCOMPARE(data(0, 0, ROLE_HEAD_PATH).toString(), QStringLiteral("eve.png"));
    }

    void nameIsTheOneThatTheUserGave()
    {
        FriendData bob(ContactFixture::jid(QStringLiteral("bob")));
        bob.setVcardInfo(ContactFixture::card(QStringLiteral("Bob"), {}));
        bob.setMySetFriendName(QStringLiteral("Bobby"));
        m_pHost->setRecord(bob.m_strJid, bob);
        m_pGrid->setMemList({QStringLiteral("bob")});
        QCOMPARE(data(0, 0, ROLE_DISPLAY_NAME).toString(), QStringLiteral("Bobby"));
    }

    void unknownMemberHasNoNameAndTheDefaultHead()
    {
        m_pGrid->setMemList({QStringLiteral("nobody")});
        QCOMPARE(data(0, 0, ROLE_DISPLAY_NAME).toString(), QString());
        QCOMPARE(data(0, 0, ROLE_HEAD_PATH).toString(), strDEFAULT_HEAD_PATH);
    }

    void membersWithOneIdHaveACellEach()
    {
        m_pGrid->setMemList({QStringLiteral("a"), QStringLiteral("a"), QStringLiteral("b")});
        QCOMPARE(uid(0, 0), QStringLiteral("a"));
        QCOMPARE(uid(0, 1), QStringLiteral("a"));
        QCOMPARE(uid(0, 2), QStringLiteral("b"));
    }

    void emptyListChangesNothing()
    {
        m_pGrid->setMemList(members(3));
        m_pGrid->setMemList({});
        QCOMPARE(uid(0, 0), QStringLiteral("m0"));
        QCOMPARE(m_pGrid->model()->columnCount(), 3);
    }

    void secondListWithoutClearingTakesTheFirstCells()
    {
        m_pGrid->setMemList(members(8));
        m_pGrid->setMemList({QStringLiteral("x"), QStringLiteral("m7")});
        QCOMPARE(uid(0, 0), QStringLiteral("x"));
        QCOMPARE(uid(0, 1), QStringLiteral("m7"));
        QCOMPARE(uid(0, 2), QStringLiteral("m2"));
        QCOMPARE(uid(1, 1), QStringLiteral("m7"));
        m_pGrid->clearData();
        QCOMPARE(m_pGrid->model()->rowCount(), 0);
    }

    void clearedGridShowsNothingOfTheFirstList()
    {
        show(13);
        m_pGrid->clearData();
        QCOMPARE(m_pGrid->model()->rowCount(), 0);
        QCOMPARE(m_pGrid->model()->columnCount(), 0);
        m_pGrid->setMemList({QStringLiteral("x")});
        QCOMPARE(m_pGrid->model()->rowCount(), 1);
        QCOMPARE(m_pGrid->model()->columnCount(), 1);
        QCOMPARE(uid(0, 0), QStringLiteral("x"));
        QVERIFY(!data(0, 0, ROLE_HEAD_RECT).isValid());
        QCOMPARE(m_pGrid->columnWidth(0), 80);
        QCOMPARE(m_pGrid->rowHeight(0), 80);
    }

    void gridOnlyShows()
    {
        show(7);
        QVERIFY(!m_pGrid->showGrid());
        QCOMPARE(m_pGrid->horizontalHeader()->defaultSectionSize(), 80);
        QCOMPARE(m_pGrid->verticalHeader()->defaultSectionSize(), 80);
        QVERIFY(m_pGrid->horizontalHeader()->isHidden());
        QVERIFY(m_pGrid->verticalHeader()->isHidden());
        QCOMPARE(m_pGrid->selectionMode(), QAbstractItemView::NoSelection);
        QCOMPARE(m_pGrid->editTriggers(), QAbstractItemView::NoEditTriggers);
        QVERIFY(m_pGrid->hasMouseTracking());
        QTest::mouseClick(m_pGrid->viewport(), Qt::LeftButton, Qt::NoModifier, head(0, 1).center());
        QTest::mouseDClick(m_pGrid->viewport(), Qt::LeftButton, Qt::NoModifier, head(0, 1).center());
        QVERIFY(m_pGrid->selectionModel()->selectedIndexes().isEmpty());
        QCOMPARE(shown(), 0);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConfDetailMemberTableView, Widgets)

#include "tst_ConfDetailMemberTableView.moc"
