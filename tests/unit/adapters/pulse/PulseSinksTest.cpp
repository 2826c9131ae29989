#include "adapters/pulse/PulseSinks.h"

#include <gtest/gtest.h>
#include <pulse/def.h>

namespace tavi::test {
namespace {

using Availability = PulsePort::Availability;
using Kind = PulsePortKind;

TEST(PulseSinks, NamesTheRouteAndFindsThePortsToChooseFrom) {
    const PulsePort speaker{"out-speaker", Kind::Speaker, Availability::Unknown, QStringLiteral("Lautsprecher")};
    const PulsePort earpiece{"out-earpiece", Kind::Earpiece, Availability::Unknown, QStringLiteral("Hörer")};
    const PulsePort plugged{"out-headphones", Kind::Headphones, Availability::Yes, QStringLiteral("Kopfhörer")};
    const PulsePort unplugged{"out-headphones", Kind::Headphones, Availability::No, QStringLiteral("Kopfhörer")};
    const PulsePort line{"out-line", Kind::Other, Availability::Unknown, QStringLiteral("Line Out")};
    const auto sinkWith = [](const QByteArray& name, const std::vector<PulsePort>& ports) {
        return PulseSink{name, 1, 7, Kind::Other, QStringLiteral("Built-in Audio"), ports.front().name, ports};
    };
    const PulseSink phone = sinkWith("hw", {speaker, earpiece, unplugged});
    const PulseSink listening = sinkWith("hw", {plugged, speaker, earpiece});
    const PulseSink desktop = sinkWith("hw", {line, unplugged});
    const PulseSink loud = sinkWith("hw", {speaker});
    const PulseSink quiet = sinkWith("hw.1", {earpiece});
    const PulseSink bluetooth{"bluez", 3, 9, Kind::Headset, QStringLiteral("Buds"), "out", {{"out", {}, {}, {}}}};
    const PulseSink bare{"null", 2, PA_INVALID_INDEX, Kind::Other, QStringLiteral("Null Output"), "", {}};
    const struct {
        const char* what;
        PulseSinks sinks;
        QByteArray chosen;
        const char* routeSpeakerReceiver;
    } cases[] = {
        {"nothing", {"hw", {}}, "", "||"},
        {"a sink without ports", {"null", {bare}}, "", "Null Output||"},
        {"a phone", {"hw", {phone}}, "", "Speaker|hw/out-speaker|hw/out-earpiece"},
        {"a phone with headphones", {"hw", {listening}}, "", "Headphones|hw/out-speaker|hw/out-headphones"},
        {"a desktop", {"hw", {desktop}}, "", "Line Out||"},
        {"a sink for each way", {"hw", {bare, quiet, loud}}, "", "Speaker|hw/out-speaker|hw.1/out-earpiece"},
        {"the environment's sink", {"hw", {bare, quiet, loud}}, "hw", "Speaker|hw/out-speaker|"},
        {"another card's speaker", {"bluez", {loud, bluetooth}}, "", "Headset||"},
    };
    const auto text = [](const std::optional<PulseWayOut>& way) { return way ? way->sink + '/' + way->port : ""; };
    for (const auto& [what, sinks, chosen, expected] : cases) {
        EXPECT_EQ(sinks.route(chosen).toUtf8() + '|' + text(sinks.speaker(chosen)) + '|' + text(sinks.receiver(chosen)),
                  expected)
            << what;
    }
}

TEST(PulseSinks, ReadsKindsFromWords) {
    EXPECT_EQ(pulsePortKindFromWords("analog-output-headphones"), Kind::Headphones);
    EXPECT_EQ(pulsePortKindFromWords("[Out] Earpiece"), Kind::Earpiece);
    EXPECT_EQ(pulsePortKindFromWords("analog-output-speaker"), Kind::Speaker);
    EXPECT_EQ(pulsePortKindFromWords("headset-output"), Kind::Headset);
    EXPECT_EQ(pulsePortKindFromWords("handset"), Kind::Earpiece);
    EXPECT_EQ(pulsePortKindFromWords("analog-output-lineout"), Kind::Other);
}

}  // namespace
}  // namespace tavi::test
