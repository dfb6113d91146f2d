// Names that come from the network, in the demo client's windows. They are text and nothing else. A user whom the
// client does not know is named by its id, so an id stands for a name here.

#include "client/ContactBook.h"
#include "panes/IncomingPrompt.h"
#include "panes/MainWindow.h"
#include "panes/MemberPicker.h"
#include "panes/SignatureCard.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"

#include "fakes/ForeignText.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/PluginIds.h"

#include <QStatusBar>
#include <QTableView>

class tst_ForeignNames : public QObject
{
    Q_OBJECT

private slots:
    void promptOfACallShowsText_data() { ForeignText::addRows(); }

    void promptOfACallShowsText()
    {
        QFETCH(QString, name);
        IncomingPrompt prompt(m_book);
        for (const bool conference : {false, true}) {
            prompt.prompt(name, conference, false);
            QVERIFY(!prompt.grab().isNull());
            QCOMPARE(WindowProbe::text(&prompt, "lblName"), name);
            QCOMPARE(ForeignText::faults(&prompt, name), QStringList());
        }
    }

    void recordsOfCallsShowText_data() { ForeignText::addRows(); }

    void recordsOfCallsShowText()
    {
        QFETCH(QString, name);
        HostSession session(m_book);
        MainWindow window(session, m_book);
        window.show();
        BaseEvent event(MSG_CALL_FINISHED, voipPluginId(), sessionPluginId(), false,
                        packPayload(false, name, qint32(24), true, true, qint64(5)));
        QCoreApplication::sendEvent(&session.mailbox(), &event);
        QVERIFY(!window.grab().isNull());
        QVERIFY(window.statusBar()->currentMessage().contains(name));
        QCOMPARE(window.findChild<QTableView *>()->model()->index(0, 0).data().toString(), name);
        QCOMPARE(ForeignText::faults(&window, name), QStringList());
    }

    void pickerShowsText_data() { ForeignText::addRows(); }

    void pickerShowsText()
    {
        QFETCH(QString, name);
        for (const MemberPicker::Purpose purpose : {MemberPicker::NewConference, MemberPicker::MoreMembers}) {
            MemberPicker picker(m_book, purpose, {name}, nullptr);
            picker.show();
            QVERIFY(!picker.grab().isNull());
            QCOMPARE(ForeignText::faults(&picker, name), QStringList());
        }
    }

    void signatureCardShowsText_data() { ForeignText::addRows(); }

    void signatureCardShowsText()
    {
        QFETCH(QString, name);
        SignatureCard card(m_book);
        card.showCard(name, {700, 300}, 500);
        QVERIFY(!card.grab().isNull());
        QCOMPARE(ForeignText::faults(&card, name), QStringList());
    }

private:
    ContactBook m_book{QStringLiteral("example.org")};
};

#include "support/TestProgram.h"
VOIP_TEST(tst_ForeignNames, Widgets)
#include "tst_ForeignNames.moc"
