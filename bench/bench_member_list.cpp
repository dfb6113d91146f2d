// The conference member list with 10, 100 and 1,000 members: repainting a screenful, one status change up to its
// repaint, a status change of every member, and adding the members one by one. "member" is the cost of one member,
// which must not grow with their number. Beside it a list view with the default delegate that shows as many rows of
// a cached picture and a text.

#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/MemberRoles.h"
#include "model/SharedContext.h"
#include "model/UserIds.h"
#include "plugin/VoipManageMessageProcess.h"
#include "ui/ConferenceListView.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QWindow>

#include <benchmark/benchmark.h>

namespace {

const QSize cListSize(523, 280);
const QSize cRowSize(500, 38);

QString uid(int number)
{
    return QStringLiteral("3001") + QString::number(number);
}

void countMembers(benchmark::State &state)
{
    state.counters["member"] = benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                                                  benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

template <typename List>
void showList(List &list)
{
    list.setFrameShape(QFrame::NoFrame);
    list.resize(cListSize);
    list.show();
    while (!list.windowHandle()->isExposed()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    list.viewport()->repaint();
}

/// Paints what is due: a repaint of one pixel takes it along.
void paintDue(QWidget &widget)
{
    widget.repaint(0, 0, 1, 1);
}

/// A member list of a caller, all connected, on the screen.
class Members : public CConferenceListView
{
public:
    explicit Members(int iMembers)
    {
        for (int i = 0; i < iMembers; ++i) {
            addUser(uid(i));
        }
        for (int i = 0; i < iMembers; ++i) {
            updateConferenceUserStatus(uid(i), ConferenceConnected);
        }
        showList(*this);
    }
};

/// The bare view with as many rows.
class BareList : public QListView
{
public:
    explicit BareList(int iRows)
    {
        setModel(&m_model);
        for (int i = 0; i < iRows; ++i) {
            append(i);
        }
        showList(*this);
    }
    void append(int i)
    {
        auto *const pItem = new QStandardItem(m_head, QStringLiteral("成员 ") + QString::number(i));
        pItem->setData(cRowSize, Qt::SizeHintRole);
        m_model.appendRow(pItem);
    }
    QStandardItemModel m_model;

private:
    static QIcon plainHead()
    {
        QPixmap head(22, 22);
        head.fill(Qt::darkGreen);
        return head;
    }
    QIcon m_head{plainHead()};
};

template <typename List>
void repaintScreenful(benchmark::State &state)
{
    List list(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        list.viewport()->repaint();
    }
}
BENCHMARK_TEMPLATE(repaintScreenful, Members)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK_TEMPLATE(repaintScreenful, BareList)->Arg(10)->Arg(100)->Arg(1000);

void statusChange(benchmark::State &state)
{
    Members list(static_cast<int>(state.range(0)));
    int iStatus = 0;
    for (auto _ : state) {
        list.updateConferenceUserStatus(uid(1), ++iStatus % 6);
        paintDue(*list.viewport());
    }
}
BENCHMARK(statusChange)->Arg(10)->Arg(100)->Arg(1000);

void bareTextChange(benchmark::State &state)
{
    BareList list(static_cast<int>(state.range(0)));
    int iStatus = 0;
    for (auto _ : state) {
        list.m_model.item(1)->setText(uid(++iStatus % 6));
        QCoreApplication::processEvents();
        paintDue(*list.viewport());
    }
}
BENCHMARK(bareTextChange)->Arg(10)->Arg(100)->Arg(1000);

void everyStatusChange(benchmark::State &state)
{
    Members list(static_cast<int>(state.range(0)));
    int iStatus = 0;
    for (auto _ : state) {
        ++iStatus;
        for (int i = 0; i < state.range(0); ++i) {
            list.updateConferenceUserStatus(uid(i), iStatus % 6);
        }
        paintDue(*list.viewport());
    }
    countMembers(state);
}
BENCHMARK(everyStatusChange)->Arg(10)->Arg(100)->Arg(1000);

void addOneByOne(benchmark::State &state)
{
    Members list(0);
    for (auto _ : state) {
        for (int i = 0; i < state.range(0); ++i) {
            list.addUser(uid(i));
        }
        paintDue(*list.viewport());
        state.PauseTiming();
        list.clearMembers();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    countMembers(state);
}
BENCHMARK(addOneByOne)->Arg(10)->Arg(100)->Arg(1000);

void bareAddOneByOne(benchmark::State &state)
{
    BareList list(0);
    for (auto _ : state) {
        for (int i = 0; i < state.range(0); ++i) {
            list.append(i);
        }
        paintDue(*list.viewport());
        state.PauseTiming();
        list.m_model.clear();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    countMembers(state);
}
BENCHMARK(bareAddOneByOne)->Arg(10)->Arg(100)->Arg(1000);

QMap<QString, FriendData> contacts()
{
    QMap<QString, FriendData> contacts;
    for (int i = 0; i < 1000; ++i) {
        FriendData contact;
        contact.m_vcardInfo.m_strNickName = QStringLiteral("成员 ") + QString::number(i);
        contact.m_vcardInfo.m_strPhotoPath = QStringLiteral("head%1.png").arg(i);
        QPixmap head(96, 96);
        head.fill(QColor::fromHsv(i % 360, 200, 200));
        head.save(contact.m_vcardInfo.m_strPhotoPath);
        contacts.insert(UserIds::getJidByUid(uid(i)), contact);
    }
    return contacts;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    LoginData login;
    login.m_strUid = QStringLiteral("me");
    login.m_strDomain = QStringLiteral("kelvar.im");
    CommonData data;
    data.setLoginData(&login);
    SharedContext::setCommonData(&data);
    data.setFriendDataMap(contacts());

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    SharedContext::setCommonData(nullptr);
    return 0;
}
