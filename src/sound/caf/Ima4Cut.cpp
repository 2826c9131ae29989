#include "sound/caf/Ima4Cut.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <utility>

#include "files/PositionedIo.h"

namespace tavi {

namespace {

constexpr int kLowest = -32768;
constexpr int kHighest = 32767;
/// How many samples have the same rounded value.
constexpr int kRounding = 128;
/// Packets within which a correction is looked for.
constexpr int kMaximumCorrected = 8;
constexpr std::int64_t kBufferPackets = 1024;

const Ima4Move& moveOf(int step, int code) {
    const auto place = static_cast<unsigned int>(step * 16 + code);
    return kIma4Moves[place];
}

/// The state after a packet whose header has been read.
Ima4State decoded(const std::uint8_t* packet, Ima4State state) {
    for (std::size_t i = 0; i < kIma4PacketFrames; ++i) {
        const Ima4Move& move = moveOf(state.step, ima4Code(packet, i));
        state.sample = std::clamp(state.sample + move.difference, kLowest, kHighest);
        state.step = move.next / 16;
    }
    return state;
}

void writeHeader(std::uint8_t* packet, const Ima4State& state) {
    const auto bits = static_cast<std::uint16_t>((state.sample & ~0x7f) | state.step);
    packet[0] = static_cast<std::uint8_t>(bits >> 8);
    packet[1] = static_cast<std::uint8_t>(bits);
}

/// Looks for codes that bring a decoder from a wrong sample to the right one within a packet. The step indexes stay as
/// they are: a code is only replaced by one with the same next step index. Of all ways to a sample it follows that with
/// the smallest error, and of all samples the kWidth best.
class Correction {
public:
    /// right is the state of a decoder of the whole file, after the header; starts are the samples to begin with.
    bool find(const std::uint8_t* packet, const Ima4State& right, std::span<const int> starts);
    /// Which of the starts was taken, and the codes that were found.
    int start() const { return m_start; }
    void apply(std::uint8_t* packet) const;

private:
    static constexpr std::size_t kWidth = 1500;

    struct Way {
        int sample;
        std::int64_t cost;
        std::int32_t before;
        std::int32_t code;
    };

