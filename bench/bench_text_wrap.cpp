// Long texts broken into lines: for a tip, for a view and for a label. All are to grow with the text and no faster.

#include "common/text/LabelText.h"
#include "common/text/ShortText.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>

#include <benchmark/benchmark.h>

namespace {

constexpr int cMiddle = 10000;
constexpr int cLong = 100000;
constexpr int cWidth = 240;

QString mixedText(const benchmark::State &state)
{
    return QStringLiteral("a few words 中文 ").repeated(int(state.range(0)) / 15);
}

void countedCharacter(benchmark::State &state)
{
    const QString text = mixedText(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.count(QLatin1Char('a')));
    }
}

void shortString(benchmark::State &state)
{
    const QString text = mixedText(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(ShortText::getShortString(text, 40));
    }
}

void lineWrapText(benchmark::State &state)
{
    const QString text = mixedText(state);
    const QFontMetrics metrics{QFont()};
    for (auto _ : state) {
        benchmark::DoNotOptimize(LabelText::getLineWrapText(cWidth, text, metrics, 0));
    }
}

void formatWithControl(benchmark::State &state)
{
    const QString text = mixedText(state);
    QLabel label;
    label.resize(cWidth, 100);
    for (auto _ : state) {
        QString out;
        benchmark::DoNotOptimize(LabelText::stringFormatWithControl(text, &label, out, 0));
    }
}

BENCHMARK(countedCharacter)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(shortString)->Arg(cMiddle)->Arg(cLong)->Arg(10L * cLong)->Arg(100L * cLong);
BENCHMARK(lineWrapText)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(formatWithControl)->Arg(cMiddle)->Arg(cLong);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
