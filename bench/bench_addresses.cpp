// What an address costs its caller: cached, looked up in the process's settings object, and made from the default.
// Beside them the least that a look-up can cost, a hash of the same entries, and what a settings object for each call
// would.

#include "common/CSettingsManager.h"
#include "common/CUrlInfo.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>

#include <benchmark/benchmark.h>

namespace {

const char cFreshFile[] = "fresh.ini";

QHash<QString, QString> entries()
{
    QHash<QString, QString> result;
#define URL_GETTER(name, key, endpoint, path, form)                                                                    \
    result.insert(QStringLiteral(key), QStringLiteral("http://set.example/" #name));
#include "common/CUrlInfo.def"
    return result;
}

void cachedGetter(benchmark::State &state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(CUrlInfo::getServerMessageUrl());
    }
}
BENCHMARK(cachedGetter);

void uncachedGetter(benchmark::State &state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(CUrlInfo::getEmailUrl());
    }
}
BENCHMARK(uncachedGetter);

void uncachedGetterOfADefault(benchmark::State &state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(CUrlInfo::getWeatherUrl());
    }
}
BENCHMARK(uncachedGetterOfADefault);

void bareHash(benchmark::State &state)
{
    const QHash<QString, QString> hash = entries();
    for (auto _ : state) {
        benchmark::DoNotOptimize(hash.value(QStringLiteral("/vcard/emailurl")));
    }
}
BENCHMARK(bareHash);

void settingsObjectForEachCall(benchmark::State &state)
{
    for (auto _ : state) {
        const QSettings settings(QString::fromLatin1(cFreshFile), QSettings::IniFormat);
        benchmark::DoNotOptimize(settings.value(QStringLiteral("/vcard/emailurl")).toString());
    }
}
BENCHMARK(settingsObjectForEachCall);

// The entries stay in memory: nothing runs an event loop here that would write them beside the executable.
void fillSettings()
{
    QSettings *pSettings = CSettingsManager::instance()->getUrlSettings();
    QSettings fresh(QString::fromLatin1(cFreshFile), QSettings::IniFormat);
    const QHash<QString, QString> hash = entries();
    for (auto entry = hash.cbegin(); entry != hash.cend(); ++entry) {
        fresh.setValue(entry.key(), entry.value());
        if (entry.key() != QLatin1String("/weatherupdate/theurl")) {
            pSettings->setValue(entry.key(), entry.value());
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    fillSettings();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QFile::remove(QString::fromLatin1(cFreshFile));
    return 0;
}
