// The digest of a file, in pieces of 4096 bytes: beside the bare hash over the same bytes in memory, which is the least
// that a digest can cost, and beside the system's own programs, whose start counts too.

#include "common/digests/FileDigest.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QProcess>

#include <benchmark/benchmark.h>

namespace {

constexpr qint64 cSmall = 1 << 12;
constexpr qint64 cSizes[] = {cSmall, 1 << 20, 1 << 26};

// Letters that do not repeat in step with the pieces.
QByteArray bytesOf(qint64 size)
{
    QByteArray bytes(static_cast<int>(size), Qt::Uninitialized);
    for (int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i * 31 + i / 4099);
    }
    return bytes;
}

// The file of the wanted size, in the current folder.
QString fileOf(const benchmark::State &state)
{
    QString path = QStringLiteral("digest%1.bin").arg(state.range(0));
    QFile file(path);
    if (!file.exists() && file.open(QIODevice::WriteOnly)) {
        file.write(bytesOf(state.range(0)));
    }
    return path;
}

template <QString (*digest)(QString)>
void digestOfFile(benchmark::State &state)
{
    const QString path = fileOf(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(digest(path));
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

template <QCryptographicHash::Algorithm algorithm>
void bareHash(benchmark::State &state)
{
    const QByteArray bytes = bytesOf(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(QCryptographicHash::hash(bytes, algorithm));
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

/// The file read in the same pieces and hashed, and nothing else.
template <QCryptographicHash::Algorithm algorithm>
void hashInPieces(benchmark::State &state)
{
    const QString path = fileOf(state);
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        QCryptographicHash hash(algorithm);
        while (!file.atEnd()) {
            hash.addData(file.read(cSmall));
        }
        benchmark::DoNotOptimize(hash.result());
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

void program(benchmark::State &state, const QString &name, QStringList arguments)
{
    arguments.append(fileOf(state));
    for (auto _ : state) {
        QProcess process;
        process.start(name, arguments);
        if (!process.waitForFinished(-1) || process.exitCode() != 0) {
            state.SkipWithError("the program failed");
        }
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

void sha1sum(benchmark::State &state)
{
    program(state, QStringLiteral("sha1sum"), {});
}

void md5sum(benchmark::State &state)
{
    program(state, QStringLiteral("md5sum"), {});
}

void opensslSha1(benchmark::State &state)
{
    program(state, QStringLiteral("openssl"), {QStringLiteral("dgst"), QStringLiteral("-sha1")});
}

void opensslMd5(benchmark::State &state)
{
    program(state, QStringLiteral("openssl"), {QStringLiteral("dgst"), QStringLiteral("-md5")});
}

// The key of a path is made by the SHA-1 of this project.
void keyOfPath(benchmark::State &state)
{
    const QString path = fileOf(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(FileDigest::getFileHash(path));
    }
}

void sizes(benchmark::internal::Benchmark *pWork)
{
    for (const qint64 size : cSizes) {
        pWork->Arg(size);
    }
    pWork->UseRealTime();
}

BENCHMARK_TEMPLATE(digestOfFile, FileDigest::getFileSha1)->Apply(sizes);
BENCHMARK_TEMPLATE(bareHash, QCryptographicHash::Sha1)->Apply(sizes);
BENCHMARK_TEMPLATE(hashInPieces, QCryptographicHash::Sha1)->Apply(sizes);
BENCHMARK(sha1sum)->Apply(sizes);
BENCHMARK(opensslSha1)->Apply(sizes);
BENCHMARK_TEMPLATE(digestOfFile, FileDigest::getFileMd5)->Apply(sizes);
BENCHMARK_TEMPLATE(bareHash, QCryptographicHash::Md5)->Apply(sizes);
BENCHMARK_TEMPLATE(hashInPieces, QCryptographicHash::Md5)->Apply(sizes);
BENCHMARK(md5sum)->Apply(sizes);
BENCHMARK(opensslMd5)->Apply(sizes);
BENCHMARK(keyOfPath)->Arg(cSmall);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    for (const qint64 size : cSizes) {
        QFile::remove(QStringLiteral("digest%1.bin").arg(size));
    }
    return 0;
}
