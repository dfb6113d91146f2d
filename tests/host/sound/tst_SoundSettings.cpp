// Microphone and speaker in the settings, on a real sound server with devices that come and go, chosen by the real
// mouse, with the real plug-in and its call process.

#include "client/ContactBook.h"
#include "client/SettingsFile.h"
#include "panes/MainWindow.h"
#include "panes/SoundPane.h"
#include "screen/WindowProbe.h"
#include "session/HostSession.h"
#include "sound/SoundMeter.h"
#include "traffic/CallChannel.h"
#include "traffic/TraceFolder.h"

#include "host/panes/Deeds.h"
#include "host/panes/PressButton.h"
#include "host/sound/SoundMachine.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>

#include <limits>

class tst_SoundSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_machine.start());
        QString error;
        QVERIFY2(m_session.start(QStringLiteral(VOIP_MODULE), &error), qPrintable(error));
        m_pWindow = std::make_unique<MainWindow>(m_session, m_book);
        m_pWindow->show();
        QVERIFY(QTest::qWaitForWindowActive(m_pWindow.get(), cPatienceMs));
        QVERIFY(pressButton(m_pWindow.get(), "btnSettings"));
        QVERIFY(QTest::qWaitForWindowActive(&page(), cPatienceMs));
        auto *bar = page().findChild<QTabBar *>();
        Deeds open({[bar, this] {
            return WindowProbe::isShown(&page(), "SoundPane") ||
                   (Deeds::clickOn(*bar, bar->tabRect(1).center()) && false);
        }});
        QVERIFY(open.finish());
        QTRY_COMPARE_WITH_TIMEOUT(microphone()->count(), 3, cPatienceMs);
    }

    void cleanup()
    {
        m_machine.goOn();
        for (const auto role : {SoundChoice::Microphone, SoundChoice::Speaker}) {
            m_session.sound().choose(role, {});
        }
    }

    void cleanupTestCase()
    {
        m_pWindow.reset();
        m_session.quit();
    }

    void devicesAreListedTheDesktopsFirst()
    {
        // What only repeats a speaker is no microphone.
        QCOMPARE(rows(microphone()), (QStringList{"As the desktop has it (Quiet)", "Quiet", "USB"}));
        QCOMPARE(rows(speaker()), (QStringList{"As the desktop has it (Desk)", "Desk", "Headset", "Voice"}));
        QCOMPARE(microphone()->currentIndex(), 0);
        QCOMPARE(speaker()->currentIndex(), 0);
        QVERIFY(!WindowProbe::isShown(&page(), "lblServer"));
    }

    void listFollowsTheDevices()
    {
        QVERIFY(SoundMachine::plugOut());
        QTRY_COMPARE_WITH_TIMEOUT(rows(speaker()), (QStringList{"As the desktop has it (Desk)", "Desk", "Voice"}),
                                  cPatienceMs);
        QVERIFY(SoundMachine::plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(speaker()->count(), 4, cPatienceMs);
    }

    void levelMovesWithTheMicrophone()
    {
        choose(microphone(), QStringLiteral("USB"));
        QCOMPARE(level(), 0);
        const auto voice = SoundMachine::speak();
        // Half the loudest is six decibels below it.
        QTRY_COMPARE_WITH_TIMEOUT(level(), 90, cPatienceMs);
        voice->kill();
        voice->waitForFinished(cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(level(), 0, cPatienceMs);
    }

    void anotherMicrophoneHearsNothingOfIt()
    {
        const auto voice = SoundMachine::speak();
        choose(microphone(), QStringLiteral("USB"));
        QTRY_COMPARE_WITH_TIMEOUT(level(), 90, cPatienceMs);
        choose(microphone(), QStringLiteral("Quiet"));
        QTRY_COMPARE_WITH_TIMEOUT(level(), 0, cPatienceMs);
        // Not only for the moment of the change.
        const QSignalSpy levels(page().findChild<QProgressBar *>(), &QProgressBar::valueChanged);
        QTest::qWait(500);
        QCOMPARE(levels.size(), 0);
        voice->kill();
        voice->waitForFinished(cPatienceMs);
    }

    void microphoneIsLetGoWithThePage()
    {
        choose(microphone(), QStringLiteral("USB"));
        QTRY_COMPARE_WITH_TIMEOUT(SoundMachine::listeners(), 1, cPatienceMs);
        page().close();
        QTRY_COMPARE_WITH_TIMEOUT(SoundMachine::listeners(), 0, cPatienceMs);
        page().open();
        QTRY_COMPARE_WITH_TIMEOUT(SoundMachine::listeners(), 1, cPatienceMs);
    }

    void levelCountsDecibels_data()
    {
        QTest::addColumn<float>("peak");
        QTest::addColumn<int>("level");
        QTest::newRow("silence") << 0.0F << 0;
        QTest::newRow("below what counts") << 0.0005F << 0;
        QTest::newRow("whisper") << 0.01F << 33;
        QTest::newRow("speech") << 0.1F << 67;
        QTest::newRow("loudest") << 1.0F << 100;
        QTest::newRow("too loud") << 3.0F << 100;
        QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0;
    }

    void levelCountsDecibels()
    {
        QFETCH(float, peak);
        QTEST(SoundMeter::levelOf(peak), "level");
    }

    void toneArrivesAtTheChosenSpeakerAlone()
    {
        choose(speaker(), QStringLiteral("Headset"));
        const auto headset = SoundMachine::record(QStringLiteral("headset"));
        const auto desk = SoundMachine::record(QStringLiteral("desk"));
        QTRY_VERIFY_WITH_TIMEOUT(headset->bytesAvailable() > 0 && desk->bytesAvailable() > 0, cPatienceMs);
        clickButton("btnTone");
        QCOMPARE(said("lblSpeakerNote"), QStringLiteral("A tone is being played."));
        QTRY_VERIFY_WITH_TIMEOUT(said("lblSpeakerNote").startsWith(QStringLiteral("The tone was played.")),
                                 cPatienceMs);
        headset->kill();
        desk->kill();
        headset->waitForFinished(cPatienceMs);
        desk->waitForFinished(cPatienceMs);
        const SoundMachine::Heard heard = SoundMachine::hear(headset->readAllStandardOutput());
        QVERIFY2(heard.peak > 0.2F && heard.peak < 0.3F, qPrintable(QString::number(double(heard.peak))));
        QVERIFY2(qAbs(heard.hertz - 440) <= 2, qPrintable(QString::number(heard.hertz)));
        QCOMPARE(SoundMachine::hear(desk->readAllStandardOutput()).peak, 0.0F);
    }

    void choiceIsKeptAndReachesTheNextCallProcess()
    {
        QVERIFY(pressButton(m_pWindow.get(), "btnOnline"));
        QTRY_COMPARE_WITH_TIMEOUT(online(), QStringLiteral("Online"), cPatienceMs);
        const QString inForce = QStringLiteral("The call service was started with this choice.");
        QTRY_COMPARE_WITH_TIMEOUT(said("lblSoundNote"), inForce, cPatienceMs);
        choose(microphone(), QStringLiteral("USB"));
        choose(speaker(), QStringLiteral("Headset"));
        QCOMPARE(stored("/soundSetting/microphone"), QStringLiteral("usb"));
        QCOMPARE(stored("/soundSetting/speaker"), QStringLiteral("headset"));
        QVERIFY(said("lblSoundNote").startsWith(QStringLiteral("Takes effect when the call service starts")));
        const qint64 before = CallChannel::peer();
        QCOMPARE(CallChannel::variableOf(before, "PULSE_SINK"), QByteArray());
        QCOMPARE(::kill(pid_t(before), SIGKILL), 0);
        QTRY_VERIFY_WITH_TIMEOUT(CallChannel::peer() != 0 && CallChannel::peer() != before, cPatienceMs);
        QCOMPARE(CallChannel::variableOf(CallChannel::peer(), "PULSE_SINK"), QByteArray("headset"));
        QCOMPARE(CallChannel::variableOf(CallChannel::peer(), "PULSE_SOURCE"), QByteArray("usb"));
        QTRY_COMPARE_WITH_TIMEOUT(said("lblSoundNote"), inForce, cPatienceMs);
        // What such a process plays is heard there.
        const auto headset = SoundMachine::record(QStringLiteral("headset"));
        QTRY_VERIFY_WITH_TIMEOUT(headset->bytesAvailable() > 0, cPatienceMs);
        const auto player = SoundMachine::play();
        QByteArray heard;
        QTRY_VERIFY_WITH_TIMEOUT(SoundMachine::hear(heard += headset->readAllStandardOutput()).peak > 0.4F,
                                 cPatienceMs);
        for (QProcess *process : {headset.get(), player.get()}) {
            process->kill();
            process->waitForFinished(cPatienceMs);
        }
    }

    void choiceThatCannotBeWrittenChangesNothing()
    {
        const QString file = HostSettings::userFile();
        QVERIFY(QFile::rename(file, file + ".aside"));
        QVERIFY(QDir().mkdir(file));
        const QString before = speaker()->currentText();
        speaker()->setFocus();
        QTest::keyClick(speaker(), Qt::Key_Down);
        QCOMPARE(said("lblNotKept"), QStringLiteral("Nothing was changed: %1 cannot be written to.").arg(file));
        QCOMPARE(speaker()->currentText(), before);
        QVERIFY(!qEnvironmentVariableIsSet("PULSE_SINK"));
        QVERIFY(QDir().rmdir(file));
        QVERIFY(QFile::rename(file + ".aside", file));
    }

    void tabGoesDownThePage()
    {
        page().findChild<QTabBar *>()->setFocus();
        QStringList stops;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(page().focusWidget(), Qt::Key_Tab);
            stops.append(page().focusWidget()->objectName());
        }
        QCOMPARE(stops.mid(0, 4), (QStringList{"boxMicrophone", "boxSpeaker", "btnTone", "btnClose"}));
    }

    void keysChooseADevice()
    {
        speaker()->setFocus();
        QTest::keyClick(speaker(), Qt::Key_Down);
        QCOMPARE(stored("/soundSetting/speaker"), QStringLiteral("desk"));
        QTest::keyClick(speaker(), Qt::Key_Up);
        QCOMPARE(stored("/soundSetting/speaker"), QString());
    }

    void wheelOverThePageChoosesNothing()
    {
        const QPoint middle = speaker()->rect().center();
        QWheelEvent turn(middle, speaker()->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(speaker(), &turn);
        QCOMPARE(speaker()->currentIndex(), 0);
    }

    void deviceThatWentStaysInTheListAsMissing()
    {
        choose(speaker(), QStringLiteral("Headset"));
        QCOMPARE(qgetenv("PULSE_SINK"), QByteArray("headset"));
        QVERIFY(SoundMachine::plugOut());
        QTRY_COMPARE_WITH_TIMEOUT(speaker()->currentText(), QStringLiteral("Headset (not there)"), cPatienceMs);
        QVERIFY(said("lblSpeakerNote").startsWith(QStringLiteral("The chosen speaker is not there.")));
        QCOMPARE(stored("/soundSetting/speaker"), QStringLiteral("headset"));
        // A stream to it would fail.
        QVERIFY(!qEnvironmentVariableIsSet("PULSE_SINK"));
        QVERIFY(SoundMachine::plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(speaker()->currentText(), QStringLiteral("Headset"), cPatienceMs);
        QCOMPARE(qgetenv("PULSE_SINK"), QByteArray("headset"));
    }

    void nextStartWaitsUntilItIsKnownWhatIsThere()
    {
        m_session.sound().choose(SoundChoice::Speaker, {QStringLiteral("headset"), QStringLiteral("Headset")});
        m_session.sound().choose(SoundChoice::Microphone, {QStringLiteral("gone"), QStringLiteral("Gone")});
        SoundChoice next;
        QByteArray sink;
        QByteArray source("not yet");
        next.start([&] {
            sink = qgetenv("PULSE_SINK");
            source = qgetenv("PULSE_SOURCE");
        });
        QCOMPARE(source, QByteArray("not yet"));
        QTRY_COMPARE_WITH_TIMEOUT(source, QByteArray(), cPatienceMs);
        QCOMPARE(sink, QByteArray("headset"));
        QVERIFY(next.isMissing(SoundChoice::Microphone));
        QCOMPARE(next.chosen(SoundChoice::Microphone).shown, QStringLiteral("Gone"));
    }

    void whatTheClientWasStartedWithHoldsWhereNothingIsChosen()
    {
        qputenv("PULSE_SINK", "desk");
        SoundChoice next;
        bool bStarted = false;
        next.start([&] { bStarted = true; });
        QVERIFY(bStarted);
        QCOMPARE(qgetenv("PULSE_SINK"), QByteArray("desk"));
        next.choose(SoundChoice::Speaker, {QStringLiteral("headset"), QStringLiteral("Headset")});
        QCOMPARE(qgetenv("PULSE_SINK"), QByteArray("headset"));
        next.choose(SoundChoice::Speaker, {});
        QCOMPARE(qgetenv("PULSE_SINK"), QByteArray("desk"));
        qunsetenv("PULSE_SINK");
    }

    void silentServerIsToldAndHoldsUpNothing()
    {
        m_machine.freeze();
        SoundChoice silent;
        SoundPane pane(silent, m_session.callService());
        pane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pane, cPatienceMs));
        QTRY_VERIFY_WITH_TIMEOUT(
            WindowProbe::text(&pane, "lblServer").startsWith(QStringLiteral("The sound server does not answer.")),
            cPatienceMs);
        QVERIFY(pressButton(&pane, "btnTone"));
        QTRY_COMPARE_WITH_TIMEOUT(WindowProbe::text(&pane, "lblSpeakerNote"),
                                  QStringLiteral("The tone could not be played."), cPatienceMs);
        QCOMPARE(silent.devices().state(), SoundDevices::Silent);
        bool bStarted = false;
        silent.start([&] { bStarted = true; });
        QVERIFY(bStarted);
        m_machine.goOn();
        QTRY_VERIFY_WITH_TIMEOUT(!WindowProbe::isShown(&pane, "lblServer"), cPatienceMs);
        QCOMPARE(pane.findChild<QComboBox *>(QStringLiteral("boxSpeaker"))->count(), 4);
    }

    void serverThatStallsWhileItIsHeardIsTold()
    {
        choose(microphone(), QStringLiteral("USB"));
        const auto voice = SoundMachine::speak();
        QTRY_COMPARE_WITH_TIMEOUT(level(), 90, cPatienceMs);
        m_machine.freeze();
        QTRY_VERIFY_WITH_TIMEOUT(said("lblServer").startsWith(QStringLiteral("The sound server does not answer.")),
                                 cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(level(), 0, cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(said("lblMicrophoneNote"), QString(), cPatienceMs);
        m_machine.goOn();
        QTRY_VERIFY_WITH_TIMEOUT(!WindowProbe::isShown(&page(), "lblServer"), cPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(level(), 90, cPatienceMs);
        QVERIFY(said("lblMicrophoneNote").startsWith(QStringLiteral("Speak:")));
        voice->kill();
        voice->waitForFinished(cPatienceMs);
    }

    /// The last one: it ends the server.
    void serverThatGoesAndComesBackIsFound()
    {
        m_machine.stop();
        QTRY_VERIFY_WITH_TIMEOUT(said("lblServer").startsWith(QStringLiteral("There is no sound server")), cPatienceMs);
        QVERIFY(m_machine.start());
        QTRY_VERIFY_WITH_TIMEOUT(!WindowProbe::isShown(&page(), "lblServer"), cPatienceMs);
        choose(microphone(), QStringLiteral("USB"));
        const auto voice = SoundMachine::speak();
        QTRY_COMPARE_WITH_TIMEOUT(level(), 90, cPatienceMs);
        voice->kill();
        voice->waitForFinished(cPatienceMs);
    }

private:
    SettingsPage &page() { return m_pWindow->settingsPage(); }
    QComboBox *microphone() { return page().findChild<QComboBox *>(QStringLiteral("boxMicrophone")); }
    QComboBox *speaker() { return page().findChild<QComboBox *>(QStringLiteral("boxSpeaker")); }
    int level() { return page().findChild<QProgressBar *>()->value(); }
    QString said(const char *strLabel) { return WindowProbe::text(&page(), strLabel); }
    QString online() const { return WindowProbe::text(m_pWindow.get(), "btnOnline"); }
    static QStringList rows(const QComboBox *box)
    {
        QStringList texts;
        for (int row = 0; row < box->count(); ++row) {
            texts.append(box->itemText(row));
        }
        return texts;
    }
    static QString stored(const char *strKey)
    {
        return SettingsFile::read(HostSettings::userFile(), QLatin1String(strKey));
    }
    void clickButton(const char *strName)
    {
        const WindowProbe::Spot spot = WindowProbe::button(&page(), strName);
        QVERIFY(spot.widget != nullptr);
        QVERIFY(Deeds::clickOn(*spot.widget, spot.place));
        QTest::qWait(200);
    }
    /// With the real mouse: opens the list, and takes the row of that text.
    static void choose(QComboBox *box, const QString &strText)
    {
        int looks = 0;
        Deeds deeds({[box, strText, looks]() mutable {
            if (box->currentText() == strText && !box->view()->isVisible()) {
                return true;
            }
            if (looks++ % 25 == 0) {
                const QModelIndex row = box->model()->index(box->findText(strText), 0);
                const QAbstractItemView *view = box->view();
                if (view->isVisible()) {
                    Deeds::clickOn(*view->viewport(), view->visualRect(row).center());
                } else {
                    Deeds::clickOn(*box, box->rect().center());
                }
            }
            return false;
        }});
        QVERIFY(deeds.finish());
    }

    const TraceFolder m_traces;
    SoundMachine m_machine;
    ContactBook m_book{HostSession::loginDomain()};
    HostSession m_session{m_book};
    std::unique_ptr<MainWindow> m_pWindow;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_SoundSettings, Widgets)
#include "tst_SoundSettings.moc"
