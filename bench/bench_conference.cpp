// Processor time of a conference update of 10 to 10,000 members, from the inbound line to the repainted window: all
// members new to this side, and all known already. "member" is the cost of one member, which must not grow with their
// number. Beside it a bare list view that gets as many rows, and the JSON reader alone over the same document.

#include "ProcessorClock.h"

#include "engine/VoipManage.h"
#include "model/CommonData.h"
#include "model/FriendData.h"
#include "model/LoginData.h"
#include "model/SharedContext.h"
#include "model/UserIds.h"
#include "plugin/BaseEvent.h"
#include "plugin/EventPayload.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConferenceListView.h"
#include "ui/VoipWidget.h"
#include "wire/Commands.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>
#include <json/reader.h>

#include <malloc.h>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

constexpr int cMostMembers = 10000;

QString uid(int number)
{
    return QStringLiteral("3001") + QString::number(number);
}

/// Knows every member as a contact, and answers at once.
class Host : public QObject
{
protected:
    void customEvent(QEvent *event) override
    {
        auto *command = static_cast<BaseEvent *>(event);
        if (command->msgId == MSG_IS_EXIST_FRIEND) {
            command->data = packPayload(true);
        } else if (command->msgId == MSG_GET_FRIEND_INFO) {
            command->data = packPayload(static_cast<qint64>(reinterpret_cast<quintptr>(&m_record)));
        }
    }

private:
    const FriendData m_record{};
};

/// Whether a widget has been painted since the last look.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }
    void wait()
    {
        for (m_painted = false; !m_painted;) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

private:
    bool m_painted = false;
};

void settle()
{
    QElapsedTimer time;
    for (time.start(); time.elapsed() < 20;) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

class Engine : public CVoipManage
{
public:
    CVoipWidget *window() { return m_pVoipWidget; }
    QWidget *rows() { return m_pVoipWidget->findChild<CConferenceListView *>()->viewport(); }

    /// In a conference, connected, with nobody in it and the empty list on the screen.
    void joinAnew()
    {
        callFinished(CallData::FinishHangup);
        m_callData.bIsConf = true;
        m_callData.peerId = uid(0);
        m_callData.confId = QStringLiteral("c1");
        m_pVoipWidget->setVoipCallInfo({}, CVoipWidget::Conference, false, true);
        m_pVoipWidget->show();
        settle();
    }
};

QString updateDocument(int members)
{
    QStringList ids;
    for (int i = 0; i < members; ++i) {
        ids << uid(i);
    }
    return R"({"content":{"confId":"c1","conventioneer":[")" + ids.join(QStringLiteral(R"(",")")) + R"("]}})";
}

QString updateLine(int members)
{
    return R"({"resultCode":12,"content":")" +
           updateDocument(members).replace(QLatin1String("\""), QLatin1String("\\\"")) + R"("})";
}

QMap<QString, FriendData> contacts(int count)
{
    QMap<QString, FriendData> contacts;
    for (int i = 0; i < count; ++i) {
        FriendData contact;
        contact.m_vcardInfo.m_strNickName = QStringLiteral("成员") + QString::number(i);
        contacts.insert(UserIds::getJidByUid(uid(i)), contact);
    }
    return contacts;
}

void countMembers(benchmark::State &state)
{
    state.counters["member"] = benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                                                  benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void membersNew(benchmark::State &state)
{
    Engine engine;
    PaintWatch rows(engine.rows());
    const QString line = updateLine(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        engine.joinAnew();
        const ProcessorClock clock;
        engine.recevieVoipMessage(line);
        rows.wait();
        state.SetIterationTime(clock.seconds());
    }
    countMembers(state);
    engine.callFinished(CallData::FinishHangup);
}
BENCHMARK(membersNew)->Arg(10)->Arg(100)->Arg(1000)->Arg(cMostMembers)->UseManualTime()->Iterations(2);

/// New members of whom the client's map of contacts has none, so that the host is asked for each.
void membersAskedFor(benchmark::State &state)
{
    SharedContext::setFriendDataMap({});
    membersNew(state);
    SharedContext::setFriendDataMap(contacts(cMostMembers));
}
BENCHMARK(membersAskedFor)->Arg(1000)->Arg(cMostMembers)->UseManualTime()->Iterations(2);

/// 1,000 new members among so many contacts: none of them is copied or walked through for a member.
void membersNewAmong(benchmark::State &state)
{
    SharedContext::setFriendDataMap(contacts(static_cast<int>(state.range(0))));
    Engine engine;
    const QString line = updateLine(1000);
    for (auto _ : state) {
        engine.joinAnew();
        const ProcessorClock clock;
        engine.recevieVoipMessage(line);
        state.SetIterationTime(clock.seconds());
    }
    engine.callFinished(CallData::FinishHangup);
    SharedContext::setFriendDataMap(contacts(cMostMembers));
}
BENCHMARK(membersNewAmong)->Arg(1000)->Arg(100000)->UseManualTime()->Iterations(2);

void membersKnown(benchmark::State &state)
{
    Engine engine;
    const QString line = updateLine(static_cast<int>(state.range(0)));
    engine.joinAnew();
    engine.recevieVoipMessage(line);
    settle();
    for (auto _ : state) {
        engine.recevieVoipMessage(line);
        QCoreApplication::processEvents();
    }
    countMembers(state);
    engine.callFinished(CallData::FinishHangup);
}
BENCHMARK(membersKnown)->Arg(10)->Arg(100)->Arg(1000)->Arg(cMostMembers);

void bareDocument(benchmark::State &state)
{
    const std::string document = updateDocument(static_cast<int>(state.range(0))).toStdString();
    Json::Reader reader;
    for (auto _ : state) {
        Json::Value root;
        benchmark::DoNotOptimize(reader.parse(document, root));
    }
    countMembers(state);
}
BENCHMARK(bareDocument)->Arg(1000)->Arg(cMostMembers);

void bareListView(benchmark::State &state)
{
    QListView view;
    QStandardItemModel model;
    view.setModel(&model);
    view.resize(500, 300);
    view.show();
    PaintWatch rows(view.viewport());
    for (auto _ : state) {
        model.clear();
        settle();
        const ProcessorClock clock;
        for (int i = 0; i < state.range(0); ++i) {
            model.appendRow(new QStandardItem(uid(i)));
        }
        rows.wait();
        state.SetIterationTime(clock.seconds());
    }
    countMembers(state);
}
BENCHMARK(bareListView)->Arg(10)->Arg(100)->Arg(1000)->Arg(cMostMembers)->UseManualTime()->Iterations(2);

} // namespace

int main(int argc, char **argv)
{
    // A client's memory has grown to its size long ago.
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 25);
    const QApplication application(argc, argv);
    // What the host does with the debug channel is its own cost.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    LoginData login;
    login.m_strUid = QStringLiteral("me");
    login.m_strDomain = QStringLiteral("kelvar.im");
    CommonData data;
    data.setLoginData(&login);
    SharedContext::setCommonData(&data);
    data.setFriendDataMap(contacts(cMostMembers));
    Host host;
    VoipManageMessageProcess::instance()->setSendEvent(&host);
    QLocalServer server;
    if (!server.listen(QLatin1String(Wire::cServerName))) {
        return 1;
    }

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    VoipManageMessageProcess::instance()->setSendEvent(nullptr);
    SharedContext::setCommonData(nullptr);
    return 0;
}
