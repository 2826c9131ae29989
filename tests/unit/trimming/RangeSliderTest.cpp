#include "trimming/RangeSlider.h"

#include <gmock/gmock.h>

#include "support/Printers.h"

namespace tavi::test {
namespace {

struct RangeSliderTest : ::testing::Test {
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
        {"no thumb is hit, after the maximum's was", 200.0, 250.0, 0.0F, 36.0F},
        {"the minimum's again", 20.0, 120.0, 10.0F, 36.0F},
        {"the maximum down to the least range", 380.0, -50.0, 10.0F, 11.0F},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        drag(one.from, one.to);
        EXPECT_NEAR(slider.selectedMinimumValue, one.minimum, 1e-4F);
        EXPECT_NEAR(slider.selectedMaximumValue, one.maximum, 1e-4F);
        EXPECT_NEAR(slider.minThumbX(), 20.0 + 10.0 * static_cast<double>(one.minimum), 1e-3);
        EXPECT_NEAR(slider.trackHighlight().width(), 10.0 * static_cast<double>(one.maximum - one.minimum), 1e-3);
    }
    EXPECT_EQ(changes, 7) << "a touch that hits no thumb changes nothing";
    EXPECT_EQ(slider.trackHighlight().center().y(), 60.0);
    // A narrow range is pushed apart, but not beyond the end.
    for (const auto& [from, to, left] : {std::tuple{10.0F, 10.5F, 9.5F}, {0.4F, 0.5F, 0.0F}}) {
        slider.selectedMinimumValue = from;
        slider.selectedMaximumValue = to;
        slider.layoutSubviews();
        drag(slider.minThumbX(), slider.minThumbX() + 1.0);
        EXPECT_NEAR(slider.selectedMinimumValue, left, 1e-4F);
    }
}

TEST_F(RangeSliderTest, LabelsAndImagesFollowADragOnly) {
    const QPointF corner(25.0, 15.0);
    EXPECT_EQ(slider.minLabelCentre(), corner);
    EXPECT_TRUE(slider.beginTrackingWithTouch({40.0, 60.0}));
    EXPECT_EQ(slider.minThumbImage(), QStringLiteral("handle_h.png"));
    EXPECT_TRUE(slider.continueTrackingWithTouch({119.5, 60.0}));
    EXPECT_EQ(slider.lblMinValue(), QStringLiteral("00:09"));
    EXPECT_NEAR(slider.minLabelCentre().x(), 119.5, 1e-3);
    EXPECT_EQ(slider.minLabelCentre().y(), 10.0);
    EXPECT_EQ(slider.maxLabelCentre(), corner);
    slider.endTrackingWithTouch();
    EXPECT_EQ(slider.minThumbImage(), QStringLiteral("handle.png"));
    EXPECT_FALSE(slider.continueTrackingWithTouch({200.0, 60.0}));

    slider.selectedMinimumValue = 1.0F;
    EXPECT_NEAR(slider.minThumbX(), 119.5, 1e-3) << "the next layout moves it";
    slider.layoutSubviews();
    EXPECT_EQ(slider.minThumbX(), 30.0);
    // A thumb's right edge is outside of it.
    EXPECT_TRUE(slider.beginTrackingWithTouch({45.0, 60.0}));
    EXPECT_FALSE(slider.minThumbOn());
}

TEST_F(RangeSliderTest, MovesByKeysAndMixesThePrecisionsOfItsArithmetic) {
    slider.nudge(false, -1.0);
    slider.nudge(true, 0.5);
    EXPECT_NEAR(slider.selectedMaximumValue, 33.0F, 1e-3F);
    EXPECT_NEAR(slider.selectedMinimumValue, 2.5F, 1e-3F);
    EXPECT_FALSE(slider.minThumbOn() || slider.maxThumbOn());
    // With these, arithmetic in one precision gives other bits.
    slider.maximumValue = 3601.7F;
    slider.setFrame({0.0, 0.0, 361.3, 100.0});
    const float value = 1187 * 0.937F;
    EXPECT_EQ(slider.xForValue(value), static_cast<float>(20.0 + double{value / 3601.7F} * 321.3));
    EXPECT_EQ(slider.valueForX(123.4F), static_cast<float>(double{123.4F - 20.0F} / 321.3 * double{3601.7F}));
    EXPECT_EQ(slider.stringFromTime(65) + slider.stringFromTime(600), QStringLiteral("01:0510:00"));
}

}  // namespace
}  // namespace tavi::test
