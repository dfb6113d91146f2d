#include "calls/sound/EchoLine.h"

#include <QtTest>

#include <algorithm>
#include <vector>

class tst_EchoLine : public QObject
{
    Q_OBJECT

private slots:
    void comesASecondLater()
    {
        EchoLine line;
        line.setRate(1000);
        line.clear();
        QCOMPARE(line.samplesOfATick(), std::size_t(10));
        const std::vector<int16_t> played(10, 7);
        for (int tick = 0; tick < 200; ++tick) {
            line.put(played.data(), played.size());
            std::vector<int16_t> heard(10, -1);
            line.take(heard.data(), heard.size());
            QCOMPARE(heard, std::vector<int16_t>(10, tick < 100 ? 0 : 7));
        }
    }

    void takesNoMoreThanThereIsRoomForWhateverTheFormatHasBecome()
    {
        EchoLine line;
        line.setRate(8000);
        line.clear();
        const std::size_t wanted = line.samplesOfATick();
        QCOMPARE(wanted, std::size_t(80));
        std::vector<int16_t> block(100 * wanted, -1);
        line.setRate(48000);
        line.setChannels(2);
        QCOMPARE(line.samplesOfATick(), std::size_t(960));
        line.take(block.data(), wanted);
        QCOMPARE(std::count(block.begin(), block.end(), int16_t(-1)), std::ptrdiff_t(99 * wanted));
        QCOMPARE(line.rate(), 48000);
        QCOMPARE(line.channels(), 2);
    }

    void whatIsNotHeardInTimeIsLeftOut()
    {
        EchoLine line;
        line.setRate(1000);
        line.clear();
        const std::vector<int16_t> much(5000, 7);
        line.put(much.data(), much.size());
        std::vector<int16_t> heard(2000, -1);
        line.take(heard.data(), heard.size());
        QCOMPARE(std::count(heard.begin(), heard.end(), int16_t(7)), std::ptrdiff_t(1000));
    }
};

#include "support/TestProgram.h"
VOIP_TEST(tst_EchoLine, Appless)
#include "tst_EchoLine.moc"
