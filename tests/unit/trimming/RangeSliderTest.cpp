#include "trimming/RangeSlider.h"

#include <gtest/gtest.h>

namespace tavi::test {
namespace {

class RangeSliderTest : public ::testing::Test {
protected:
    /// 10 points a second: 20 of padding, 0 to 36 seconds.
    RangeSliderTest() {
        slider.minimumValue = 0.0F;
        slider.selectedMinimumValue = 2.0F;
        slider.maximumValue = 36.0F;
        slider.selectedMaximumValue = 34.0F;
        slider.minimumRange = 1.0F;
        slider.setFrame({0.0, 0.0, 400.0, 120.0});
        QObject::connect(&slider, &RangeSlider::valueChanged, [this] { ++changes; });
    }

    void drag(double from, double to) {
        EXPECT_TRUE(slider.beginTrackingWithTouch({from, 60.0}));
        slider.continueTrackingWithTouch({to, 60.0});
        slider.endTrackingWithTouch();
    }

    RangeSlider slider;
    int changes = 0;
};

TEST_F(RangeSliderTest, DragsKeepTheLeastRangeAndTheEnds) {
    // Each drag goes on from where the one before it left the thumbs.
    const struct {
        const char* what;
        double from, to;
        float minimum, maximum;
    } cases[] = {
        {"a thumb follows its touch, grabbed beside its centre", 50.0, 150.0, 12.0F, 34.0F},
        {"no thumb is hit", 250.0, 300.0, 12.0F, 34.0F},
        {"up to the least range", 140.0, 399.0, 33.0F, 34.0F},
        {"where both thumbs are hit, the minimum's moves", 355.0, 255.0, 23.0F, 34.0F},
        {"not beyond the left end", 250.0, -90.0, 0.0F, 34.0F},
        {"not beyond the right end", 360.0, 900.0, 0.0F, 36.0F},
        {"the maximum down to the least range", 380.0, -50.0, 0.0F, 1.0F},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        drag(one.from, one.to);
        EXPECT_NEAR(slider.selectedMinimumValue, one.minimum, 1e-4F);
        EXPECT_NEAR(slider.selectedMaximumValue, one.maximum, 1e-4F);
    }
    EXPECT_EQ(changes, 6) << "a touch that hits no thumb changes nothing";
    EXPECT_FALSE(slider.continueTrackingWithTouch({200.0, 60.0})) << "no thumb is held";
}

TEST_F(RangeSliderTest, ANarrowRangeIsPushedApartButNotBeyondTheEnd) {
    slider.selectedMinimumValue = 10.0F;
    slider.selectedMaximumValue = 10.5F;
    slider.layoutSubviews();
    drag(120.0, 121.0);
    EXPECT_NEAR(slider.selectedMinimumValue, 9.5F, 1e-4F);
    slider.selectedMinimumValue = 0.4F;
    slider.selectedMaximumValue = 0.5F;
    slider.layoutSubviews();
    drag(24.0, 30.0);
    EXPECT_EQ(slider.selectedMinimumValue, 0.0F);
}

}  // namespace
}  // namespace tavi::test
