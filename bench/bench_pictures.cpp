// What a picture costs per call: the rounded head from a file and the nine-patch frame, each beside a plain scale of
// the same picture to that size, and the watermark, drawn and known already, beside a scale to the size of the screen
// that is saved as well.

#include "common/pictures/HeadImages.h"
#include "common/pictures/NinePatch.h"
#include "common/pictures/WaterMark.h"
#include "model/SharedContext.h"
#include "model/SystemSetData.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QScreen>

#include <benchmark/benchmark.h>

namespace {

const QString cHeadFile = QStringLiteral("head.png");

constexpr int cFrameWidth = 523;
constexpr int cFrameHeight = 403;

QPixmap picture(int iSide)
{
    QPixmap pixmap(iSide, iSide);
    pixmap.fill(Qt::blue);
    QPainter(&pixmap).fillRect(iSide / 4, iSide / 4, iSide / 2, iSide / 2, Qt::yellow);
    return pixmap;
}

void roundedHead(benchmark::State &state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(HeadImages::getRoundedImage(cHeadFile, int(state.range(0))));
    }
}
BENCHMARK(roundedHead)->Arg(22)->Arg(40)->Arg(100);

void plainScaleOfTheHead(benchmark::State &state)
{
    const int iSide = int(state.range(0));
    for (auto _ : state) {
        const QPixmap head = QPixmap::fromImage(QImage(cHeadFile));
        benchmark::DoNotOptimize(head.scaled(iSide, iSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}
BENCHMARK(plainScaleOfTheHead)->Arg(22)->Arg(40)->Arg(100);

void ninePatch(benchmark::State &state)
{
    const QPixmap source = picture(29);
    for (auto _ : state) {
        benchmark::DoNotOptimize(NinePatch::drawNinePatch(QSize(cFrameWidth, cFrameHeight), source));
    }
}
BENCHMARK(ninePatch);

void plainScaleOfTheFrame(benchmark::State &state)
{
    const QPixmap source = picture(29);
    for (auto _ : state) {
        benchmark::DoNotOptimize(source.scaled(cFrameWidth, cFrameHeight));
    }
}
BENCHMARK(plainScaleOfTheFrame);

void waterMark(benchmark::State &state, bool bKnown)
{
    QString strName = QStringLiteral("成员");
    QString strId = QStringLiteral("30010001");
    QString strPath;
    WaterMark::generateWaterMark(strName, strId, strPath);
    for (auto _ : state) {
        if (!bKnown) {
            QFile::remove(strPath);
        }
        benchmark::DoNotOptimize(WaterMark::generateWaterMark(strName, strId, strPath));
    }
}
BENCHMARK_CAPTURE(waterMark, drawnAndSaved, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(waterMark, known, true);

void plainScaleToTheScreen(benchmark::State &state)
{
    const QPixmap source = picture(200);
    const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
    for (auto _ : state) {
        const QPixmap scaled = source.scaled(screen);
        scaled.save(QStringLiteral("scaled.png"), "png");
    }
}
BENCHMARK(plainScaleToTheScreen)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    SystemSetData settings;
    settings.m_strUserFolder = QDir::currentPath();
    CommonData data;
    data.setSystemSetData(&settings);
    SharedContext::setCommonData(&data);
    if (!picture(200).save(cHeadFile)) {
        return 1;
    }

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    SharedContext::setCommonData(nullptr);
    return 0;
}
