#pragma once

#include <string>

#include "app/cli/CommandServices.h"
#include "platform/Error.h"

namespace tavi {

/// “tavi waveform”: the loudness of a sound file. Paths are the names' own bytes.
struct WaveformOptions {
    std::string file;
    int points = 1024;
    bool json = false;
    /// The picture to draw in place of printing; empty for none.
    std::string png;
};

/// The points as text, or nothing where they are drawn.
Result<QByteArray> run(const WaveformOptions& options, const CommandServices& services);

}  // namespace tavi
