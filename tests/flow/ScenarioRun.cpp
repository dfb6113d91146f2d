#include "flow/ScenarioRun.h"

#include "fakes/ClickTarget.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConferenceListView.h"
#include "ui/MemberRoles.h"
#include "ui/VoipWidget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace {

constexpr int kPatienceMs = 15000;

/// A folder below the test's own temporary directory, as that was before any run took its place.
QString folderTemplate()
{
    static const QString s_temporary = QDir::tempPath();
    return s_temporary + QStringLiteral("/XXXXXX");
}

/// The engine starts the call process with this process's environment; returns the trace's path.
QString prepare(const QString &strName, const QTemporaryDir &folder)
{
    // A detached process comes back to this one as its child, so that its exit code can be seen.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    const QString trace = folder.filePath(QStringLiteral("trace"));
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    qputenv("VOIPSDK_TRACE", QFile::encodeName(trace));
    qputenv("VOIPSDK_SCENARIO", QFile::encodeName(ScenarioRun::folder() + '/' + strName + ".scn"));
    qputenv("VOIPSDK_SPEED", "20");
    return trace;
}

} // namespace

ScenarioRun::ScenarioRun(const QString &strName)
    : m_folder(folderTemplate()), trace(prepare(strName, m_folder)), engine(EngineFixture::RealCallProcess)
{
    engine.whileHandled = [this](BaseEvent &event) {
        if (event.msgId == MSG_CLOSE_AV_MSGBOX)
            membersAtEnd = engine.members();
    };
}

ScenarioRun::~ScenarioRun()
{
    if (trace.processId() == 0 || reap())
        return;
    ::kill(static_cast<pid_t>(trace.processId()), SIGKILL);
    waitFor([this] { return reap(); });
}

QString ScenarioRun::folder()
{
    return QStringLiteral(VOIP_SCENARIOS);
}

QStringList ScenarioRun::names()
{
    QStringList names = QDir(folder()).entryList({QStringLiteral("*.scn")}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(4);
    // Without the ending they stand in another order.
    names.sort();
    return names;
}

QByteArray ScenarioRun::deliver(EMsgId id, const QByteArray &payload)
{
    BaseEvent event(id, sessionPluginId(), voipPluginId(), false, payload);
    QCoreApplication::sendEvent(VoipManageMessageProcess::instance(), &event);
    return event.data;
}

bool ScenarioRun::waitFor(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, kPatienceMs);
}

bool ScenarioRun::connectChannel()
{
    return waitFor([this] {
        if (!engine.manager->m_bSocketConnected)
            engine.manager->slot_ReConnectVoipSDK();
        return engine.manager->m_bSocketConnected;
    });
}

bool ScenarioRun::press(const char *button)
{
    auto *found = engine.manager->m_pVoipWidget->findChild<QWidget *>(QLatin1String(button));
    if (!found || !found->isVisible())
        return false;
    QTest::mouseClick(clickTarget(found), Qt::LeftButton);
    return true;
}

QModelIndex ScenarioRun::memberIndex(const QString &strUid) const
{
    const auto *list = engine.manager->m_pVoipWidget->findChild<CConferenceListView *>();
    return list->model()->match(list->model()->index(0, 0), ROLE_USER_ID, strUid).value(0);
}

bool ScenarioRun::clickMember(const QString &strUid, int rectRole)
{
    QWidget *rows = engine.manager->m_pVoipWidget->findChild<CConferenceListView *>()->viewport();
    // The rectangles are those of the latest painting.
    rows->grab();
    const QRect place = memberIndex(strUid).data(rectRole).toRect();
    if (place.isNull())
        return false;
    QTest::mouseClick(rows, Qt::LeftButton, Qt::NoModifier, place.center());
    return true;
}

bool ScenarioRun::doubleClickMember(const QString &strUid)
{
    const auto *list = engine.manager->m_pVoipWidget->findChild<CConferenceListView *>();
    const QModelIndex index = memberIndex(strUid);
    if (!index.isValid())
        return false;
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualRect(index).center());
    return true;
}

bool ScenarioRun::isOver() const
{
    const QList<QByteArray> events = trace.texts('=');
    return events.contains("scenario played") || events.contains("died") || !complaints().isEmpty();
}

int ScenarioRun::finish()
{
    if (!waitFor([this] { return isOver(); }))
        return -1;
    command(MSG_EXIT_VOIP);
    waitFor([this] { return reap(); });
    return m_iExitCode;
}

/// True once the call process has ended and its exit code is known.
bool ScenarioRun::reap()
{
    int status = 0;
    const auto id = static_cast<pid_t>(trace.processId());
    if (m_iReaped == 0 && id != 0 && ::waitpid(id, &status, WNOHANG) == id) {
        m_iReaped = id;
        m_iExitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    return m_iReaped != 0;
}
