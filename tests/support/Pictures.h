#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstdlib>

namespace tavi::test {

/// The part of pixels that differ visibly.
inline double difference(const QImage& one, const QImage& other) {
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int far = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                      std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
            different += far > 8 ? 1 : 0;
        }
    }
    return different / static_cast<double>(one.width() * one.height());
}

/// Compares with the picture in a file. With TAVI_WRITE_PICTURES in the environment it is written first, to be looked
/// at.
inline void expectLooksLike(const QImage& picture, const QString& path) {
    if (qEnvironmentVariableIsSet("TAVI_WRITE_PICTURES")) {
        ASSERT_TRUE(picture.save(path));
    }
    const QImage expected(path);
    ASSERT_EQ(picture.size(), expected.size());
    EXPECT_LT(difference(picture, expected), 0.005);
}

}  // namespace tavi::test
