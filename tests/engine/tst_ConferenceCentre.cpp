// The conference centre in the engine's hands: opened, fed, closed and opened again, over the user's store.

#include "engine/RecordedEngine.h"
#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "plugin/EMsgId.h"
#include "store/DBConfInfo.h"
#include "ui/ConferenceInfoListView.h"
#include "ui/VoiceConferenceWidget.h"
#include "widgets/MenuEx.h"

#include <QPointer>
#include <QTest>

class tst_ConferenceCentre : public QObject
{
    Q_OBJECT

private:
    static void save(const QStringList &ids)
    {
        for (const QString &id : ids) {
            ConfInfoData record;
            record.m_strConfID = id;
            record.m_strCreatUserID = "anna";
            record.m_listMember = QList<QString>{"anna", "me"};
            record.m_bIsConnect = true;
            QVERIFY(DBConfInfo::saveConfInfo(record));
        }
    }
    static CConferenceInfoListView *list(const RecordedEngine &f)
    {
        return f.manager->m_pVoiceConfWidget->findChild<CConferenceInfoListView *>("listView");
    }
    /// The centre's conference ids from the top.
    static QStringList shown(const RecordedEngine &f)
    {
        QStringList ids;
        const QAbstractItemModel *pRows = list(f)->model();
        for (int i = 0; i < pRows->rowCount(); ++i) {
            ids << pRows->index(i, 0).data(ROLE_CONF_ID).toString();
        }
        return ids;
    }
    /// The ids in the store.
    static QStringList stored(const RecordedEngine &f)
    {
        QStringList ids;
        for (const QStringList &row : f.rows()) {
            ids << row.constFirst();
        }
        return ids;
    }
    static void open(RecordedEngine &f)
    {
        f.manager->showVoiceConf();
        QVERIFY(f.manager->m_pVoiceConfWidget);
        QVERIFY(QTest::qWaitForWindowExposed(f.manager->m_pVoiceConfWidget, cPatienceMs));
    }
    /// Right click on the row, then a click on the menu's entry.
    static void choose(const RecordedEngine &f, int row, int entry)
    {
        CConferenceInfoListView *pList = list(f);
        const QPoint place = pList->visualRect(pList->model()->index(row, 0)).center();
        QCursor::setPos(pList->viewport()->mapToGlobal(place));
        QTest::mouseClick(pList->viewport(), Qt::RightButton, Qt::NoModifier, place);
        auto *pMenu = pList->findChild<CMenuEx *>();
        QVERIFY(QTest::qWaitForWindowExposed(pMenu, cPatienceMs));
        QTest::mouseClick(pMenu, Qt::LeftButton, Qt::NoModifier,
                          pMenu->actionGeometry(pMenu->actions().at(entry)).center());
    }

private slots:
    void openingShowsTheStoresRecords()
    {
        RecordedEngine f;
        save({"c1", "c3", "c2"});
        QVERIFY(!f.manager->m_pVoiceConfWidget);
        open(f);
        QVERIFY(f.manager->m_pVoiceConfWidget->isWindow());
        QVERIFY(!f.manager->m_pVoiceConfWidget->parent());
        QCOMPARE(shown(f), QStringList({"c3", "c2", "c1"}));
    }

    void openingTwiceKeepsTheWindow()
    {
        RecordedEngine f;
        open(f);
        const CVoiceConferenceWidget *pFirst = f.manager->m_pVoiceConfWidget;
        save({"c1"});
        f.manager->showVoiceConf();
        QCOMPARE(f.manager->m_pVoiceConfWidget, pFirst);
        QCOMPARE(shown(f), QStringList());
    }

    void minimisedCentreComesBack()
    {
        RecordedEngine f;
        open(f);
        f.manager->m_pVoiceConfWidget->showMinimized();
        f.manager->showVoiceConf();
        QVERIFY(!f.manager->m_pVoiceConfWidget->isMinimized());
        QVERIFY(f.manager->m_pVoiceConfWidget->isVisible());
        f.manager->m_pVoiceConfWidget->hide();
        f.manager->showVoiceConf();
        QVERIFY(f.manager->m_pVoiceConfWidget->isVisible());
    }

