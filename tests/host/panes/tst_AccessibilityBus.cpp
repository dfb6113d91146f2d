// The call window on a real accessibility bus, read and pressed as a screen reader does it: by calls of D-Bus alone.

#include "client/HostLanguage.h"

#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "ui/ConferenceListView.h"
#include "ui/ContactFixture.h"
#include "ui/VoipWidget.h"

#include <QAccessible>
#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <functional>

class tst_AccessibilityBus : public QObject
{
    Q_OBJECT

private:
    /// A part on the bus.
    struct Part
    {
        QString service;
        QString path;
        QString role;
        QString name;
    };

    static constexpr const char *cAccessible = "org.a11y.atspi.Accessible";

    /// What a method answers. Qt's own side of the bus answers from the event loop, so that runs meanwhile.
    static QVariantList ask(const QDBusConnection &bus, const QString &strService, const QString &strPath,
                            const char *pInterface, const char *pMethod, const QVariantList &arguments = {})
    {
        QDBusMessage question =
            QDBusMessage::createMethodCall(strService, strPath, QLatin1String(pInterface), QLatin1String(pMethod));
        question.setArguments(arguments);
        const QDBusPendingCall call = bus.asyncCall(question);
        if (!QTest::qWaitFor([&call] { return call.isFinished(); }, cPatienceMs) || call.isError()) {
            return {call.error().message()};
        }
        return call.reply().arguments();
    }
    QList<Part> childrenOf(const QString &strService, const QString &strPath) const
    {
        QList<Part> parts;
        const QVariantList answer = ask(*m_pReader, strService, strPath, cAccessible, "GetChildren");
        if (answer.isEmpty() || !answer.first().canConvert<QDBusArgument>()) {
            return parts;
        }
        const auto list = answer.first().value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            Part part;
            QDBusObjectPath path;
            list.beginStructure();
            list >> part.service >> path;
            list.endStructure();
            part.path = path.path();
            parts.append(part);
        }
        list.endArray();
        return parts;
    }
    void read(Part &part) const
    {
        part.role = ask(*m_pReader, part.service, part.path, cAccessible, "GetRoleName").value(0).toString();
        part.name = ask(*m_pReader, part.service, part.path, "org.freedesktop.DBus.Properties", "Get",
                        {QLatin1String(cAccessible), QStringLiteral("Name")})
                        .value(0)
                        .value<QDBusVariant>()
                        .variant()
                        .toString();
    }
    void readAll(const QString &strService, const QString &strPath, QList<Part> &found) const
    {
        for (Part &part : childrenOf(strService, strPath)) {
            read(part);
            found.append(part);
            readAll(part.service, part.path, found);
        }
    }
    /// All parts of all windows of the only application on the bus.
    QList<Part> everything() const
    {
        QList<Part> found;
        readAll(QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/accessible/root"), found);
        return found;
    }
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

    int m_iArguments = 1;
    char m_name[5] = "test";
    char *m_arguments[2] = {m_name, nullptr};
    QProcess m_daemon;
    std::unique_ptr<QApplication> m_pApplication;
    std::unique_ptr<QDBusConnection> m_pReader;
    std::unique_ptr<HostLanguage> m_pLanguage;
    std::unique_ptr<ContactFixture> m_pContacts;
    std::unique_ptr<CVoipWidget> m_pWindow;

private slots:
    void initTestCase()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address=1"});
        QVERIFY2(m_daemon.waitForReadyRead(cPatienceMs), qPrintable(m_daemon.errorString()));
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readLine().trimmed());
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        m_pApplication = std::make_unique<QApplication>(m_iArguments, m_arguments);
        // The question starts the accessibility bus, as a screen reader's does.
        const QString strAddress = ask(QDBusConnection::sessionBus(), QStringLiteral("org.a11y.Bus"),
                                       QStringLiteral("/org/a11y/bus"), "org.a11y.Bus", "GetAddress")
                                       .value(0)
                                       .toString();
        QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), cPatienceMs);
        m_pReader =
            std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(strAddress, QStringLiteral("reader")));
        QVERIFY2(m_pReader->isConnected(), qPrintable(strAddress));
        m_pLanguage = std::make_unique<HostLanguage>(QStringLiteral(VOIP_TRANSLATIONS));
        QVERIFY(m_pLanguage->use(QStringLiteral("en")));
        QTRY_COMPARE_WITH_TIMEOUT(
            childrenOf(QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/accessible/root"))
                .size(),
            1, cPatienceMs);
    }

    void cleanupTestCase()
    {
        m_pLanguage.reset();
        m_pReader.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("reader"));
        m_pApplication.reset();
        m_daemon.terminate();
        m_daemon.waitForFinished(cPatienceMs);
    }

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
                ask(*m_pReader, part.service, part.path, "org.a11y.atspi.Action", "DoAction", {0});
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
