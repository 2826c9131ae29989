#include "trimming/waves/WaveformLoader.h"

#include <algorithm>
#include <cmath>
#include <stop_token>
#include <utility>

namespace tavi {

namespace {

constexpr std::size_t kRemembered = 8;

/// A file that is at its end as soon as nobody wants it any more.
class AbandonedFile : public ExtAudioFile {
public:
    AbandonedFile(std::unique_ptr<ExtAudioFile> file, std::stop_token stop)
        : m_file(std::move(file)), m_stop(std::move(stop)) {}

    AudioStatus fileDataFormat(AudioStreamBasicDescription& format) const override {
        return m_file->fileDataFormat(format);
    }
    AudioStatus fileLengthFrames(std::int64_t& frames) const override { return m_file->fileLengthFrames(frames); }
    AudioStatus fileMaxPacketSize(std::uint32_t& bytes) const override { return m_file->fileMaxPacketSize(bytes); }
    AudioStatus infoDictionary(AudioFileInfo& info) const override { return m_file->infoDictionary(info); }
    bool isRandomAccess() const override { return m_file->isRandomAccess(); }
    AudioStatus setClientDataFormat(const AudioStreamBasicDescription& format) override {
        return m_file->setClientDataFormat(format);
    }
    AudioStatus read(std::uint32_t& frames, AudioBufferList& data) override {
        if (m_stop.stop_requested()) {
            frames = 0;
            return kAudioNoError;
        }
        return m_file->read(frames, data);
    }
    AudioStatus seek(std::int64_t frame) override {
        return m_stop.stop_requested() ? kAudioNoError : m_file->seek(frame);
    }
    AudioStatus tell(std::int64_t& frame) const override { return m_file->tell(frame); }

private:
    std::unique_ptr<ExtAudioFile> m_file;
    std::stop_token m_stop;
};

class AbandonableFiles : public ExtAudioFiles {
public:
    explicit AbandonableFiles(ExtAudioFiles& files) : m_files(files) {}

    AudioStatus open(const std::filesystem::path& path, std::unique_ptr<ExtAudioFile>& file,
                     const std::stop_token& = {}) override {
        const AudioStatus status = m_files.open(path, file, stop.get_token());
        if (file) {
            file = std::make_unique<AbandonedFile>(std::move(file), stop.get_token());
        }
        return status;
    }

    std::stop_source stop;

private:
    ExtAudioFiles& m_files;
};

}  // namespace

float fittingGain(const std::vector<float>& points) {
    constexpr float kNearlyFull = 0.92F;
    constexpr float kMost = 8.0F;
    const auto loudest = std::max_element(points.begin(), points.end());
    return loudest == points.end() || !(*loudest > 0.0F) ? 1.0F : std::min(kMost, kNearlyFull / *loudest);
}

struct WaveformLoader::Job {
    explicit Job(ExtAudioFiles& openedBy) : files(openedBy) {}

    AbandonableFiles files;
};

void WaveformLoader::cancel() {
    if (m_job) {
        m_job->files.stop.request_stop();
        m_job.reset();
    }
}

void WaveformLoader::load(const std::filesystem::path& path, Completion completion) {
    cancel();
    const auto job = std::make_shared<Job>(m_services.files);
    m_job = job;
    const auto identity = FileIdentity::at(path);
    const auto finish = [this, job, completion = std::move(completion)](const std::vector<float>& points) {
        m_job.reset();
        completion(points);
    };
    // The loader lives for as long as its job is not abandoned.
    const auto known = std::find_if(m_results.begin(), m_results.end(),
                                    [&](const Result& result) { return result.identity == identity; });
    if (known != m_results.end()) {
        m_results.splice(m_results.begin(), m_results, known);
        m_services.queues.dispatchMain([finish, job, points = known->points] {
            if (!job->files.stop.stop_requested()) {
                finish(points);
            }
        });
        return;
    }
    m_services.queues.dispatchBackground(
        [this, path, identity, finish, job, &queues = m_services.queues, &converters = m_services.converters] {
            std::vector<float> points;
            const auto file =
                EZAudioFile::audioFileWithURL(path, {.files = job->files, .converters = converters, .queues = queues});
            if (const auto data = file && file->totalFrames() > 0 ? file->getWaveformData() : nullptr) {
                const float* first = data->bufferForChannel(0);
                points.assign(first, first + data->bufferSize());
                // What lies behind the end of a short file has no level.
                std::replace_if(
                    points.begin(), points.end(), [](float point) { return std::isnan(point); }, 0.0F);
            }
            queues.dispatchMain([this, identity, finish, job, points = std::move(points)] {
                if (job->files.stop.stop_requested()) {
                    return;
                }
                if (identity) {
                    m_results.push_front({*identity, points});
                }
                if (m_results.size() > kRemembered) {
                    m_results.pop_back();
                }
                finish(points);
            });
        });
}

}  // namespace tavi
