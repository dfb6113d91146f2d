#include "ProcessorClock.h"
#include "client/ContactBook.h"
#include "history/CallHistory.h"
#include "panes/CallsPane.h"

#include "fakes/Patience.h"
#include "host/history/CallRows.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace {

constexpr int cCalls = 20000;
constexpr int cPeople = 300;

} // namespace

/// Twenty thousand calls: what the client stands still for, in processor time. The least of some rounds is what the
/// work itself takes.
class tst_CallsPaneCost : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_strFolder = QDir::currentPath();
        std::vector<CallEntry> entries;
        for (int i = 0; i < cCalls; ++i) {
            const QByteArray uid = QByteArray::number(40010000 + i % cPeople);
            entries.push_back(i % 10 == 0  ? conferenceRow(uid.constData(), "30010001", cCalls - i)
                              : i % 7 == 0 ? missedRow(uid.constData(), cCalls - i)
                                           : callRow(uid.constData(), cCalls - i));
        }
        CallFile file;
        QVERIFY(file.open(m_strFolder));
        QVERIFY(file.add(entries));
        QVERIFY(m_history.open(m_strFolder, QLatin1String(ContactBook::cOwnId)));
        m_pane.show(&m_history, &m_book);
        m_pane.resize(640, 500);
        m_pane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_pane, cPatienceMs));
        m_pTable = m_pane.findChild<QTableView *>();
        QCOMPARE(m_pTable->model()->rowCount(), cCalls);
    }

    void opening()
    {
        check(
            [this] {
                CallHistory history;
                QVERIFY(history.open(m_strFolder, QLatin1String(ContactBook::cOwnId)));
                QCOMPARE(history.entries().size(), size_t(cCalls));
            },
            0.6);
    }

    void aLetterOfTheSearch()
    {
        auto *search = m_pane.findChild<QLineEdit *>();
        check([&] {
            QTest::keyClicks(search, QStringLiteral("4"));
            QCoreApplication::processEvents();
            QTest::keyClick(search, Qt::Key_Escape);
            QCoreApplication::processEvents();
        });
    }

    void aFilter()
    {
        check([this] {
            for (const char *filter : {"btnFilterConferences", "btnFilterAll"}) {
                m_pane.findChild<QPushButton *>(QLatin1String(filter))->click();
                QCoreApplication::processEvents();
            }
        });
    }

    void aCallThatBeginsAndEnds()
    {
        check([this] {
            CallEntry call = callRow("30010002");
            call.outcome = outcomeRunning;
            call.begun = QDateTime::currentDateTime();
            call.id = m_history.add(call);
            QCoreApplication::processEvents();
            call.outcome = resultBusy;
            m_history.change(call);
            QCoreApplication::processEvents();
            QCOMPARE(m_history.remove({call.id}), 1);
        });
    }

    void scrollingThroughAll()
    {
        check([this] {
            for (int i = 0; i <= 20; ++i) {
                m_pTable->scrollTo(m_pTable->model()->index(i * (cCalls - 1) / 20, 0));
                m_pTable->viewport()->repaint();
            }
        });
    }

    void deletingAllAndBringingThemBack()
    {
        QCOMPARE(m_pTable->model()->rowCount(), cCalls);
        m_pTable->setFocus();
        check(
            [this] {
                QTest::keyClick(m_pTable, Qt::Key_A, Qt::ControlModifier);
                QSet<qint64> ids;
                for (const CallEntry &entry : m_history.entries()) {
                    ids.insert(entry.id);
                }
                QCOMPARE(m_history.remove(ids), cCalls);
                QCOMPARE(m_pTable->model()->rowCount(), 0);
                m_history.restore();
                QCOMPARE(m_pTable->model()->rowCount(), cCalls);
            },
            1.2);
    }

private:
    template <typename Deed>
    void check(const Deed &deed, double dLimit = 0.25)
    {
        double dLeast = 1000;
        for (int i = 0; i < 5; ++i) {
            const ProcessorClock clock;
            deed();
            dLeast = std::min(dLeast, clock.seconds());
        }
        qInfo("%s: %.1f ms", QTest::currentTestFunction(), dLeast * 1000);
        QVERIFY2(dLeast < dLimit * VOIP_TIMES_SLOWER, qPrintable(QString::number(dLeast)));
    }

    ContactBook m_book{QStringLiteral("example.org")};
    QString m_strFolder;
    CallHistory m_history;
    CallsPane m_pane;
    QTableView *m_pTable = nullptr;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_CallsPaneCost, Widgets)
#include "tst_CallsPaneCost.moc"
