#include "soak/SoakClient.h"

#include "common/CLogManger.h"
#include "common/CustomLogger.h"
#include "fakes/ClickTarget.h"
#include "model/MemberRoles.h"
#include "soak/FastClock.h"
#include "store/DB.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QPixmapCache>
#include <QSqlQuery>
#include <QtTest>

#include <atomic>
#include <cstdio>

namespace {

constexpr std::int64_t cPatienceMs = 30000;
constexpr std::int64_t cRestMs = 500;
constexpr int cHeartbeatMs = 100;
// How much faster the day's clock runs while nothing is waited for: an hour takes nine seconds then.
constexpr int cIdlePace = 400;

// The call process's answer to a registration reaches the debug channel.
std::atomic<int> s_registrations{0};

void watchDebugChannel(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (text.startsWith(QLatin1String("voipsdk:registered "))) {
        ++s_registrations;
    }
    if (type != QtDebugMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

QString traceFile()
{
    // By this name the call process is found again; what is written there goes nowhere.
    QString file = QDir::current().filePath(QStringLiteral("wire.trace"));
    QFile::link(QStringLiteral("/dev/null"), file);
    return file;
}

} // namespace

SoakClient::SoakClient(int speed)
    : m_book(HostSession::loginDomain()), m_process(traceFile()), m_session(m_book),
      m_connectedText(QStringLiteral("已接通"))
{
    qputenv("VOIPSDK_TRACE", QFile::encodeName(QDir::current().filePath(QStringLiteral("wire.trace"))));
    qputenv("VOIPSDK_SPEED", QByteArray::number(speed));
    // Ring and pictures are found relative to the working directory.
    QFile::link(QCoreApplication::applicationDirPath() + QStringLiteral("/Resources"), QStringLiteral("Resources"));
    qInstallMessageHandler(watchDebugChannel);

    // Whether the plug-in finds a call process again is asked here; the client itself starts none.
    m_session.callService().setPauses({});
    m_session.mailbox().installEventFilter(&undeleted);
    m_session.mailbox().setMemberPicker([](const QStringList &) { return QStringList{QStringLiteral("30010005")}; });
    QObject::connect(&m_session.mailbox(), &HostMailbox::callIncoming, [this] { ++m_incoming; });
    QObject::connect(&m_session.mailbox(), &HostMailbox::callFinished, [this](const CallRecord &record) {
        ++m_finished;
        m_record = record;
    });
    // Lets a wait look again while nothing happens.
    m_heartbeat.start(cHeartbeatMs);
}

SoakClient::~SoakClient()
{
    m_session.quit();
    const std::int64_t start = FastClock::realMs();
    while (!m_process.pids().isEmpty() && FastClock::realMs() < start + cPatienceMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    m_process.kill();
    qInstallMessageHandler(nullptr);
}

void SoakClient::start()
{
    QString error;
    if (!m_session.start(QStringLiteral(VOIP_MODULE), &error)) {
        throw SoakFailure(error);
    }
    if (!m_session.store().isOpen()) {
        throw SoakFailure(m_session.store().reports().join(QLatin1Char(' ')));
    }
    m_session.setOnline(true);
    waitForRegistration(0);
}

void SoakClient::waitFor(const QString &what, const std::function<bool()> &holds)
{
    const std::int64_t start = FastClock::realMs();
    while (!holds()) {
        if (FastClock::realMs() > start + cPatienceMs) {
            throw SoakFailure(QStringLiteral("waited in vain for: ") + what);
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Without a running event loop nothing else does it.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void SoakClient::pass(qint64 seconds)
{
    FastClock::pace(cIdlePace);
    const QDeadlineTimer over(seconds * 1000);
    while (!over.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    FastClock::pace(workPace);
}

void SoakClient::call(const QString &uid, bool video)
{
    m_session.callUser(uid, video);
    QCoreApplication::sendPostedEvents();
    waitFor(QStringLiteral("a call"), [this] { return m_session.isExistCall(); });
}

void SoakClient::callConference(const QStringList &uids)
{
    m_session.callConference({uids, QStringLiteral("weekly meeting"), true});
    QCoreApplication::sendPostedEvents();
    waitFor(QStringLiteral("a conference"), [this] { return m_session.isExistCall(); });
}

void SoakClient::letCallBack(const QString &uid)
{
    constexpr int rejected = 26;
    const int before = m_incoming;
    call(uid);
    while (finished().result != rejected) {
        ++givenUp;
        waitForSilence();
        call(uid);
    }
    waitFor(uid + QStringLiteral(" to call"), [&] { return m_incoming > before; });
}

void SoakClient::answer(bool accept)
{
    m_session.answerCall(accept);
}

CallRecord SoakClient::finished()
{
    waitFor(QStringLiteral("a call's end"), [this] { return m_finished > m_finishedSeen; });
    ++m_finishedSeen;
    return m_record;
}

void SoakClient::waitForNoCall()
{
    waitFor(QStringLiteral("the end of every call"), [this] { return !m_session.isExistCall(); });
}

bool SoakClient::waitForConnection()
{
    const auto *status = window("CVoipWidget")->findChild<QLabel *>(QStringLiteral("lblStatus"));
    waitFor(QStringLiteral("the connection"),
            [&] { return status->text() == m_connectedText || !m_session.isExistCall(); });
    return m_session.isExistCall();
}

void SoakClient::waitForStatus(const QString &uid)
{
    waitFor(QStringLiteral("a status of ") + uid,
            [&] { return statusOf(uid) != ConferenceCalling || !m_session.isExistCall(); });
}

void SoakClient::waitForStatus(const QString &uid, int status)
{
    waitFor(QStringLiteral("status %1 of %2").arg(status).arg(uid),
            [&] { return statusOf(uid) == status || !m_session.isExistCall(); });
}

int SoakClient::registrations() const
{
    return s_registrations;
}

void SoakClient::waitForRegistration(int before)
{
    waitFor(QStringLiteral("the registration"), [&] { return s_registrations > before; });
}

void SoakClient::waitForSilence()
{
    const int before = registrations();
    m_session.setOnline(true);
    waitForRegistration(before);
}

int SoakClient::statusOf(const QString &uid) const
{
    const auto *list = window("CVoipWidget")->findChild<QListView *>(QStringLiteral("listView"));
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QModelIndex index = list->model()->index(row, 0);
        if (index.data(ROLE_USER_ID).toString() == uid) {
            return index.data(ROLE_CALL_STATUS).toInt();
        }
    }
    // Not among the members yet, or not yet called.
    return ConferenceCalling;
}

QWidget *SoakClient::window(const char *className) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        if (widget->inherits(className)) {
            return widget;
        }
    }
    return nullptr;
}

void SoakClient::click(const char *name)
{
    QTest::mouseClick(clickTarget(window("CVoipWidget")->findChild<QWidget *>(QLatin1String(name))), Qt::LeftButton);
}

void SoakClient::closeWindow()
{
    window("CVoipWidget")->close();
}

void SoakClient::visitCentre()
{
    m_session.showConferenceCentre();
    waitFor(QStringLiteral("the conference centre"), [this] { return window("CVoiceConferenceWidget") != nullptr; });
    auto *list = window("CVoiceConferenceWidget")->findChild<QListView *>(QStringLiteral("listView"));
    list->viewport()->grab();
    QTest::mouseMove(list->viewport(), list->visualRect(list->model()->index(0, 0)).center());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(list, &leave);
    window("CVoiceConferenceWidget")->close();
    waitFor(QStringLiteral("the centre's end"), [this] { return window("CVoiceConferenceWidget") == nullptr; });
}

void SoakClient::killCallProcess()
{
    m_process.kill();
    waitFor(QStringLiteral("the call process's end"), [this] { return m_process.pids().isEmpty(); });
}

void SoakClient::startCallProcess()
{
    if (!m_process.start()) {
        throw SoakFailure(QStringLiteral("the call process does not start"));
    }
}

void SoakClient::drainLog()
{
    // The queue is in order: what is asked for is written once its last record is.
    static int s_mark = 0;
    const QString mark = QStringLiteral("soak mark %1").arg(++s_mark);
    std::int64_t asked = 0;
    waitFor(QStringLiteral("the log thread"), [&] {
        // Once is not enough: the file may roll over just behind the mark.
        if (FastClock::realMs() > asked + 1000) {
            asked = FastClock::realMs();
            CLogManger::instance()->printLog(CustomLog::Info, LOG_LOCATION, mark);
        }
        CLogManger::instance()->flushLog();
        constexpr qint64 tail = 2048;
        QFile log(m_session.logFile());
        return log.open(QIODevice::ReadOnly) && log.seek(qMax<qint64>(0, log.size() - tail)) &&
               log.readAll().contains(mark.toUtf8());
    });
}

void SoakClient::settle()
{
    waitForNoCall();
    waitForSilence();
    drainLog();
    // Qt ends some of its own work, and the timers of it, a little later.
    const std::int64_t start = FastClock::realMs();
    waitFor(QStringLiteral("rest"), [&] { return FastClock::realMs() > start + cRestMs; });
    QPixmapCache::clear();
    QSqlQuery(DB::getDB()).exec(QStringLiteral("PRAGMA shrink_memory"));
    undeleted.take();
}
