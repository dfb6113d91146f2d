// The initials of a client's whole address book, beside the least that they can cost: the same names put into upper
// case, and the bare look-up of each character in the table.

#include "common/text/ChineseSpell.h"

#include <QStringList>

#include <benchmark/benchmark.h>

namespace {

constexpr int cNames = 100000;
constexpr ushort cFirst = 0x4E00;

QStringList names()
{
    const int characters = strChineseFirstPY.size();
    QStringList list;
    list.reserve(cNames);
    for (int i = 0; i < cNames; ++i) {
        const QChar name[] = {QChar(cFirst + i % characters), QChar(cFirst + i * 7 % characters),
                              QChar(cFirst + i * 13 % characters), QLatin1Char('a'), QLatin1Char('7')};
        list.append(QString(name, 5));
    }
    return list;
}

void initialsOfNames(benchmark::State &state)
{
    const QStringList list = names();
    for (auto _ : state) {
        for (const QString &name : list) {
            benchmark::DoNotOptimize(ChineseSpell::toChineseSpell(name));
        }
    }
}
BENCHMARK(initialsOfNames)->Unit(benchmark::kMillisecond);

void upperCaseOfNames(benchmark::State &state)
{
    const QStringList list = names();
    for (auto _ : state) {
        for (const QString &name : list) {
            benchmark::DoNotOptimize(name.toUpper());
        }
    }
}
BENCHMARK(upperCaseOfNames)->Unit(benchmark::kMillisecond);

void bareLookUp(benchmark::State &state)
{
    const QStringList list = names();
    const QChar *pTable = strChineseFirstPY.constData();
    for (auto _ : state) {
        for (const QString &name : list) {
            QString result(name.size(), Qt::Uninitialized);
            QChar *pResult = result.data();
            for (const QChar character : name) {
                *pResult++ = character.unicode() >= cFirst ? pTable[character.unicode() - cFirst] : character;
            }
            benchmark::DoNotOptimize(result);
        }
    }
}
BENCHMARK(bareLookUp)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
