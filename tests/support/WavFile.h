#pragma once

#include <QByteArray>
#include <cstring>

namespace tavi::test {

/// A WAV file around interleaved samples: floats of 32 bits, or integers of fewer.
inline QByteArray wavFile(int channels, int rate, int bits, const QByteArray& samples) {
    QByteArray bytes("RIFF\0\0\0\0WAVEfmt \x10\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0data\0\0\0\0", 44);
    const auto put = [&](int at, qsizetype value, std::size_t size) { std::memcpy(bytes.data() + at, &value, size); };
    put(4, samples.size() + 36, 4);
    put(20, bits == 32 ? 3 : 1, 2);
    put(22, channels, 2);
    put(24, rate, 4);
    put(28, rate * channels * bits / 8, 4);
    put(32, channels * bits / 8, 2);
    put(34, bits, 2);
    put(40, samples.size(), 4);
    return bytes + samples;
}

}  // namespace tavi::test
