#include "trimming/waves/WaveformText.h"

#include <cmath>

namespace tavi {

namespace {

/// As many digits as tell one float from the next.
QByteArray number(float value, const char* otherwise) {
    constexpr int kDigits = 9;
    return std::isfinite(value) ? QByteArray::number(static_cast<double>(value), 'g', kDigits) : QByteArray(otherwise);
}

}  // namespace

QByteArray waveformText(const EZAudioFloatData& waveform, bool json) {
    const int channels = waveform.numberOfChannels();
    const std::uint32_t points = waveform.bufferSize();
    QByteArray text;
    if (!json) {
        for (std::uint32_t point = 0; point < points; ++point) {
            for (int channel = 0; channel < channels; ++channel) {
                text += (channel > 0 ? "\t" : "") + number(waveform.bufferForChannel(channel)[point], "nan");
            }
            text += '\n';
        }
        return text;
    }
    text =
        "{\"channels\":" + QByteArray::number(channels) + ",\"points\":" + QByteArray::number(points) + ",\"data\":[";
    for (int channel = 0; channel < channels; ++channel) {
        text += channel > 0 ? ",[" : "[";
        for (std::uint32_t point = 0; point < points; ++point) {
            text += (point > 0 ? "," : "") + number(waveform.bufferForChannel(channel)[point], "null");
        }
        text += ']';
    }
    return text + "]}\n";
}

}  // namespace tavi