    std::array<std::vector<Way>, kIma4PacketFrames + 1> m_ways;
    std::array<int, kIma4PacketFrames> m_codes{};
    int m_start = 0;
};

bool Correction::find(const std::uint8_t* packet, const Ima4State& right, std::span<const int> starts) {
    m_ways[0].clear();
    for (const int sample : starts) {
        m_ways[0].push_back({sample, 0, -1, 0});
    }
    // The index of each sample in the next list.
    std::vector<std::int32_t> places(kHighest - kLowest + 1, -1);
    Ima4State state = right;
    for (std::size_t i = 0; i < kIma4PacketFrames; ++i) {
        const int original = ima4Code(packet, i);
        const Ima4Move& move = moveOf(state.step, original);
        const int target = std::clamp(state.sample + move.difference, kLowest, kHighest);
        auto& next = m_ways[i + 1];
        next.clear();
        for (std::size_t before = 0; before < m_ways[i].size(); ++before) {
            const Way& way = m_ways[i][before];
            for (int code = 0; code < 16; ++code) {
                const Ima4Move& other = moveOf(state.step, code);
                if (other.next != move.next) {
                    continue;
                }
                const int sample = std::clamp(way.sample + other.difference, kLowest, kHighest);
                const std::int64_t error = sample - target;
                const std::int64_t cost = way.cost + error * error;
                std::int32_t& place = places[static_cast<std::size_t>(sample - kLowest)];
                if (place < 0) {
                    place = static_cast<std::int32_t>(next.size());
                    next.push_back({sample, std::numeric_limits<std::int64_t>::max(), 0, 0});
                }
                Way& found = next[static_cast<std::size_t>(place)];
                if (cost < found.cost) {
                    found = {sample, cost, static_cast<std::int32_t>(before), code};
                }
            }
        }
        for (const Way& way : next) {
            places[static_cast<std::size_t>(way.sample - kLowest)] = -1;
        }
        if (next.size() > kWidth) {
            const auto cheaper = [](const Way& a, const Way& b) { return a.cost < b.cost; };
            std::nth_element(next.begin(), next.begin() + kWidth, next.end(), cheaper);
            next.resize(kWidth);
        }
        state = {target, move.next / 16};
    }
    const auto& last = m_ways.back();
    const auto found =
        std::find_if(last.begin(), last.end(), [&](const Way& way) { return way.sample == state.sample; });
    if (found == last.end()) {
        return false;
    }
    auto at = static_cast<std::int32_t>(found - last.begin());
    for (std::size_t i = kIma4PacketFrames; i > 0; --i) {
        const Way& way = m_ways[i][static_cast<std::size_t>(at)];
        m_codes[i - 1] = way.code;
        at = way.before;
    }
    m_start = at;
    return true;
}

void Correction::apply(std::uint8_t* packet) const {
    for (std::size_t i = 0; i < kIma4PacketFrames; i += 2) {
        packet[2 + i / 2] = static_cast<std::uint8_t>(m_codes[i] | m_codes[i + 1] << 4);
    }
}

}  // namespace

Ima4Cut::Ima4Cut(int fd, const CafHeader& header, std::function<bool()> isCancelled)
    : m_fd(fd), m_header(header), m_isCancelled(std::move(isCancelled)) {}

const std::uint8_t* Ima4Cut::packetAt(std::size_t channel, std::int64_t packet) {
    if (packet < m_firstBuffered || packet >= m_firstBuffered + m_buffered) {
        m_firstBuffered = packet;
        const std::int64_t offset = packet * m_header.packetBytes;
        const std::int64_t wanted = std::min(kBufferPackets * m_header.packetBytes, m_header.dataBytes - offset);
        m_bytes.resize(static_cast<std::size_t>(std::max<std::int64_t>(0, wanted)));
        const bool isOver = m_isCancelled() || wanted <= 0;
        const std::size_t count =
            isOver ? 0 : readFully(m_fd, m_bytes.data(), m_bytes.size(), m_header.dataOffset + offset);
        m_buffered = static_cast<std::int64_t>(count) / m_header.packetBytes;
    }
    const auto at = static_cast<std::size_t>((packet - m_firstBuffered) * m_header.packetBytes);
    return m_buffered > packet - m_firstBuffered ? m_bytes.data() + at + channel * kIma4PacketBytes : nullptr;
}

std::optional<Ima4State> Ima4Cut::stateFrom(std::size_t channel, std::int64_t from, std::int64_t packet) {
    Ima4State state;
    // The exact sample is that of the state plus something from low to high.
    int low = 0;
    int high = kRounding - 1;
    bool isLost = true;
    for (std::int64_t at = from; at <= packet; ++at) {
        const std::uint8_t* bytes = packetAt(channel, at);
        if (bytes == nullptr) {
            return std::nullopt;
        }
        const Ima4State header = ima4Header(bytes);
        if (!isLost && header.step != state.step) {
            // Every decoder takes over this header.
            state = header;
            low = high = 0;
        } else if (isLost) {
            state = header;
            low = 0;
            high = kRounding - 1;
        } else {
            const int above = state.sample - header.sample;
            low = std::max(low, -above);
            high = std::min(high, kRounding - 1 - above);
            if (low > high) {
                return std::nullopt;
            }
        }
        isLost = false;
        for (std::size_t i = 0; at < packet && i < kIma4PacketFrames; ++i) {
            const Ima4Move& move = moveOf(state.step, ima4Code(bytes, i));
            state.sample += move.difference;
            state.step = move.next / 16;
            // Clipping depends on the exact sample.
            isLost = isLost || state.sample + high > kHighest || state.sample + low < kLowest;
        }
    }
    return low == high && !isLost ? std::optional(Ima4State{state.sample + low, state.step}) : std::nullopt;
}

std::optional<Ima4State> Ima4Cut::stateBefore(std::size_t channel, std::int64_t packet) {
    // The start of the file, where every sample is known, shows whether the encoder rounds down.
    constexpr std::int64_t kEnough = 512;
    constexpr int kNearEnd = 16;
    Ima4State state;
    int lowest = kRounding;
    int highest = -1;
    bool isTried = false;
    for (std::int64_t at = 0;; ++at) {
        const std::uint8_t* bytes = packetAt(channel, at);
        if (bytes == nullptr) {
            return std::nullopt;
        }
        readIma4Header(bytes, state);
        if (at == packet) {
            return state;
        }
        const int above = state.sample - ima4Header(bytes).sample;
        lowest = std::min(lowest, above);
        highest = std::max(highest, above);
        const bool isRoundedDown = lowest >= 0 && lowest < kNearEnd && highest >= kRounding - kNearEnd;
        if (!isTried && at >= kEnough && isRoundedDown) {
            isTried = true;
            for (std::int64_t back = 1024; packet - back > at; back *= 4) {
                if (const auto found = stateFrom(channel, packet - back, packet)) {
                    return found;
                }
            }
            bytes = packetAt(channel, at);
            if (bytes == nullptr) {
                return std::nullopt;
            }
        }
        state = decoded(bytes, state);
    }
}

std::optional<std::vector<std::uint8_t>> Ima4Cut::correctedPackets(std::size_t channel, std::int64_t packet) {
    std::vector<std::uint8_t> packets;
    const auto right = stateBefore(channel, packet);
    if (!right) {
        return std::nullopt;
    }
    Ima4State exact = *right;
    const int rounded = exact.sample & ~0x7f;
    std::vector<int> starts = {rounded};
    if (rounded + kRounding <= kHighest) {
        starts.push_back(rounded + kRounding);
    }
    if (exact.sample - rounded > kRounding / 2) {
        std::reverse(starts.begin(), starts.end());
    }
    Ima4State heard;
    for (int tried = 0; packet > 0 && tried < kMaximumCorrected; ++tried) {
        const std::uint8_t* bytes = packetAt(channel, packet + tried);
        if (bytes == nullptr) {
            break;
        }
        packets.insert(packets.end(), bytes, bytes + kIma4PacketBytes);
        std::uint8_t* own = packets.data() + packets.size() - kIma4PacketBytes;
        if (tried > 0) {
            readIma4Header(bytes, exact);
            readIma4Header(bytes, heard);
            starts = {heard.sample};
        }
        Correction correction;
        if (correction.find(bytes, exact, starts)) {
            if (tried == 0) {
                writeHeader(own, {starts[static_cast<std::size_t>(correction.start())], exact.step});
            }
            correction.apply(own);
            break;
        }
        if (tried == 0) {
            heard = {starts.front(), exact.step};
            writeHeader(own, heard);
        }
        heard = decoded(bytes, heard);
        exact = decoded(bytes, exact);
    }
    return packets;
}

FileResult<std::vector<std::uint8_t>> Ima4Cut::firstPackets(std::int64_t packet) {
    const auto fails = [] { return fileFailure("The sound file could not be read."); };
    std::vector<std::vector<std::uint8_t>> corrected;
    std::size_t count = 0;
    for (std::size_t channel = 0; channel < m_header.channels; ++channel) {
        auto packets = correctedPackets(channel, packet);
        if (!packets) {
            return fails();
        }
        count = std::max(count, packets->size() / kIma4PacketBytes);
        corrected.push_back(std::move(*packets));
    }
    std::vector<std::uint8_t> packets;
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t channel = 0; channel < corrected.size(); ++channel) {
            const auto& own = corrected[channel];
            const std::uint8_t* bytes = (i + 1) * kIma4PacketBytes <= own.size()
                                            ? own.data() + i * kIma4PacketBytes
                                            : packetAt(channel, packet + static_cast<std::int64_t>(i));
            if (bytes == nullptr) {
                return fails();
            }
            packets.insert(packets.end(), bytes, bytes + kIma4PacketBytes);
        }
    }
    return packets;
}

}  // namespace tavi
