#pragma once

#include <memory>

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"

namespace tavi {

// Owners of what EZAudioUtilities hands out as plain pointers.

struct FreeBufferList {
    void operator()(AudioBufferList* list) const { EZAudioUtilities::freeBufferList(list); }
};
using OwnedBufferList = std::unique_ptr<AudioBufferList, FreeBufferList>;

struct FreeFloatBuffers {
    std::uint32_t channels = 0;

    void operator()(float** buffers) const { EZAudioUtilities::freeFloatBuffers(buffers, channels); }
};
using OwnedFloatBuffers = std::unique_ptr<float*, FreeFloatBuffers>;

struct FreeHistoryInfo {
    void operator()(PlotHistoryInfo* info) const { EZAudioUtilities::freeHistoryInfo(info); }
};
using OwnedHistoryInfo = std::unique_ptr<PlotHistoryInfo, FreeHistoryInfo>;

}  // namespace tavi
