// The call window on a real accessibility bus, read and pressed as a screen reader does it: by calls of D-Bus alone.

#include "client/HostLanguage.h"

#include "fakes/Patience.h"
#include "host/panes/BusReader.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"
#include "ui/ContactFixture.h"
#include "ui/VoipWidget.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

class tst_AccessibilityBus : public QObject
{
    Q_OBJECT

private:
    using Part = BusReader::Part;

    QList<Part> everything() const { return m_reader.everything(); }
    static QStringList namesOf(const QList<Part> &parts, const QString &strRole)
    {
        QStringList names;
        for (const Part &part : parts) {
            if (part.role == strRole) {
                names.append(part.name);
            }
        }
        return names;
    }

    BusReader m_reader;
    std::unique_ptr<HostLanguage> m_pLanguage;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<CVoipWidget> m_pWindow;

private slots:
    void initTestCase()
    {
        QVERIFY(m_reader.start());
        m_pLanguage = std::make_unique<HostLanguage>(QStringLiteral(VOIP_TRANSLATIONS));
        QVERIFY(m_pLanguage->use(QStringLiteral("en")));
    }

    void cleanupTestCase() { m_pLanguage.reset(); }

    void init()
    {
        m_pContacts = std::make_unique<ContactFixture>();
        m_pContacts->addContact(QStringLiteral("1001"), ContactFixture::card(QStringLiteral("Ann"), {}));
        m_pWindow = std::make_unique<CVoipWidget>();
        m_pWindow->setVoipCallInfo({QStringLiteral("1001")}, CVoipWidget::Conference, true, true);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get(), cPatienceMs));
    }

    void cleanup()
    {
        m_pWindow.reset();
        m_pContacts.reset();
    }

    void readerFindsWhatCanBePressed()
    {
        const QStringList buttons = namesOf(everything(), QStringLiteral("push button"));
        for (const char *pName :
             {"Close", "Invite", "Mute the microphone", "Sound off", "Mute all members", "Hang up"}) {
            QVERIFY2(buttons.contains(QLatin1String(pName)), qPrintable(buttons.join('|')));
        }
    }

    void readerHearsTheRowsOfThisConference()
    {
        QCOMPARE(namesOf(everything(), QStringLiteral("list item")), QStringList{"Ann, being called"});
        m_pWindow->updateConferenceUserStatus(QStringLiteral("1001"), ConferenceRejected);
        QCOMPARE(namesOf(everything(), QStringLiteral("list item")), QStringList{"Ann, declined"});
        m_pWindow->clearUI();
        m_pWindow->setVoipCallInfo({QStringLiteral("1001")}, CVoipWidget::Conference, true, true);
        m_pWindow->setConferenceCreator(QStringLiteral("1001"));
        QCOMPARE(namesOf(everything(), QStringLiteral("list item")),
                 QStringList{"Ann, being called, created the conference"});
    }

    void readerPressesMute()
    {
        QSignalSpy enabled(m_pWindow.get(), SIGNAL(signal_SetMicEnable(bool)));
        for (const Part &part : everything()) {
            if (part.name == QLatin1String("Mute the microphone")) {
                m_reader.press(part);
                QTRY_COMPARE_WITH_TIMEOUT(enabled.size(), 1, cPatienceMs);
            }
        }
        QCOMPARE(enabled.size(), 1);
        QCOMPARE(enabled.at(0).at(0).toBool(), false);
        QVERIFY(namesOf(everything(), QStringLiteral("push button")).contains(QStringLiteral("Unmute the microphone")));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_AccessibilityBus, Appless)
#include "tst_AccessibilityBus.moc"
