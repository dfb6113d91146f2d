// The conference centre over a store of 1,000, 10,000 and 100,000 records: opening it up to its first painting, the
// memory it holds then ("kept_bytes", of a record), scrolling by a screenful, and a new record up to its painting.
// "record" is the time of one record. Beside it a list view with the default delegate and a plain item model that shows
// the same texts, read from the same store.

#include "model/CommonData.h"
#include "model/FriendData.h"
#include "model/LoginData.h"
#include "model/SharedContext.h"
#include "model/UserIds.h"
#include "store/DB.h"
#include "store/DBConfInfo.h"
#include "ui/ConferenceInfoListView.h"
#include "ui/VoiceConferenceWidget.h"

#include <QApplication>
#include <QDateTime>
#include <QScrollBar>
#include <QSqlQuery>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QVariant>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace {

constexpr int cCreators = 200;

QString creator(int number)
{
    return QStringLiteral("3001") + QString::number(number % cCreators);
}

ConfInfoData record(int number)
{
    ConfInfoData info;
    info.m_strConfID = QStringLiteral("conf%1").arg(number, 8, 10, QLatin1Char('0'));
    info.m_strCreatUserID = creator(number);
    info.m_strCreatTime = QDateTime::fromSecsSinceEpoch(1700000000 + number).toString("yyyy-MM-dd hh:mm:ss");
    info.m_strCallTime = QString::number(number % 4000);
    info.m_listMember = {creator(number), creator(number + 1), creator(number + 2)};
    info.m_bIsConnect = number % 3 != 0;
    return info;
}

/// A signed-in user with contacts and a store that holds as many records as were asked for last.
class Client
{
public:
    Client()
    {
        m_login.m_strUid = creator(0);
        m_login.m_strDomain = QStringLiteral("kelvar.im");
        m_data.setLoginData(&m_login);
        SharedContext::setCommonData(&m_data);
        QMap<QString, FriendData> contacts;
        for (int i = 0; i < cCreators; ++i) {
            const QString strJid = UserIds::getJidByUid(creator(i));
            FriendData contact(strJid);
            contact.m_vcardInfo.m_strNickName = QStringLiteral("Contact %1").arg(i);
            contacts.insert(strJid, contact);
        }
        m_data.setFriendDataMap(contacts);
        DB::initByUserName(m_login.m_strUid, m_folder.path(), true);
    }
    ~Client() { DB::closeDB(); }
    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;

    void keep(int iRecords)
    {
        if (iRecords == m_iRecords) {
            return;
        }
        QSqlQuery query(DB::getDB());
        query.exec(QStringLiteral("DELETE FROM voipConferenceInfo"));
        DB::getDB().transaction();
        for (int i = 0; i < iRecords; ++i) {
            DBConfInfo::saveConfInfo(record(i));
        }
        DB::getDB().commit();
        m_iRecords = iRecords;
    }

private:
    QTemporaryDir m_folder;
    LoginData m_login;
    CommonData m_data;
    int m_iRecords = -1;
};

Client *s_pClient = nullptr;

/// The centre, with its list in sight.
class Centre : public CVoiceConferenceWidget
{
public:
    QListView *list() { return findChild<QListView *>(QStringLiteral("listView")); }
    void add(const ConfInfoData &info) { addConferenceInfo(info); }
};

/// The bare view with the same texts.
class BareList : public QListView
{
public:
    BareList()
    {
        const QList<ConfInfoData> records = DBConfInfo::getAllConfInfo();
        for (const ConfInfoData &info : records) {
            m_model.appendRow(item(info));
        }
        setModel(&m_model);
        setUniformItemSizes(true);
        setFixedSize(523, 403);
    }
    QListView *list() { return this; }
    void add(const ConfInfoData &info) { m_model.insertRow(0, item(info)); }

private:
    static QStandardItem *item(const ConfInfoData &info)
    {
        auto *pItem = new QStandardItem(head(), info.m_strCreatUserID + QLatin1Char('\n') + info.m_strCreatTime +
                                                    QLatin1Char('\n') + info.m_strCallTime);
        pItem->setData(info.m_strConfID);
        pItem->setData(QSize(500, 62), Qt::SizeHintRole);
        return pItem;
    }
    static QIcon head()
    {
        static const QIcon plain = [] {
            QPixmap picture(40, 40);
            picture.fill(Qt::darkGreen);
            return QIcon(picture);
        }();
        return plain;
    }
    QStandardItemModel m_model;
};

template <typename Window>
std::unique_ptr<Window> opened()
{
    auto window = std::make_unique<Window>();
    window->show();
    while (!window->windowHandle()->isExposed()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    window->repaint();
    return window;
}

template <typename Window>
void open(benchmark::State &state)
{
    s_pClient->keep(static_cast<int>(state.range(0)));
    double dKept = 0;
    for (auto _ : state) {
        const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        auto window = opened<Window>();
        state.PauseTiming();
        dKept = static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd - before);
        window.reset();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    state.counters["kept_bytes"] = dKept / static_cast<double>(state.range(0));
    state.counters["record"] = benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                                                  benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK_TEMPLATE(open, Centre)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(open, BareList)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

template <typename Window>
void scrollScreenful(benchmark::State &state)
{
    s_pClient->keep(static_cast<int>(state.range(0)));
    const auto window = opened<Window>();
    QScrollBar *pBar = window->list()->verticalScrollBar();
    for (auto _ : state) {
        pBar->setValue(pBar->value() >= pBar->maximum() ? 0 : pBar->value() + pBar->pageStep());
        window->list()->viewport()->repaint();
    }
}
BENCHMARK_TEMPLATE(scrollScreenful, Centre)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(scrollScreenful, BareList)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);

template <typename Window>
void repaintScreenful(benchmark::State &state)
{
    s_pClient->keep(static_cast<int>(state.range(0)));
    const auto window = opened<Window>();
    for (auto _ : state) {
        window->list()->viewport()->repaint();
    }
}
BENCHMARK_TEMPLATE(repaintScreenful, Centre)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(repaintScreenful, BareList)->Arg(1000)->Unit(benchmark::kMicrosecond);

template <typename Window>
void addOne(benchmark::State &state)
{
    s_pClient->keep(static_cast<int>(state.range(0)));
    const auto window = opened<Window>();
    int iNext = 50000000;
    for (auto _ : state) {
        window->add(record(iNext++));
        QCoreApplication::processEvents();
        window->list()->viewport()->repaint(0, 0, 1, 1);
    }
}
BENCHMARK_TEMPLATE(addOne, Centre)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(addOne, BareList)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    Client client;
    s_pClient = &client;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
