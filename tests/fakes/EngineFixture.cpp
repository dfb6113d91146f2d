#include "fakes/EngineFixture.h"

#include "fakes/QtMessages.h"
#include "model/MemberRoles.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConferenceListView.h"
#include "ui/VoipWidget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSound>

namespace {

// The ring is found by its path below the working directory.
void provideRing()
{
    const QString ring = QStringLiteral("Resources/Audio/ring.wav");
    if (QFile::exists(ring)) {
        return;
    }
    if (!QDir().mkpath(QStringLiteral("Resources/Audio")) || !QFile::copy(QStringLiteral(VOIP_RING_FILE), ring)) {
        qFatal("the ring could not be provided");
    }
}

QString word(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

EngineFixture::EngineFixture(Start start) : m_start(start)
{
    provideRing();
    login.m_strUid = QStringLiteral("me");
    login.m_strDomain = QStringLiteral("kelvar.im");
    login.m_strRegValue = QStringLiteral("ticket");
    context.setLoginData(&login);
    context.setSystemSetData(&settings);
    given.emplace(context);

    host.whileHandled = [this](BaseEvent &event) {
        noteEvent(event);
        if (whileHandled) {
            whileHandled(event);
        }
    };
    VoipManageMessageProcess::instance()->setSendEvent(&host);

    if (start != WithCallProcess) {
        process.close();
    }
    const QtMessages messages;
    manager = std::make_unique<VoipManageProbe>();
    manager->use();
    startWarnings = messages.warnings;
}

EngineFixture::~EngineFixture()
{
    // The far end goes first, so that the engine's own end meets no reader.
    process.close();
    manager.reset();
    VoipManageMessageProcess::instance()->setSendEvent(nullptr);
    given.reset();
}

void EngineFixture::createConference()
{
    manager->m_strUserId = login.m_strUid;
    manager->callConference({QStringLiteral("anna"), QStringLiteral("bert")}, false, QString());
    notify(Code::ConfCreated, QStringLiteral(R"({"result":{"confId":"c1"}})"));
    takeJournal();
    deliverPosted();
    host.events.clear();
}

QString EngineFixture::callText() const
{
    const CallData &call = manager->m_callData;
    return QStringList{QString::number(call.bIsConf),
                       QString::number(call.bIsVideo),
                       QString::number(call.bIsCaller),
                       QString::number(call.bIsConnected),
                       call.memberList.join('+'),
                       call.connectedList.join('+'),
                       call.peerId,
                       call.confId,
                       call.connectTime.toString(Qt::ISODateWithMs),
                       call.createTime.toString(Qt::ISODateWithMs)}
        .join('|');
}

void EngineFixture::noteEvent(const BaseEvent &event)
{
    PayloadReader reader(event.data);
    QStringList words{QString::number(event.msgId)};
    switch (event.msgId) {
    case MSG_RECEVIE_VOIP_CALL:
        words << reader.take<QString>();
        words << word(reader.take<bool>());
        words << word(reader.take<bool>());
        break;
    case MSG_CLOSE_AV_MSGBOX:
        words << reader.take<QString>();
        break;
    case MSG_CALL_FINISHED:
        words << word(reader.take<bool>());
        words << reader.take<QString>();
        words << QString::number(reader.take<int>());
        words << word(reader.take<bool>());
        words << word(reader.take<bool>());
        break;
    default:
        return;
    }
    if (manager) {
        m_journal += takeLines();
    }
    m_journal += words.join(' ');
}

QStringList EngineFixture::takeLines()
{
    return m_start == RealCallProcess ? QStringList() : process.takeLines(manager->m_pVoipSocket);
}

QStringList EngineFixture::takeJournal()
{
    m_journal += takeLines();
    return std::exchange(m_journal, QStringList());
}

QString EngineFixture::state() const
{
    const CallData &call = manager->m_callData;
    const QStringList others = call.peerId.isEmpty() ? call.memberList : QStringList(call.peerId);
    QStringList parts;
    if (others.isEmpty()) {
        parts << QStringLiteral("idle");
    } else if (call.bIsConnected) {
        parts << "connected " + others.join('+');
    } else {
        parts << (call.bIsCaller ? "outgoing " : "incoming ") + others.join('+');
    }
    if (manager->m_inviteTimer.isActive()) {
        parts << QStringLiteral("invite");
    }
    if (manager->m_recevieTimer.isActive()) {
        parts << QStringLiteral("receive");
    }
    if (!manager->m_pRingSound->isFinished()) {
        parts << QStringLiteral("ring");
    }
    return parts.join(QStringLiteral(", "));
}

QStringList EngineFixture::members() const
{
    const QAbstractItemModel *rows = manager->m_pVoipWidget->findChild<CConferenceListView *>()->model();
    QStringList shown;
    for (int row = 0; row < rows->rowCount(); ++row) {
        const QModelIndex index = rows->index(row, 0);
        shown << index.data(ROLE_USER_ID).toString() + ' ' + index.data(ROLE_CALL_STATUS).toString() +
                     (index.data(ROLE_IS_CREATOR).toBool() ? "*" : "");
    }
    return shown;
}

qint64 EngineFixture::lastSeconds() const
{
    const QList<ReceivedEvent> ends = host.received(MSG_CALL_FINISHED);
    if (ends.isEmpty()) {
        return -1;
    }
    PayloadReader reader = ends.constLast().reader();
    reader.take<bool>();
    reader.take<QString>();
    reader.take<int>();
    reader.take<bool>();
    reader.take<bool>();
    return reader.take<qint64>();
}

void EngineFixture::deliverPosted()
{
    QCoreApplication::sendPostedEvents();
}
