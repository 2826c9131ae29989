#include "adapters/ffmpeg/exporting/M4aPackets.h"

#include "files/PathText.h"
#include "sound/mp4/Mp4MovieWriter.h"

namespace tavi {

M4aPackets::M4aPackets(const ExportJob& job) : m_job(job) {
    // How many bytes follow is written there later.
    const auto head = mp4FileHead(0);
    m_offset = head.size();
    job.file.append(head);
}

void M4aPackets::add(std::uint32_t size, std::uint32_t duration) {
    m_samples.push_back({size, duration});
    m_duration += duration;
    m_bytes += size;
}

Result<bool> M4aPackets::finish(const M4aSound& sound) {
    const std::int64_t over = m_duration - sound.end;
    if (!m_samples.empty() && over > 0 && over < m_samples.back().duration) {
        m_samples.back().duration -= static_cast<std::uint32_t>(over);
    }
    m_job.file.flush();
    m_job.file.overwrite(mp4FileHead(m_bytes), 0);
    const Mp4Runs runs = mp4RunsOf(m_samples, static_cast<std::int64_t>(m_offset));
    const auto totals = Mp4Totals::of(runs);
    const Mp4MovieDescription movie{sound.timeScale, sound.description, sound.userData, sound.start,
                                    sound.end - sound.start};
    const auto written = totals ? writeMp4Movie(movie, *totals, runs, [this](auto bytes) { m_job.file.append(bytes); })
                                : tl::unexpected(totals.error());
    return written ? exportDone(m_job) : tl::unexpected(errorOf(written.error()));
}

}  // namespace tavi
