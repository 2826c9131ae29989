#include "adapters/pulse/PulseSources.h"

#include <gtest/gtest.h>

namespace tavi::test {
namespace {

TEST(PulseSources, FindsSomethingToRecordFrom) {
    const PulseSource microphone{"mic", 1, false, false, QStringLiteral("Desk")};
    const PulseSource unplugged{"jack", 2, false, true, QStringLiteral("Jack")};
    const PulseSource monitor{"speaker.monitor", 3, true, false, QStringLiteral("Speaker")};
    const PulseSource headset{"head", 4, false, false, QStringLiteral("Headset")};
    const std::vector<PulseSource> all{microphone, unplugged, monitor, headset};
    const struct {
        const char* what;
        PulseSources sources;
        QByteArray chosen, preferred;
        const char* current;
    } cases[] = {
        {"nothing", {"", {}}, "", "", ""},
        {"a microphone", {"mic", all}, "", "", "Desk"},
        {"nothing plugged in", {"jack", {unplugged, monitor}}, "", "", ""},
        {"a monitor for want of anything else", {"speaker.monitor", {monitor}}, "", "", ""},
        {"a monitor made the default beside a microphone", {"speaker.monitor", all}, "", "", "Speaker"},
        {"a monitor that the environment asks for", {"speaker.monitor", {monitor}}, "speaker.monitor", "", "Speaker"},
        {"the environment before the default", {"mic", all}, "jack", "", ""},
        {"asked for by index", {"jack", all}, "1", "", "Desk"},
        {"asked for in vain", {"mic", all}, "other", "", ""},
        {"the preferred before the environment", {"mic", all}, "mic", "head", "Headset"},
        {"preferred in vain", {"mic", all}, "", "other", "Desk"},
        {"preferred and unplugged", {"mic", all}, "", "jack", "Desk"},
        {"preferred, and no microphone", {"mic", all}, "", "speaker.monitor", "Desk"},
    };
    for (const auto& item : cases) {
        EXPECT_EQ(item.sources.inputs(item.chosen, item.preferred).current.portName, QLatin1String(item.current))
            << item.what;
    }
    const std::vector<AudioSessionPort> microphones{{QStringLiteral("mic"), QStringLiteral("Desk")},
                                                    {QStringLiteral("head"), QStringLiteral("Headset")}};
    EXPECT_EQ(PulseSources({"mic", all}).inputs("", "").available, microphones);
}

}  // namespace
}  // namespace tavi::test
