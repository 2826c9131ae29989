#include "adapters/pulse/PulseSources.h"

#include <gtest/gtest.h>

namespace tavi::test {
namespace {

TEST(PulseSources, FindsSomethingToRecordFrom) {
    const PulseSource microphone{"mic", 1, false, false};
    const PulseSource unplugged{"jack", 2, false, true};
    const PulseSource monitor{"speaker.monitor", 3, true, false};
    const struct {
        const char* what;
        PulseSources sources;
        QByteArray chosen;
        bool isAvailable;
    } cases[] = {
        {"nothing", {"", {}}, "", false},
        {"a microphone", {"mic", {microphone, monitor}}, "", true},
        {"nothing plugged in", {"jack", {unplugged, monitor}}, "", false},
        {"a monitor for want of anything else", {"speaker.monitor", {monitor}}, "", false},
        {"a monitor made the default beside a microphone", {"speaker.monitor", {microphone, monitor}}, "", true},
        {"a monitor that the environment asks for", {"speaker.monitor", {monitor}}, "speaker.monitor", true},
        {"the environment before the default", {"mic", {microphone, unplugged}}, "jack", false},
        {"asked for by index", {"jack", {microphone, unplugged}}, "1", true},
        {"asked for in vain", {"mic", {microphone}}, "other", false},
    };
    for (const auto& item : cases) {
        EXPECT_EQ(item.sources.isInputAvailable(item.chosen), item.isAvailable) << item.what;
    }
}

}  // namespace
}  // namespace tavi::test
