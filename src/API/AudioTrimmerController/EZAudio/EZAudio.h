#pragma once

#include "API/AudioTrimmerController/EZAudio/EZAudioUtilities.h"

namespace tavi {

/// The older name of EZAudioUtilities: every call goes there one to one.
class EZAudio final : public EZAudioUtilities {};

}  // namespace tavi
