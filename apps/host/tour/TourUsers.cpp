#include "tour/TourUsers.h"

#include "panes/MainWindow.h"
#include "tour/TourCast.h"
#include "tour/TourScript.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <memory>

using namespace TourCast;

namespace {

/// Another client, as a process of its own, with what its call process writes.
class OtherClient
{
public:
    OtherClient()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        m_strTrace = QString::fromLocal8Bit(qgetenv("VOIPSDK_TRACE")) + QStringLiteral(".other");
        QFile::remove(m_strTrace);
        environment.insert(QStringLiteral("VOIPSDK_TRACE"), m_strTrace);
        m_process.setProcessEnvironment(environment);
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
    }
    ~OtherClient()
    {
        // A tour that was cut short.
        m_process.terminate();
        m_process.waitForFinished(cLeaveMs);
    }
    OtherClient(const OtherClient &) = delete;
    OtherClient &operator=(const OtherClient &) = delete;

    bool start(const QStringList &arguments)
    {
        m_process.start(QCoreApplication::applicationFilePath(), arguments);
        return m_process.waitForStarted();
    }
    bool terminate()
    {
        m_process.terminate();
        return true;
    }
    bool hasEnded(int iExitCode) const
    {
        return m_process.state() == QProcess::NotRunning && m_process.exitStatus() == QProcess::NormalExit &&
               m_process.exitCode() == iExitCode;
    }
    bool hasTraced(const QByteArray &words) const
    {
        QFile trace(m_strTrace);
        return trace.open(QIODevice::ReadOnly) && trace.readAll().contains(words);
    }

private:
    static constexpr int cLeaveMs = 5000;

    QProcess m_process;
    QString m_strTrace;
};

} // namespace

QList<TourStep> userSteps(const TourStage &stage)
{
    const auto other = std::make_shared<OtherClient>();
    const TourScript s(stage);
    const auto isActive = [window = &stage.window] { return window->isActiveWindow(); };
    return {
        {u("Sign in as 李雷 too, by a client beside this one"),
         [other] {
             return other->start({u("--user"), QLatin1String(answers)});
         },
         {{u("a call process of its own has registered 李雷"),
           [other] {
               return other->hasTraced(QByteArray("\"param1\":\"") + answers) && other->hasTraced("\"resultCode\":17");
           }},
          {u("its window has come up"), [isActive] { return !isActive(); }},
          s.mainSays("btnOnline", u("Online")),
          s.processes(1)},
         cUsualLimitMs,
         u("second-user"),
         {}},
        {u("End that client"),
         [other] { return other->terminate(); },
         {{u("it has ended"), [other] { return other->hasEnded(130); }},
          {u("its call process has ended with it"), [other] { return other->hasTraced("stopped listening"); }},
          s.processes(1)}},
        {u("Start a client of this user once more"),
         [other, window = &stage.window] {
             window->showMinimized();
             return other->start({});
         },
         {{u("it has ended at once"), [other] { return other->hasEnded(0); }},
          {u("this window has come to the front"),
           [isActive, window = &stage.window] { return isActive() && !window->isMinimized(); }}}},
    };
}
