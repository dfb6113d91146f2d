// The width of a text in columns, asked at every key stroke of a limited edit: linear, and close to the least that a
// walk over the text can cost, a count of one character.

#include "common/text/TextMeasure.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int cShortest = 1 << 10;
constexpr int cLongest = 1 << 22;

QString mixedText(const benchmark::State &state)
{
    return QStringLiteral("中a文b").repeated(int(state.range(0)) / 4);
}

void countedCharacter(benchmark::State &state)
{
    const QString text = mixedText(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.count(QLatin1Char('a')));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(countedCharacter)->RangeMultiplier(16)->Range(cShortest, cLongest)->Complexity(benchmark::oN);

void measuredColumns(benchmark::State &state)
{
    const QString text = mixedText(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(TextMeasure::getStrCounnt(text));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(measuredColumns)->RangeMultiplier(16)->Range(cShortest, cLongest)->Complexity(benchmark::oN);

void cutToColumns(benchmark::State &state)
{
    const QString text = mixedText(state);
    const int limit = TextMeasure::getStrCounnt(text) - 1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(TextMeasure::getStringByLen(text, limit));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(cutToColumns)->RangeMultiplier(16)->Range(cShortest, cLongest)->Complexity(benchmark::oN);

} // namespace

BENCHMARK_MAIN();
