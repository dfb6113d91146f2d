#include "happenings/HappeningsModel.h"

#include "host/happenings/HappeningRows.h"
#include "host/tour/Waves.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class tst_HappeningsModel : public QObject
{
    Q_OBJECT

private slots:
    void rowIsShownInItsColumns()
    {
        HappeningsModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QDateTime time(QDate(2026, 5, 7), QTime(10, 11, 12, 345));
        model.append({callOf(QStringLiteral("anna"), time.toMSecsSinceEpoch())});
        QCOMPARE(model.rowCount(), 1);
        const auto text = [&](int column, int role = Qt::DisplayRole) {
            return model.index(0, column).data(role).toString();
        };
        QCOMPARE(text(HappeningsModel::Time), QStringLiteral("10:11:12.345"));
        QCOMPARE(text(HappeningsModel::WayGlyph), QStringLiteral("→"));
        QCOMPARE(text(HappeningsModel::WayGlyph, Qt::AccessibleTextRole), QStringLiteral("client → plug-in"));
        QCOMPARE(text(HappeningsModel::WayGlyph, Qt::ToolTipRole), QStringLiteral("client → plug-in"));
        QCOMPARE(text(HappeningsModel::KindWord), QStringLiteral("event"));
        QCOMPARE(text(HappeningsModel::What),
                 QStringLiteral("the client asks the plug-in to call anna with sound only (4470)"));
        // A tool tip would be read as rich text.
        QVERIFY(!model.index(0, HappeningsModel::What).data(Qt::ToolTipRole).isValid());
        QCOMPARE(model.headerData(HappeningsModel::What, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("What happened"));
    }

    void batchComesInOneStep()
    {
        HappeningsModel model;
        const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        model.append(callsOf(0, 500));
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(model.rowCount(), 500);
        model.append({});
        QCOMPARE(inserted.count(), 1);
    }

    void oldestRowsMakePlaceAndAreCounted()
    {
        HappeningsModel model;
        model.append(callsOf(0, HappeningsModel::cCapacity));
        QCOMPARE(model.dropped(), 0);
        model.append(callsOf(HappeningsModel::cCapacity, 3));
        QCOMPARE(model.rowCount(), int(HappeningsModel::cCapacity));
        QCOMPARE(model.dropped(), 3);
        QCOMPARE(model.at(0).raw, QStringLiteral("raw u3"));
        QCOMPARE(model.at(HappeningsModel::cCapacity - 1).raw, QStringLiteral("raw u10002"));
    }

    void batchBeyondTheCapacityKeepsItsNewestRows()
    {
        HappeningsModel model;
        model.append(callsOf(0, 5));
        model.append(callsOf(5, HappeningsModel::cCapacity + 7));
        QCOMPARE(model.rowCount(), int(HappeningsModel::cCapacity));
        QCOMPARE(model.dropped(), 12);
        QCOMPARE(model.at(0).raw, QStringLiteral("raw u12"));
    }

    void clearForgetsTheCountToo()
    {
        HappeningsModel model;
        model.append(callsOf(0, HappeningsModel::cCapacity + 1));
        model.clear();
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.dropped(), 0);
    }

    void lineForTheClipboardHoldsEverything()
    {
        HappeningsModel model;
        const QDateTime time(QDate(2026, 5, 7), QTime(10, 11, 12, 345));
        model.append({callOf(QStringLiteral("anna"), time.toMSecsSinceEpoch())});
        QCOMPARE(model.line(0),
                 QStringLiteral("2026-05-07 10:11:12.345\tclient → plug-in\tevent\t"
                                "the client asks the plug-in to call anna with sound only (4470)\traw anna"));
    }

    void everyWayAndKindHasItsWords()
    {
        QSet<QString> words;
        for (int way = 0; way < Happening::WayCount; ++way) {
            words.insert(HappeningsModel::wayText(Happening::Way(way)));
        }
        for (int kind = 0; kind < Happening::KindCount; ++kind) {
            words.insert(HappeningsModel::kindText(Happening::Kind(kind)));
        }
        QCOMPARE(words.size(), int(Happening::WayCount) + int(Happening::KindCount));
    }

    void errorIsRedAllOver()
    {
        HappeningsModel model;
        model.append({callOf(QStringLiteral("a"), 0, Happening::Error), callOf(QStringLiteral("b"))});
        const QVariant red = model.index(0, HappeningsModel::What).data(Qt::ForegroundRole);
        QVERIFY(red.isValid());
        QCOMPARE(model.index(0, HappeningsModel::KindWord).data(Qt::ForegroundRole), red);
        QVERIFY(!model.index(1, HappeningsModel::What).data(Qt::ForegroundRole).isValid());
    }

    void languageIsTakenAnew()
    {
        HappeningsModel model;
        model.append({callOf(QStringLiteral("anna"))});
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        Waves waves;
        QVERIFY(QCoreApplication::installTranslator(&waves));
        model.retranslate();
        QCOMPARE(changed.count(), 1);
        QVERIFY2(model.at(0).words.startsWith(QStringLiteral("~the client asks")), qPrintable(model.at(0).words));
        QVERIFY(model.at(0).words.contains(QStringLiteral("anna ~with sound only")));
        QCOMPARE(model.headerData(HappeningsModel::Time, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("~Time"));
    }

    void filterLooksIntoWordsRawTextAndWay_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("shown");
        QTest::addColumn<bool>("newShown");
        QTest::newRow("all") << QString() << 3 << true;
        QTest::newRow("words") << QStringLiteral("CALL ANNA") << 1 << false;
        QTest::newRow("raw text") << QStringLiteral("raw b") << 1 << false;
        QTest::newRow("way") << QStringLiteral("client → plug") << 3 << true;
        QTest::newRow("number") << QStringLiteral("4470") << 3 << true;
        QTest::newRow("nothing") << QStringLiteral("zzz") << 0 << false;
        QTest::newRow("no expression") << QStringLiteral("an.a") << 0 << false;
    }

    void filterLooksIntoWordsRawTextAndWay()
    {
        QFETCH(QString, text);
        HappeningsModel model;
        model.append({callOf(QStringLiteral("anna")), callOf(QStringLiteral("bert")), callOf(QStringLiteral("carl"))});
        HappeningsFilter filter(model);
        filter.setText(text);
        QTEST(filter.rowCount(), "shown");
        // New rows are filtered as they come.
        QFETCH(int, shown);
        QFETCH(bool, newShown);
        model.append({callOf(QStringLiteral("dora"))});
        QCOMPARE(filter.rowCount(), shown + (newShown ? 1 : 0));
    }

    void filterHidesKinds()
    {
        HappeningsModel model;
        model.append({callOf(QStringLiteral("a"), 0, Happening::Event), callOf(QStringLiteral("b"), 0, Happening::Wire),
                      callOf(QStringLiteral("c"), 0, Happening::Error),
                      callOf(QStringLiteral("d"), 0, Happening::Error)});
        HappeningsFilter filter(model);
        filter.setKindShown(Happening::Error, false);
        QCOMPARE(filter.rowCount(), 2);
        filter.setKindShown(Happening::Event, false);
        QCOMPARE(filter.rowCount(), 1);
        QCOMPARE(model.at(filter.mapToSource(filter.index(0, 0)).row()).kind, Happening::Wire);
        filter.setKindShown(Happening::Error, true);
        QCOMPARE(filter.rowCount(), 3);
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HappeningsModel, Guiless)
#include "tst_HappeningsModel.moc"
