#pragma once

#include <functional>

#include "platform/Error.h"

namespace tavi {

/// The program's standing with the sound system: may it record, with what, and where does sound go.
///
/// Main thread, where not said otherwise.
class AudioSession {
public:
    enum class Category { Playback, PlayAndRecord };
    enum class CategoryOption { None, DefaultToSpeaker };

    virtual ~AudioSession() = default;

    /// Asks whether the program may record. The answer comes on any thread, once, and never before this returns.
    /// Without a sound server nobody refuses: the answer is yes, and isInputAvailable() is false.
    virtual void requestRecordPermission(std::function<void(bool granted)> answer) = 0;
    /// Fails when no sound server answers.
    virtual Result<void> setCategory(Category category, CategoryOption option) = 0;
    virtual Result<void> setActive(bool active) = 0;
    /// Whether there is a microphone to record from. A sink's monitor is one only where the user chose it as the
    /// default source; a source whose every port is known to be unplugged is none.
    virtual bool isInputAvailable() const = 0;
};

}  // namespace tavi
