// The limits of the edit fields on long texts: cutting a text that is too wide, and the check after each cursor move.
// Both must grow with the length of the text and no faster. Beside them QLineEdit's own setText, which every cut ends
// in.

#include "widgets/LineEditEx.h"
#include "widgets/TextLimit.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

// Half wide, half narrow characters.
QString mixedText(int size)
{
    return QStringLiteral("中x").repeated(size / 2);
}

class Edit : public CLineEditEx
{
public:
    using CLineEditEx::slot_cursorchanged;
};

void bareSetText(benchmark::State &state)
{
    QLineEdit edit;
    const QString text = mixedText(int(state.range(0)));
    for (auto _ : state) {
        edit.setText(text);
        edit.setText(text.left(10));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(bareSetText)->RangeMultiplier(2)->Range(1024, 32768)->Complexity();

void setMaxLengthCuts(benchmark::State &state)
{
    Edit edit;
    const QString text = mixedText(int(state.range(0)));
    for (auto _ : state) {
        edit.setMaxLength(0xffffff);
        edit.setText(text);
        edit.setMaxLength(14);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(setMaxLengthCuts)->RangeMultiplier(2)->Range(1024, 32768)->Complexity();

void cursorMoveThatFits(benchmark::State &state)
{
    Edit edit;
    const auto size = int(state.range(0));
    edit.setText(mixedText(size));
    for (auto _ : state) {
        edit.slot_cursorchanged(0, edit.text().size());
    }
    state.SetComplexityN(size);
}
BENCHMARK(cursorMoveThatFits)->RangeMultiplier(2)->Range(1024, 32768)->Complexity();

void cursorMoveThatCuts(benchmark::State &state)
{
    Edit edit;
    const QString text = mixedText(int(state.range(0)));
    edit.setMaxLength(14);
    for (auto _ : state) {
        edit.setText(text);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(cursorMoveThatCuts)->RangeMultiplier(2)->Range(1024, 32768)->Complexity();

// Without a field around it the text may be as long as a paste of ten megabytes.
void cutBackwards(benchmark::State &state)
{
    const QString text = mixedText(int(state.range(0)));
    for (auto _ : state) {
        QString cut = text;
        benchmark::DoNotOptimize(TextLimit::cutBackwards(cut, cut.size() / 2, 200));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(cutBackwards)->RangeMultiplier(8)->Range(1024, 10 << 20)->Complexity();

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    // Qt's word about the fields' menu sheet is no part of the figures.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
