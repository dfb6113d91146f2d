// The rows of the conference history list: what each holds, their order, adding and removing, and odd records.

#include "HistoryListTest.h"

#include "common/Palette.h"
#include "fakes/Patience.h"
#include "plugin/EMsgId.h"

#include <QMetaMethod>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>

class tst_ConferenceInfoListView : public HistoryListTest
{
    Q_OBJECT

private:
    QStringList listIds() const
    {
        QStringList ids;
        for (const ConfInfoData &info : qAsConst(m_pList->m_confInfoList)) {
            ids.append(info.m_strConfID);
        }
        return ids;
    }

private slots:
    void signalsAndSlotsInOrder()
    {
        const QMetaObject &meta = CConferenceInfoListView::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
        }
        QCOMPARE(methods,
                 QStringList({"signal_ShowConfDetail(QString)", "signal_ReCallConf(QString)",
                              "signal_DeleteConfInfo(QString)", "slot_selectAction(QAction*)", "slot_ShowSign()"}));
    }

    void rowHoldsTheRecord()
    {
        m_pContacts->addContact(QStringLiteral("ann"),
                                ContactFixture::card(QStringLiteral("Ann"), QStringLiteral("Annie")));
        m_pList->addConfInfoList({record(QStringLiteral("c1"))});
        QCOMPARE(data(0, Qt::UserRole + 1).toString(), QStringLiteral("Ann"));
        QCOMPARE(data(0, Qt::UserRole + 2).toString(), QStringLiteral("Resources/images/FriendDetail/defaultHead.png"));
        QCOMPARE(data(0, Qt::UserRole + 8).toString(), QStringLiteral("c1"));
        QCOMPARE(data(0, Qt::UserRole + 90).toString(), QStringLiteral("ann"));
        QCOMPARE(data(0, Qt::UserRole + 139), QVariant(true));
        QCOMPARE(data(0, Qt::UserRole + 146).toString(), QStringLiteral("2024-03-05 09:08:07"));
        QCOMPARE(data(0, Qt::UserRole + 147).toString(), QStringLiteral("1分15秒"));
        QCOMPARE(data(0, Qt::UserRole + 148), QVariant(false));
        QCOMPARE(data(0, Qt::SizeHintRole).toSize(), QSize(500, 62));
        QVERIFY(!data(0, Qt::UserRole + 10).isValid());
        QVERIFY(!data(0, Qt::UserRole + 140).isValid());
        QVERIFY(!data(0, Qt::DisplayRole).isValid());
    }

    void whatIsSetInARowCountsBeforeTheRecord()
    {
        m_pList->addConfInfoList({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        QVERIFY(m_pList->m_pModel->setData(index(0), QStringLiteral("Anna"), ROLE_DISPLAY_NAME));
        QVERIFY(m_pList->m_pModel->setData(index(0), false, ROLE_CALL_STATUS));
        QCOMPARE(data(0, ROLE_DISPLAY_NAME).toString(), QStringLiteral("Anna"));
        QCOMPARE(data(0, ROLE_CALL_STATUS), QVariant(false));
        QCOMPARE(data(1, ROLE_DISPLAY_NAME).toString(), QString());
        QCOMPARE(data(1, ROLE_CALL_STATUS), QVariant(true));
    }

    void unknownCreatorHasAnEmptyNameAndTheDefaultHead()
    {
        m_pHost->bAnswers = false;
        m_pList->addConfInfoList({record(QStringLiteral("c1"))});
        QCOMPARE(data(0, ROLE_DISPLAY_NAME), QVariant(FriendData().displayName()));
        QCOMPARE(data(0, ROLE_DISPLAY_NAME), QVariant(QString()));
        QCOMPARE(data(0, ROLE_HEAD_PATH).toString(), QStringLiteral("Resources/images/FriendDetail/defaultHead.png"));
    }

    void creatorOutsideTheFriendMapIsAskedForOnce()
    {
        FriendData bert(ContactFixture::jid(QStringLiteral("bert")));
        bert.setVcardInfo(ContactFixture::card(QStringLiteral("Bert"), {}));
        m_pHost->setRecord(ContactFixture::jid(QStringLiteral("bert")), bert);
        QList<ConfInfoData> records;
        for (const char *pId : {"c3", "c2", "c1"}) {
            records.append(record(QLatin1String(pId), true, QStringLiteral("bert")));
        }
        m_pList->addConfInfoList(records);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(data(i, ROLE_DISPLAY_NAME).toString(), bert.displayName());
        }
        QCOMPARE(m_pHost->received(MSG_GET_FRIEND_INFO).size(), 1);
        m_pList->addConfInfoData(record(QStringLiteral("c4"), true, QStringLiteral("bert")));
        QCOMPARE(m_pHost->received(MSG_GET_FRIEND_INFO).size(), 2);
    }

    void ownConferenceIsMarked()
    {
        m_pList->addConfInfoList({record(QStringLiteral("c1"), true, QStringLiteral("me"))});
        m_pList->addConfInfoData(record(QStringLiteral("c2"), true, QStringLiteral("me")));
        m_pList->addConfInfoData(record(QStringLiteral("c3")));
        QCOMPARE(data(0, ROLE_CREATED_BY_ME), QVariant(false));
        QCOMPARE(data(1, ROLE_CREATED_BY_ME), QVariant(true));
        QCOMPARE(data(2, ROLE_CREATED_BY_ME), QVariant(true));
    }

    void listKeepsTheStoresOrder()
    {
        m_pList->addConfInfoList(
            {record(QStringLiteral("b")), record(QStringLiteral("c")), record(QStringLiteral("a"))});
        QCOMPARE(ids(), QStringList({"b", "c", "a"}));
        QCOMPARE(listIds(), QStringList({"b", "c", "a"}));
    }

    void emptyListAddsNothing()
    {
        m_pList->addConfInfoList({record(QStringLiteral("a"))});
        m_pList->addConfInfoList({});
        QCOMPARE(ids(), QStringList{"a"});
        QCOMPARE(listIds(), QStringList());
    }

    void anotherListGoesBelowTheRows()
    {
        m_pList->addConfInfoList({record(QStringLiteral("b"))});
        m_pList->addConfInfoList({record(QStringLiteral("c"))});
        QCOMPARE(ids(), QStringList({"b", "c"}));
        QCOMPARE(listIds(), QStringList{"c"});
        m_pList->addConfInfoData(record(QStringLiteral("b")));
        QCOMPARE(ids(), QStringList({"b", "c"}));
    }

    void newRecordGoesOnTopAndToTheEndOfTheList()
    {
        m_pList->addConfInfoList({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        m_pList->addConfInfoData(record(QStringLiteral("0")));
        QCOMPARE(ids(), QStringList({"0", "b", "a"}));
        QCOMPARE(listIds(), QStringList({"b", "a", "0"}));
    }

    void knownOrEmptyIdAddsNothing()
    {
        m_pList->addConfInfoList({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        m_pList->addConfInfoData(record(QStringLiteral("c")));
        for (const char *pId : {"a", "b", "c", ""}) {
            m_pList->addConfInfoData(record(QLatin1String(pId), false));
        }
        QCOMPARE(ids(), QStringList({"c", "b", "a"}));
        QCOMPARE(listIds(), QStringList({"b", "a", "c"}));
        QCOMPARE(data(0, ROLE_CALL_STATUS), QVariant(true));
    }

    void removedRecordStaysInTheListOnly()
    {
        m_pList->addConfInfoList(
            {record(QStringLiteral("c")), record(QStringLiteral("b")), record(QStringLiteral("a"))});
        m_pList->removeConfInfoData(QStringLiteral("b"));
        QCOMPARE(ids(), QStringList({"c", "a"}));
        QCOMPARE(listIds(), QStringList({"c", "b", "a"}));
    }

    void unknownOrEmptyIdRemovesNothing()
    {
        m_pList->addConfInfoList({record(QStringLiteral("a")), record(QString())});
        m_pList->removeConfInfoData(QString());
        m_pList->removeConfInfoData(QStringLiteral("b"));
        QCOMPARE(ids(), QStringList({"a", ""}));
    }

    void removedIdCanComeAgain()
    {
        m_pList->addConfInfoList({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        m_pList->removeConfInfoData(QStringLiteral("a"));
        m_pList->removeConfInfoData(QStringLiteral("a"));
        m_pList->addConfInfoData(record(QStringLiteral("a")));
        QCOMPARE(ids(), QStringList({"a", "b"}));
        QCOMPARE(listIds(), QStringList({"b", "a", "a"}));
    }

    void lastOfEqualIdsIsTheOneThatGoes()
    {
        m_pList->addConfInfoList({record(QStringLiteral("a"), true), record(QStringLiteral("a"), false)});
        m_pList->removeConfInfoData(QStringLiteral("a"));
        QCOMPARE(ids(), QStringList{"a"});
        QCOMPARE(data(0, ROLE_CALL_STATUS), QVariant(true));
        m_pList->removeConfInfoData(QStringLiteral("a"));
        QCOMPARE(ids(), QStringList{"a"});
    }

    void oddCallTimes_data()
    {
        QTest::addColumn<QString>("seconds");
        QTest::addColumn<QString>("shown");
        const QString longest = QStringLiteral("2562047788015215小时30分7秒");
        QTest::newRow("zero") << "0" << QString();
        QTest::newRow("a fraction is cut") << "61.99" << QStringLiteral("1分1秒");
        QTest::newRow("an exponent") << "3.6e3" << QStringLiteral("1小时");
        QTest::newRow("negative") << "-5" << QString();
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("words") << "soon" << QString();
        QTest::newRow("a number and words") << "12 s" << QString();
        QTest::newRow("no number at all") << "nan" << QString();
        QTest::newRow("infinite") << "inf" << longest;
        QTest::newRow("infinite below") << "-inf" << QString();
        QTest::newRow("the first beyond 64 bits") << "9223372036854775808" << longest;
        QTest::newRow("the least of 64 bits") << "-9223372036854775808" << QString();
        QTest::newRow("far beyond") << "1e300" << longest;
        QTest::newRow("far below") << "-1e300" << QString();
    }

    void oddCallTimes()
    {
        QFETCH(QString, seconds);
        m_pList->addConfInfoList({record(QStringLiteral("c1"), true, QStringLiteral("ann"), seconds)});
        QTEST(data(0, ROLE_CONF_CALL_TIME).toString(), "shown");
    }

    void oddTextsAreKeptAsTheyAre()
    {
        ConfInfoData odd = record(QStringLiteral("o'brien\n"), true, QStringLiteral("a&b<i>"));
        odd.m_strCreatTime = QStringLiteral("some day");
        ConfInfoData empty;
        show({odd, empty});
        QCOMPARE(ids(), QStringList({"o'brien\n", ""}));
        QCOMPARE(data(0, ROLE_USER_ID).toString(), QStringLiteral("a&b<i>"));
        QCOMPARE(data(0, ROLE_CONF_CREATE_TIME).toString(), QStringLiteral("some day"));
        m_pList->removeConfInfoData(QStringLiteral("o'brien\n"));
        QCOMPARE(ids(), QStringList{""});
    }

    void rowsAreSixtyTwoHigh()
    {
        show({record(QStringLiteral("b")), record(QStringLiteral("a"))});
        QCOMPARE(row(0), QRect(0, 0, 517, 62));
        QCOMPARE(row(1), QRect(0, 62, 517, 62));
    }

    void rowsCannotBeEdited() { QCOMPARE(m_pList->editTriggers(), QAbstractItemView::NoEditTriggers); }

    void scrollBarShowsUnderTheCursorOnly()
    {
        show({record(QStringLiteral("a"))});
        QCOMPARE(m_pList->contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(m_pList->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
        moveTo(row(0).center());
        QCOMPARE(m_pList->styleSheet(), QString(strVerticalScrollBarHoverStyle));
        QCursor::setPos(10, 10);
        QTRY_COMPARE_WITH_TIMEOUT(m_pList->styleSheet(), QString(strVerticalScrollBarNormalStyle), cPatienceMs);
    }

    void hundredThousandRecords()
    {
        QList<ConfInfoData> records;
        for (int i = 100000; i > 0; --i) {
            records.append(record(QString::number(100000 + i), i % 2 == 0, QStringLiteral("u%1").arg(i % 50)));
        }
        m_pList->addConfInfoList(records);
        QCOMPARE(m_pHost->received(MSG_GET_FRIEND_INFO).size(), 50);
        show({});
        QCOMPARE(m_pList->model()->rowCount(), 100000);
        m_pList->scrollToBottom();
        QVERIFY(m_pList->viewport()->rect().contains(row(99999)));
        m_pList->addConfInfoData(record(QStringLiteral("new")));
        m_pList->removeConfInfoData(QStringLiteral("100001"));
        QCOMPARE(data(0, ROLE_CONF_ID).toString(), QStringLiteral("new"));
        QCOMPARE(data(99999, ROLE_CONF_ID).toString(), QStringLiteral("100002"));
        picture();
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceInfoListView, Widgets)
#include "tst_ConferenceInfoListView.moc"
