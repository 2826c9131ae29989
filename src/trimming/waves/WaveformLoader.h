#pragma once

#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <vector>

#include "API/AudioTrimmerController/EZAudio/EZAudioFile.h"
#include "files/FileIdentity.h"

namespace tavi {

/// The factor that lets the loudest of the points nearly reach the edge of a plot; at most 8, as the noise of a silent
/// room is to look like that. The same for any part of them that is shown.
float fittingGain(const std::vector<float>& points);

/// Reduces sound files to points of loudness in the background, one at a time. Main thread only.
///
/// The last few results are remembered for as long as their files stay as they are. A reduction that nobody waits for
/// any more ends soon: hours of sound keep no processor busy for nothing.
class WaveformLoader {
public:
    /// The points of the first channel; none for a file that cannot be read.
    using Completion = std::function<void(const std::vector<float>& points)>;

    /// The services must outlive the loader, and what it still does in the background.
    explicit WaveformLoader(const EZAudioFile::Services& services) : m_services(services) {}
    ~WaveformLoader() { cancel(); }
    WaveformLoader(const WaveformLoader&) = delete;
    WaveformLoader& operator=(const WaveformLoader&) = delete;

    /// Loads the waveform of a file in the place of the one that is being loaded. The completion
    /// comes on the main thread, never before this returns.
    void load(const std::filesystem::path& path, Completion completion);
    /// No completion comes any more.
    void cancel();

private:
    struct Job;
    struct Result {
        FileIdentity identity;
        std::vector<float> points;
    };

    EZAudioFile::Services m_services;
    std::shared_ptr<Job> m_job;
    /// The newest first.
    std::list<Result> m_results;
};

}  // namespace tavi
