#include "flow/FlowClient.h"

#include "fakes/ClickTarget.h"
#include "fakes/Patience.h"
#include "plugin/PluginIds.h"
#include "plugin/PluginInterface.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTimer>
#include <QtTest>

#include <csignal>

FlowClient::FlowClient(const QByteArray &speed, const QString &strUid, const QString &strRegValue)
    : m_trace(QDir::current().filePath(QStringLiteral("wire.trace")))
{
    // The plug-in starts the call process with this environment, and rings with a file under the working directory.
    qputenv("VOIPSDK_TRACE", QFile::encodeName(m_trace.file()));
    qputenv("VOIPSDK_SPEED", speed);
    QFile::link(QCoreApplication::applicationDirPath() + QStringLiteral("/Resources"), QStringLiteral("Resources"));

    m_login.m_strDomain = QStringLiteral("example.org");
    m_login.m_strUid = strUid;
    m_login.m_strRegValue = strRegValue;
    m_data.setLoginData(&m_login);
    FriendData me(strUid + QStringLiteral("@example.org"));
    me.m_vcardInfo.m_strNickName = QStringLiteral("自己");
    host.setRecord(me.m_strJid, me);
}

bool FlowClient::load()
{
    m_loader.setFileName(QStringLiteral(VOIP_MODULE));
    m_pPlugin = qobject_cast<PluginInterface *>(m_loader.instance());
    if (!m_pPlugin) {
        qWarning("%s", qPrintable(m_loader.errorString()));
        return false;
    }
    m_pPlugin->setCommonData(&m_data);
    m_pPlugin->setSendEventHandle(&host);
    return true;
}

QByteArray FlowClient::deliver(EMsgId id, const QByteArray &payload)
{
    BaseEvent event(id, sessionPluginId(), voipPluginId(), false, payload);
    QCoreApplication::sendEvent(m_pPlugin->getReceiveEventHandle(), &event);
    return event.data;
}

bool FlowClient::ask(EMsgId id)
{
    return PayloadReader(command(id)).take<bool>();
}

bool FlowClient::goOnline()
{
    const int before = countOnWire(QStringLiteral("RegeditUser"));
    command(MSG_CLIENT_CONNECT_STATUS, true);
    return QTest::qWaitFor([&] { return countOnWire(QStringLiteral("RegeditUser")) > before; }, cPatienceMs);
}

QStringList FlowClient::commandsOnWire() const
{
    return m_trace.commandNames();
}

int FlowClient::countOnWire(const QString &name) const
{
    return commandsOnWire().count(name);
}

QList<int> FlowClient::codesOnWire() const
{
    return m_trace.codes();
}

qint64 FlowClient::callProcessId() const
{
    return m_trace.processId();
}

bool FlowClient::callProcessLives() const
{
    const qint64 id = callProcessId();
    if (id == 0) {
        return false;
    }
    // One that was killed may stand in the table until its parent, or init, has looked after it.
    QFile status(QStringLiteral("/proc/%1/stat").arg(id));
    return status.open(QIODevice::ReadOnly) && !status.readAll().contains(") Z ");
}

bool FlowClient::killCallProcess()
{
    ::kill(static_cast<pid_t>(callProcessId()), SIGKILL);
    return QTest::qWaitFor([this] { return !callProcessLives(); }, cPatienceMs);
}

bool FlowClient::startCallProcess()
{
    const qint64 before = callProcessId();
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/VoipSDK/Contents/MacOS/VoipSDK");
    return QProcess::startDetached(program, {}) &&
           QTest::qWaitFor([&] { return callProcessId() != before; }, cPatienceMs);
}

QWidget *FlowClient::callWindow() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("CVoipWidget")) {
            return window;
        }
    }
    return nullptr;
}

QString FlowClient::callWindowText(const char *label) const
{
    const auto *found = callWindow()->findChild<QLabel *>(QLatin1String(label));
    return found ? found->text() : QString();
}

QWidget *FlowClient::callWindowButton(const char *name) const
{
    return clickTarget(callWindow()->findChild<QWidget *>(QLatin1String(name)));
}

void FlowClient::expectMessage()
{
    messageText.clear();
    auto *timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer] {
        QWidget *box = QApplication::activeModalWidget();
        if (!box) {
            return;
        }
        timer->deleteLater();
        messageText = box->findChild<QLabel *>(QStringLiteral("msgLabel"))->text();
        QTest::mouseClick(clickTarget(box->findChild<QWidget *>(QStringLiteral("closeBtn"))), Qt::LeftButton);
    });
    timer->start(10);
}

CallRecord::CallRecord(const ReceivedEvent &event)
{
    PayloadReader reader(event.payload);
    bIsVideo = reader.take<bool>();
    strUserId = reader.take<QString>();
    iResult = reader.take<int>();
    bIsCaller = reader.take<bool>();
    bIsConnected = reader.take<bool>();
    iSeconds = reader.take<qint64>();
}
