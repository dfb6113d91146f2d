// The conference centre in the engine's hands: opened, fed, closed and opened again, over the user's store.

#include "engine/RecordedEngine.h"
#include "fakes/EngineTest.h"
#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "plugin/EMsgId.h"
#include "store/DBConfInfo.h"
#include "ui/ConferenceInfoListView.h"
#include "ui/VoiceConferenceWidget.h"
#include "widgets/MenuEx.h"

#include <QPointer>
#include <QTest>

class tst_ConferenceCentre : public EngineTest<RecordedEngine>
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
        save({"c1", "c3", "c2"});
        QVERIFY(!m_f->manager->m_pVoiceConfWidget);
        open(*m_f);
        QVERIFY(m_f->manager->m_pVoiceConfWidget->isWindow());
        QVERIFY(!m_f->manager->m_pVoiceConfWidget->parent());
        QCOMPARE(shown(*m_f), QStringList({"c3", "c2", "c1"}));
    }

    void openingTwiceKeepsTheWindow()
    {
        open(*m_f);
        const CVoiceConferenceWidget *pFirst = m_f->manager->m_pVoiceConfWidget;
        save({"c1"});
        m_f->manager->showVoiceConf();
        QCOMPARE(m_f->manager->m_pVoiceConfWidget, pFirst);
        QCOMPARE(shown(*m_f), QStringList());
    }

    void minimisedCentreComesBack()
    {
        open(*m_f);
        m_f->manager->m_pVoiceConfWidget->showMinimized();
        m_f->manager->showVoiceConf();
        QVERIFY(!m_f->manager->m_pVoiceConfWidget->isMinimized());
        QVERIFY(m_f->manager->m_pVoiceConfWidget->isVisible());
        m_f->manager->m_pVoiceConfWidget->hide();
        m_f->manager->showVoiceConf();
        QVERIFY(m_f->manager->m_pVoiceConfWidget->isVisible());
    }

    void openedCentreIsTheActiveWindow()
    {
        open(*m_f);
        QVERIFY(QTest::qWaitForWindowActive(m_f->manager->m_pVoiceConfWidget, cPatienceMs));
        QWidget other;
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other, cPatienceMs));
        m_f->manager->showVoiceConf();
        QVERIFY(QTest::qWaitForWindowActive(m_f->manager->m_pVoiceConfWidget, cPatienceMs));
    }

    void endedConferenceComesOnTop()
    {
        save({"d9", "d8"});
        open(*m_f);
        m_f->createConference();
        m_f->notify(Code::CallEnded);
        QCOMPARE(shown(*m_f), QStringList({"c1", "d9", "d8"}));
        QCOMPARE(list(*m_f)->model()->index(0, 0).data(ROLE_CREATED_BY_ME), QVariant(true));
        QCOMPARE(stored(*m_f), QStringList({"'c1'", "'d8'", "'d9'"}));
    }

    void rejectedInvitationComesOnTopToo()
    {
        save({"d9"});
        open(*m_f);
        m_f->notify(Code::IncomingConf, R"({"content":{"confId":"c7","from":"anna"}})");
        m_f->manager->rejectVoipCall();
        QCOMPARE(shown(*m_f).size(), m_f->count());
        QCOMPARE(m_f->count(), 2);
        QCOMPARE(list(*m_f)->model()->index(0, 0).data(ROLE_CALL_STATUS), QVariant(false));
        QCOMPARE(shown(*m_f).last(), QString("d9"));
    }

    void conferenceWithoutAnIdIsNotShown()
    {
        open(*m_f);
        m_f->manager->callConference({"anna"}, false, QString());
        m_f->manager->hangupVoipCall();
        QCOMPARE(stored(*m_f), QStringList{"''"});
        QCOMPARE(shown(*m_f), QStringList());
    }

    void conferenceThatIsShownAlreadyChangesNothing()
    {
        save({"c2", "c1"});
        open(*m_f);
        m_f->createConference();
        m_f->notify(Code::CallEnded);
        QCOMPARE(shown(*m_f), QStringList({"c2", "c1"}));
        QCOMPARE(list(*m_f)->model()->index(1, 0).data(ROLE_USER_ID).toString(), QString("anna"));
    }

    void conferenceEndedWithTheCentreClosedIsThereAtTheNextOpening()
    {
        m_f->createConference();
        m_f->notify(Code::CallEnded);
        QVERIFY(!m_f->manager->m_pVoiceConfWidget);
        open(*m_f);
        QCOMPARE(shown(*m_f), QStringList{"c1"});
    }

    void deletedRecordLeavesTheStore()
    {
        save({"c1", "c2", "c3"});
        open(*m_f);
        choose(*m_f, 1, 1);
        QCOMPARE(shown(*m_f), QStringList({"c3", "c1"}));
        QCOMPARE(stored(*m_f), QStringList({"'c1'", "'c3'"}));
        m_f->manager->m_pVoiceConfWidget->close();
        open(*m_f);
        QCOMPARE(shown(*m_f), QStringList({"c3", "c1"}));
    }

    void deletedRecordWithAnApostropheLeavesTheWindow()
    {
        save({"o'brien", "c1"});
        open(*m_f);
        choose(*m_f, 0, 1);
        QCOMPARE(shown(*m_f), QStringList{"c1"});
        // The store looks for the id without its apostrophe, which is not there.
        QCOMPARE(stored(*m_f), QStringList({"'c1'", "'o''brien'"}));
    }

    void redialAsksTheHost()
    {
        save({"c1"});
        open(*m_f);
        choose(*m_f, 0, 0);
        const QList<ReceivedEvent> wishes = m_f->host.received(MSG_CREATE_VOICE_CONFERENCE);
        QCOMPARE(wishes.size(), 1);
        PayloadReader reader = wishes.first().reader();
        QCOMPARE(reader.takeTexts(), QStringList({"anna@kelvar.im", "me@kelvar.im"}));
    }

    void closedCentreIsForgottenAndDestroyedLater()
    {
        open(*m_f);
        const QPointer<QWidget> centre = m_f->manager->m_pVoiceConfWidget;
        centre->close();
        QVERIFY(!m_f->manager->m_pVoiceConfWidget);
        QVERIFY(centre);
        QCoreApplication::sendPostedEvents(centre, QEvent::DeferredDelete);
        QVERIFY(!centre);
        m_f->manager->slot_VoiceConfWidgetClose();
        QVERIFY(!m_f->manager->m_pVoiceConfWidget);
    }

    void nextOpeningReadsTheStoreAnew()
    {
        save({"c2"});
        open(*m_f);
        m_f->createConference();
        m_f->notify(Code::CallEnded);
        save({"c3"});
        QCOMPARE(shown(*m_f), QStringList({"c1", "c2"}));
        m_f->manager->m_pVoiceConfWidget->close();
        open(*m_f);
        QCOMPARE(shown(*m_f), QStringList({"c3", "c2", "c1"}));
    }

    void centreGoesWithTheManager()
    {
        open(*m_f);
        const QPointer<QWidget> centre = m_f->manager->m_pVoiceConfWidget;
        m_f->manager.reset();
        QVERIFY(!centre);
    }

    void singleCallChangesNothing()
    {
        open(*m_f);
        m_f->notify(Code::IncomingCall, "bert");
        m_f->notify(Code::PeerCanceled);
        QCOMPARE(shown(*m_f), QStringList());
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ConferenceCentre, Widgets)
#include "tst_ConferenceCentre.moc"
