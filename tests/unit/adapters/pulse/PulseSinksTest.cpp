#include "adapters/pulse/PulseSinks.h"

#include <gtest/gtest.h>
#include <pulse/def.h>

namespace tavi::test {
namespace {

using Availability = PulsePort::Availability;
using Kind = PulsePortKind;

PulseSink sinkWith(const QByteArray& name, const QByteArray& active, std::vector<PulsePort> ports) {
    return {name, 1, 7, Kind::Other, QStringLiteral("Built-in Audio"), active, std::move(ports)};
}

TEST(PulseSinks, NamesTheRouteAndFindsThePortsToChooseFrom) {
    const PulsePort speaker{"out-speaker", Kind::Speaker, Availability::Unknown, QStringLiteral("Lautsprecher")};
    const PulsePort earpiece{"out-earpiece", Kind::Earpiece, Availability::Unknown, QStringLiteral("Hörer")};
    const PulsePort plugged{"out-headphones", Kind::Headphones, Availability::Yes, QStringLiteral("Kopfhörer")};
    const PulsePort unplugged{"out-headphones", Kind::Headphones, Availability::No, QStringLiteral("Kopfhörer")};
    const PulsePort line{"out-line", Kind::Other, Availability::Unknown, QStringLiteral("Line Out")};
    PulseSink bluetooth{"bluez", 3, 9, Kind::Headset, QStringLiteral("Buds"), "out", {{"out", {}, {}, {}}}};
    PulseSink other = sinkWith("hw.1", "out-earpiece", {earpiece});
    PulseSink bare{"null", 2, PA_INVALID_INDEX, Kind::Other, QStringLiteral("Null Output"), "", {}};
    const struct {
        const char* what;
        PulseSinks sinks;
        QByteArray chosen;
        const char* route;
        const char* speaker;
        const char* receiver;
    } cases[] = {
        {"nothing", {"hw", {}}, "", "", "", ""},
        {"a sink without ports", {"null", {bare}}, "", "Null Output", "", ""},
        {"a phone",
         {"hw", {sinkWith("hw", "out-speaker", {speaker, earpiece, unplugged})}},
         "",
         "Speaker",
         "hw/out-speaker",
         "hw/out-earpiece"},
        {"a phone at the ear",
         {"hw", {sinkWith("hw", "out-earpiece", {speaker, earpiece})}},
         "",
         "Receiver",
         "hw/out-speaker",
         "hw/out-earpiece"},
        {"a phone with headphones",
         {"hw", {sinkWith("hw", "out-headphones", {speaker, earpiece, plugged})}},
         "",
         "Headphones",
         "hw/out-speaker",
         "hw/out-headphones"},
        {"a desktop", {"hw", {sinkWith("hw", "out-line", {line, unplugged})}}, "", "Line Out", "", ""},
        {"a sink for each way out",
         {"hw", {bare, other, sinkWith("hw", "out-speaker", {speaker})}},
         "",
         "Speaker",
         "hw/out-speaker",
         "hw.1/out-earpiece"},
        {"the environment's sink",
         {"hw", {bare, other, sinkWith("hw", "out-speaker", {speaker})}},
         "hw",
         "Speaker",
         "hw/out-speaker",
         ""},
        {"another card's speaker",
         {"bluez", {sinkWith("hw", "out-speaker", {speaker}), bluetooth}},
         "",
         "Headset",
         "",
         ""},
    };
    const auto text = [](const std::optional<PulseWayOut>& way) { return way ? way->sink + '/' + way->port : ""; };
    for (const auto& item : cases) {
        EXPECT_EQ(item.sinks.route(item.chosen), QString::fromUtf8(item.route)) << item.what;
        EXPECT_EQ(text(item.sinks.speaker(item.chosen)), item.speaker) << item.what;
        EXPECT_EQ(text(item.sinks.receiver(item.chosen)), item.receiver) << item.what;
    }
}

TEST(PulseSinks, ReadsKindsFromWords) {
    const std::pair<const char*, Kind> words[] = {{"analog-output-headphones", Kind::Headphones},
                                                  {"[Out] Earpiece", Kind::Earpiece},
                                                  {"analog-output-speaker", Kind::Speaker},
                                                  {"headset-output", Kind::Headset},
                                                  {"handset", Kind::Earpiece},
                                                  {"analog-output-lineout", Kind::Other},
                                                  {"", Kind::Other}};
    for (const auto& [word, kind] : words) {
        EXPECT_EQ(pulsePortKindFromWords(word), kind) << word;
    }
}

}  // namespace
}  // namespace tavi::test
