#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <cstdlib>

namespace tavi::test {

/// How many pixels differ by more than that in a colour; both pictures have one size.
inline int differences(const QImage& one, const QImage& other, int visible = 64) {
    int count = 0;
    for (int i = 0; i < one.width() * one.height(); ++i) {
        const QRgb a = one.pixel(i % one.width(), i / one.width());
        const QRgb b = other.pixel(i % one.width(), i / one.width());
        const int far = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                  std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
        count += far > visible ? 1 : 0;
    }
    return count;
}

/// Compares with the picture in a file. With TAVI_WRITE_PICTURES in the environment it is written first, to be looked
/// at.
inline void expectLooksLike(const QImage& picture, const QString& path) {
    if (qEnvironmentVariableIsSet("TAVI_WRITE_PICTURES")) {
        ASSERT_TRUE(picture.save(path));
    }
    const QImage expected(path);
    ASSERT_EQ(picture.size(), expected.size());
    EXPECT_LT(differences(picture, expected), picture.width() * picture.height() / 2000);
}

}  // namespace tavi::test
