#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace tavi {

/// Which place of the recording is heard at which time.
struct PlaybackPosition {
    /// A run of frames of the output that lie side by side in the recording.
    struct Piece {
        /// The number of its first frame in the output.
        std::int64_t start;
        /// The number of that frame in the buffer; negative for silence.
        std::int64_t buffered;
        /// Its place in the recording, in frames, and how far each further frame leads.
        double media;
        double mediaPerFrame;
    };
    static constexpr std::int32_t kMaximumPieces = 8;

    std::array<Piece, kMaximumPieces> pieces;
    std::int64_t count;
    /// The output's timing.
    std::int64_t time;
    std::int64_t heard;
    std::int64_t written;
    std::int64_t sampleRate;
    std::int64_t isMoving;
    /// The jump that led here.
    std::uint64_t jump;

    std::int64_t heardAt(std::int64_t now) const {
        constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
        const std::int64_t elapsed = isMoving != 0 ? std::max<std::int64_t>(now - time, 0) : 0;
        // An output that has stopped answering does not play on.
        return std::min(heard + std::min(elapsed, 10 * kNanosecondsPerSecond) * sampleRate / kNanosecondsPerSecond,
                        written);
    }
    /// The piece that a frame of the output belongs to; null before the first. What lies before the first piece is
    /// what a jump has taken the place of.
    const Piece* pieceAt(std::int64_t frame) const {
        const Piece* found = nullptr;
        for (std::int64_t i = 0; i < count && pieces[static_cast<std::size_t>(i)].start <= frame; ++i) {
            found = &pieces[static_cast<std::size_t>(i)];
        }
        return found;
    }
    /// Frames of the recording.
    double mediaOf(std::int64_t frame) const {
        if (const Piece* piece = pieceAt(frame)) {
            return piece->media + static_cast<double>(frame - piece->start) * piece->mediaPerFrame;
        }
        return count > 0 ? pieces[0].media : 0.0;
    }
    void add(const Piece& piece) {
        while (count > 0 && pieces[static_cast<std::size_t>(count - 1)].start >= piece.start) {
            --count;
        }
        if (count == kMaximumPieces) {
            std::copy(pieces.begin() + 1, pieces.end(), pieces.begin());
            --count;
        }
        pieces[static_cast<std::size_t>(count++)] = piece;
    }
};

/// A position that one thread publishes and others read; nobody waits for anybody.
class PlaybackClock {
public:
    /// Playback thread.
    void publish(const PlaybackPosition& position) {
        Words words;
        std::memcpy(words.data(), &position, sizeof(position));
        const std::uint64_t sequence = m_sequence.load(std::memory_order_relaxed);
        // Odd while it changes. All in one order, which is simple to reason about, and seldom.
        m_sequence.store(sequence + 1);
        for (std::size_t i = 0; i < words.size(); ++i) {
            m_words[i].store(words[i]);
        }
        m_sequence.store(sequence + 2);
    }
    /// Any thread.
    PlaybackPosition read() const {
        Words words;
        std::uint64_t before = 0;
        std::uint64_t after = 1;
        while (before != after || before % 2 != 0) {
            before = m_sequence.load();
            for (std::size_t i = 0; i < words.size(); ++i) {
                words[i] = m_words[i].load();
            }
            after = m_sequence.load();
        }
        PlaybackPosition position;
        std::memcpy(&position, words.data(), sizeof(position));
        return position;
    }

private:
    static_assert(std::is_trivially_copyable_v<PlaybackPosition>);
    static_assert(sizeof(PlaybackPosition) % sizeof(std::uint64_t) == 0);
    using Words = std::array<std::uint64_t, sizeof(PlaybackPosition) / sizeof(std::uint64_t)>;

    std::atomic<std::uint64_t> m_sequence = 0;
    std::array<std::atomic<std::uint64_t>, std::tuple_size_v<Words>> m_words{};
};

}  // namespace tavi
