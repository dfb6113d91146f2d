#include "flow/ScenarioRun.h"

#include "fakes/ClickTarget.h"
#include "fakes/Patience.h"
#include "model/MemberRoles.h"
#include "plugin/PluginIds.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConferenceListView.h"
#include "ui/VoipWidget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QtTest>

#include <csignal>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace {

constexpr int cWhole = -1;

bool patiently(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, cPatienceMs);
}

/// A folder below the test's own temporary directory, as that was before any run took its place.
QString folderTemplate()
{
    static const QString s_temporary = QDir::tempPath();
    return s_temporary + QStringLiteral("/XXXXXX");
}

QString scenarioFile(const QString &strName)
{
    return ScenarioRun::folder() + '/' + strName + ".scn";
}

/// The engine starts the call process with this process's environment; returns the trace's path.
QString prepare(const QString &strScenario, const QTemporaryDir &folder)
{
    // A detached process comes back to this one as its child, so that its exit code can be seen.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    QString trace = folder.filePath(QStringLiteral("trace"));
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    qputenv("VOIPSDK_TRACE", QFile::encodeName(trace));
    qputenv("VOIPSDK_SCENARIO", QFile::encodeName(strScenario));
    qputenv("VOIPSDK_SPEED", "20");
    return trace;
}

/// Whether the line does something that the far side can see.
bool isPlayable(const QByteArray &line)
{
    const QByteArray word = line.left(line.indexOf(' '));
    return !word.isEmpty() && !word.startsWith('#') && word != "ignore" && word != "timeout" && word != "die";
}

/// The scenario's text up to its statement `iStatements`. How many there are at most goes into `pCount`.
QByteArray beginning(const QString &strName, int iStatements, int *pCount = nullptr)
{
    QFile file(scenarioFile(strName));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no scenario %s", qPrintable(strName));
    }
    QByteArray text;
    int count = 0;
    int depth = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        const QByteArray words = line.trimmed();
        const bool inBlock = depth > 0;
        depth += words.endsWith('{') ? 1 : words == "}" ? -1 : 0;
        if (!inBlock && isPlayable(words)) {
            ++count;
        }
        if (count <= iStatements && words != "die") {
            text += line;
        }
    }
    if (pCount) {
        *pCount = count;
    }
    return text;
}

QString cutScenario(const QString &strName, int iStatements, const QTemporaryDir &folder)
{
    QString path = folder.filePath(QStringLiteral("scenario"));
    QFile file(path);
    const QByteArray text = beginning(strName, iStatements);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("no place for a scenario");
    }
    return path;
}

} // namespace

ScenarioRun::ScenarioRun(const QString &strName) : ScenarioRun(strName, cWhole) {}

ScenarioRun::ScenarioRun(const QString &strName, int iStatements)
    : m_folder(folderTemplate()), m_bCut(iStatements != cWhole),
      trace(prepare(m_bCut ? cutScenario(strName, iStatements, m_folder) : scenarioFile(strName), m_folder)),
      engine(EngineFixture::RealCallProcess)
{
    engine.whileHandled = [this](BaseEvent &event) {
        if (event.msgId == MSG_CLOSE_AV_MSGBOX) {
            membersAtEnd = engine.members();
        }
    };
}

ScenarioRun::~ScenarioRun()
{
    if (trace.processId() == 0 || reap()) {
        return;
    }
    ::kill(static_cast<pid_t>(trace.processId()), SIGKILL);
    patiently([this] { return reap(); });
}

QString ScenarioRun::folder()
{
    return QStringLiteral(VOIP_SCENARIOS);
}

QStringList ScenarioRun::names()
{
    QStringList names = QDir(folder()).entryList({QStringLiteral("*.scn")}, QDir::Files, QDir::Name);
    for (QString &name : names) {
        name.chop(4);
    }
    // Without the ending they stand in another order.
    names.sort();
    return names;
}

int ScenarioRun::statements(const QString &strName)
{
    int count = 0;
    beginning(strName, 0, &count);
    return count;
}

QByteArray ScenarioRun::deliver(EMsgId id, const QByteArray &payload)
{
    BaseEvent event(id, sessionPluginId(), voipPluginId(), false, payload);
    QCoreApplication::sendEvent(VoipManageMessageProcess::instance(), &event);
    return event.data;
}

bool ScenarioRun::waitFor(const std::function<bool()> &condition) const
{
    return patiently([&] { return condition() || (m_bCut && isPlayed()); });
}

bool ScenarioRun::connectChannel()
{
    return patiently([this] {
        if (!engine.manager->m_bSocketConnected) {
            engine.manager->slot_ReConnectVoipSDK();
        }
        return engine.manager->m_bSocketConnected;
    });
}

bool ScenarioRun::hasReadAll() const
{
    const QLocalSocket *socket = engine.manager->m_pVoipSocket;
    int unread = 0;
    return socket->bytesAvailable() == 0 &&
           (socket->socketDescriptor() < 0 ||
            ::ioctl(static_cast<int>(socket->socketDescriptor()), FIONREAD, &unread) != 0 || unread == 0);
}

bool ScenarioRun::killCallProcess()
{
    const auto id = static_cast<pid_t>(trace.processId());
    if (id == 0 || !patiently([this] { return hasReadAll(); }) || ::kill(id, SIGKILL) != 0) {
        return false;
    }
    return patiently([this] { return reap() && !engine.manager->m_bSocketConnected; });
}

bool ScenarioRun::startAnother(const QString &strName)
{
    trace = CallTrace(m_folder.filePath(QStringLiteral("trace-of-another")));
    m_bCut = false;
    m_iReaped = 0;
    m_iExitCode = -1;
    qputenv("VOIPSDK_TRACE", QFile::encodeName(trace.file()));
    qputenv("VOIPSDK_SCENARIO", QFile::encodeName(scenarioFile(strName)));
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/VoipSDK/Contents/MacOS/VoipSDK");
    return QProcess::startDetached(program, {}) && patiently([this] { return trace.processId() != 0; });
}

bool ScenarioRun::press(const char *button)
{
    auto *found = engine.manager->m_pVoipWidget->findChild<QWidget *>(QLatin1String(button));
    if (!found || !found->isVisible()) {
        return false;
    }
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
    if (place.isNull()) {
        return false;
    }
    QTest::mouseClick(rows, Qt::LeftButton, Qt::NoModifier, place.center());
    return true;
}

bool ScenarioRun::doubleClickMember(const QString &strUid)
{
    const auto *list = engine.manager->m_pVoipWidget->findChild<CConferenceListView *>();
    const QModelIndex index = memberIndex(strUid);
    if (!index.isValid()) {
        return false;
    }
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
    if (!patiently([this] { return isOver(); })) {
        return -1;
    }
    command(MSG_EXIT_VOIP);
    patiently([this] { return reap(); });
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
