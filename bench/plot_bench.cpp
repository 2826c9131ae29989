// How long it takes to take the level of samples, and to paint a filled and mirrored waveform of 1024 points.

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <vector>

#include "support/FakeDisplayRefresh.h"
#include "trimming/waves/EZAudioPlotPainter.h"

namespace {

constexpr int kRounds = 101;

template <typename Work>
double medianMilliseconds(Work work) {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::nth_element(times.begin(), times.begin() + kRounds / 2, times.end());
    return times[kRounds / 2];
}

/// Levels as speech has them: words, pauses, and each point another than its neighbours.
std::vector<float> speech(std::size_t count) {
    std::vector<float> levels(count);
    std::uint32_t noise = 1;
    for (std::size_t i = 0; i < count; ++i) {
        noise = noise * 1664525U + 1013904223U;
        const double word = std::max(0.0, std::sin(0.05 * static_cast<double>(i)));
        levels[i] = static_cast<float>(0.02 + 0.6 * word * (0.4 + 0.6 * static_cast<double>(noise >> 8) / 16777216.0));
    }
    return levels;
}

}  // namespace

int main() {
    const std::vector<float> samples = speech(200'000);
    volatile float level = 0.0F;
    const double rms = medianMilliseconds(
        [&] { level = tavi::EZAudioUtilities::RMS(samples.data(), static_cast<std::int32_t>(samples.size())); });
    std::printf("figure: rms-200000-samples %.4f ms\n", rms);

    const std::vector<float> levels = speech(1024);
    tavi::test::FakeDisplayRefreshes refreshes;
    for (const QSize size : {QSize(390, 200), QSize(1200, 300)}) {
        const auto plot = tavi::EZAudioPlot::initWithFrame(refreshes, QRectF(QPointF(), size));
        plot->setShouldOptimizeForRealtimePlot(false);
        plot->setShouldFill(true);
        plot->setShouldMirror(true);
        const double feed =
            medianMilliseconds([&] { plot->updateBuffer(levels.data(), static_cast<quint32>(levels.size())); });
        std::printf("figure: feed-%dx%d %.4f ms\n", size.width(), size.height(), feed);
        for (const int ratio : {1, 2, 3}) {
            QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::black);
            const double paint = medianMilliseconds([&] {
                QPainter painter(&image);
                tavi::paintPlot(painter, *plot);
            });
            std::printf("figure: paint-%dx%d@%d %.4f ms\n", size.width(), size.height(), ratio, paint);
        }
    }
    return 0;
}
