#include "sound/mp4/Mp4Tables.h"

#include <functional>

#include "sound/mp4/Mp4Boxes.h"

namespace tavi {

namespace {

constexpr std::size_t kBufferBytes = 64 * 1024;

/// Gathers equal values that follow each other.
class RunLength {
public:
    using Finished = std::function<void(std::uint64_t count, std::uint64_t value)>;

    explicit RunLength(Finished finished) : m_finished(std::move(finished)) {}

    void add(std::uint64_t value) {
        if (value != m_value) {
            finish();
            m_value = value;
        }
        ++m_count;
    }
    void finish() {
        if (m_count > 0) {
            m_finished(m_count, m_value);
        }
        m_count = 0;
    }

private:
    Finished m_finished;
    std::uint64_t m_count = 0;
    std::uint64_t m_value = 0;
};

/// The header of a table: its length, type, and version with flags.
void beginTable(Mp4Appender& appender, std::uint32_t type, std::uint64_t size) {
    appender.u32(size);
    appender.u32(type);
    appender.u32(0);
}

}  // namespace

FileResult<Mp4Totals> Mp4Totals::of(const Mp4Fragments& fragments) {
    Mp4Totals totals;
    RunLength times([&](std::uint64_t, std::uint64_t) { ++totals.timeRuns; });
    RunLength chunks([&](std::uint64_t, std::uint64_t) { ++totals.chunkRuns; });
    const FileResult<std::int64_t> end = fragments.forEachRun([&](const Mp4Run& run) {
        ++totals.chunks;
        chunks.add(run.samples.size());
        totals.samples += run.samples.size();
        for (const Mp4Sample& sample : run.samples) {
            times.add(sample.duration);
            totals.duration += sample.duration;
        }
        return true;
    });
    if (!end) {
        return tl::unexpected(end.error());
    }
    times.finish();
    chunks.finish();
    totals.end = *end;
    return totals;
}

Mp4Appender::Mp4Appender(int fd, std::int64_t offset, const PwriteFunction& pwrite)
    : m_fd(fd), m_offset(offset), m_pwrite(pwrite) {
    m_buffer.reserve(kBufferBytes + 8);
}

void Mp4Appender::bytes(std::span<const std::uint8_t> data) {
    flush();
    const WriteResult result =
        m_error == 0 ? writeFully(m_pwrite, m_fd, data.data(), data.size(), m_offset) : WriteResult{0, m_error};
    m_offset += static_cast<std::int64_t>(data.size());
    m_error = result.error;
}

void Mp4Appender::flush() {
    if (m_error == 0) {
        m_error = writeFully(m_pwrite, m_fd, m_buffer.data(), m_buffer.size(), m_offset).error;
    }
    m_offset += static_cast<std::int64_t>(m_buffer.size());
    m_buffer.clear();
}

void Mp4Appender::number(std::uint64_t value, int size) {
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
        m_buffer.push_back(static_cast<std::uint8_t>(value >> shift));
    }
    if (m_buffer.size() >= kBufferBytes) {
        flush();
    }
}

FileResult<void> appendMp4Tables(Mp4Appender& appender, const Mp4Fragments& fragments, const Mp4Totals& totals) {
    beginTable(appender, mp4Type("stts"), 16 + 8 * totals.timeRuns);
    appender.u32(totals.timeRuns);
    RunLength times([&](std::uint64_t count, std::uint64_t duration) {
        appender.u32(count);
        appender.u32(duration);
    });
    FileResult<std::int64_t> end = fragments.forEachRun([&](const Mp4Run& run) {
        for (const Mp4Sample& sample : run.samples) {
            times.add(sample.duration);
        }
        return true;
    });
    times.finish();

    beginTable(appender, mp4Type("stsc"), 16 + 12 * totals.chunkRuns);
    appender.u32(totals.chunkRuns);
    std::uint64_t firstChunk = 1;
    RunLength chunks([&](std::uint64_t count, std::uint64_t samples) {
        appender.u32(firstChunk);
        appender.u32(samples);
        appender.u32(1);
        firstChunk += count;
    });
    const auto addRun = [&](const Mp4Run& run) {
        chunks.add(run.samples.size());
        return true;
    };
    end = end ? fragments.forEachRun(addRun) : end;
    chunks.finish();

    beginTable(appender, mp4Type("stsz"), 20 + 4 * totals.samples);
    appender.u32(0);
    appender.u32(totals.samples);
    const auto addSizes = [&](const Mp4Run& run) {
        for (const Mp4Sample& sample : run.samples) {
            appender.u32(sample.size);
        }
        return true;
    };
    end = end ? fragments.forEachRun(addSizes) : end;

    beginTable(appender, mp4Type("co64"), 16 + 8 * totals.chunks);
    appender.u32(totals.chunks);
    const auto addOffset = [&](const Mp4Run& run) {
        appender.u64(static_cast<std::uint64_t>(run.offset));
        return true;
    };
    end = end ? fragments.forEachRun(addOffset) : end;
    if (!end) {
        return tl::unexpected(end.error());
    }
    return {};
}

}  // namespace tavi