    void openedCentreIsTheActiveWindow()
    {
        RecordedEngine f;
        open(f);
        QVERIFY(QTest::qWaitForWindowActive(f.manager->m_pVoiceConfWidget, cPatienceMs));
        QWidget other;
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other, cPatienceMs));
        f.manager->showVoiceConf();
        QVERIFY(QTest::qWaitForWindowActive(f.manager->m_pVoiceConfWidget, cPatienceMs));
    }

    void endedConferenceComesOnTop()
    {
        RecordedEngine f;
        save({"d9", "d8"});
        open(f);
        f.createConference();
        f.notify(7);
        QCOMPARE(shown(f), QStringList({"c1", "d9", "d8"}));
        QCOMPARE(list(f)->model()->index(0, 0).data(ROLE_CREATED_BY_ME), QVariant(true));
        QCOMPARE(stored(f), QStringList({"'c1'", "'d8'", "'d9'"}));
    }

    void rejectedInvitationComesOnTopToo()
    {
        RecordedEngine f;
        save({"d9"});
        open(f);
        f.notify(2, R"({"content":{"confId":"c7","from":"anna"}})");
        f.manager->rejectVoipCall();
        QCOMPARE(shown(f).size(), f.count());
        QCOMPARE(f.count(), 2);
        QCOMPARE(list(f)->model()->index(0, 0).data(ROLE_CALL_STATUS), QVariant(false));
        QCOMPARE(shown(f).last(), QString("d9"));
    }

    void conferenceWithoutAnIdIsNotShown()
    {
        RecordedEngine f;
        open(f);
        f.manager->callConference({"anna"}, false, QString());
        f.manager->hangupVoipCall();
        QCOMPARE(stored(f), QStringList{"''"});
        QCOMPARE(shown(f), QStringList());
    }

    void conferenceThatIsShownAlreadyChangesNothing()
    {
        RecordedEngine f;
        save({"c2", "c1"});
        open(f);
        f.createConference();
        f.notify(7);
        QCOMPARE(shown(f), QStringList({"c2", "c1"}));
        QCOMPARE(list(f)->model()->index(1, 0).data(ROLE_USER_ID).toString(), QString("anna"));
    }

    void conferenceEndedWithTheCentreClosedIsThereAtTheNextOpening()
    {
        RecordedEngine f;
        f.createConference();
        f.notify(7);
        QVERIFY(!f.manager->m_pVoiceConfWidget);
        open(f);
        QCOMPARE(shown(f), QStringList{"c1"});
    }

    void deletedRecordLeavesTheStore()
    {
        RecordedEngine f;
        save({"c1", "c2", "c3"});
        open(f);
        choose(f, 1, 1);
        QCOMPARE(shown(f), QStringList({"c3", "c1"}));
        QCOMPARE(stored(f), QStringList({"'c1'", "'c3'"}));
        f.manager->m_pVoiceConfWidget->close();
        open(f);
        QCOMPARE(shown(f), QStringList({"c3", "c1"}));
    }

    void deletedRecordWithAnApostropheLeavesTheWindow()
    {
        RecordedEngine f;
        save({"o'brien", "c1"});
        open(f);
        choose(f, 0, 1);
        QCOMPARE(shown(f), QStringList{"c1"});
        // The store looks for the id without its apostrophe, which is not there.
        QCOMPARE(stored(f), QStringList({"'c1'", "'o''brien'"}));
    }

    void redialAsksTheHost()
    {
        RecordedEngine f;
        save({"c1"});
        open(f);
        choose(f, 0, 0);
        const QList<ReceivedEvent> wishes = f.host.received(MSG_CREATE_VOICE_CONFERENCE);
        QCOMPARE(wishes.size(), 1);
        PayloadReader reader = wishes.first().reader();
        QCOMPARE(reader.takeTexts(), QStringList({"anna@kelvar.im", "me@kelvar.im"}));
    }

    void closedCentreIsForgottenAndDestroyedLater()
    {
        RecordedEngine f;
        open(f);
        const QPointer<QWidget> centre = f.manager->m_pVoiceConfWidget;
        centre->close();
        QVERIFY(!f.manager->m_pVoiceConfWidget);
        QVERIFY(centre);
        QCoreApplication::sendPostedEvents(centre, QEvent::DeferredDelete);
        QVERIFY(!centre);
        f.manager->slot_VoiceConfWidgetClose();
        QVERIFY(!f.manager->m_pVoiceConfWidget);
    }

    void nextOpeningReadsTheStoreAnew()
    {
        RecordedEngine f;
        save({"c2"});
        open(f);
        f.createConference();
        f.notify(7);
        save({"c3"});
        QCOMPARE(shown(f), QStringList({"c1", "c2"}));
        f.manager->m_pVoiceConfWidget->close();
        open(f);
        QCOMPARE(shown(f), QStringList({"c3", "c2", "c1"}));
    }

    void centreGoesWithTheManager()
    {
        RecordedEngine f;
        open(f);
        const QPointer<QWidget> centre = f.manager->m_pVoiceConfWidget;
        f.manager.reset();
        QVERIFY(!centre);
    }

    void singleCallChangesNothing()
    {
        RecordedEngine f;
        open(f);
        f.notify(0, "bert");
        f.notify(4);
        QCOMPARE(shown(f), QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceCentre, Widgets)
#include "tst_ConferenceCentre.moc"
