#pragma once

#include <QString>
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
    enum class PortOverride { None, Speaker };

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
    /// What sound comes out of, as the server said last: "Headphones", "Headset", "Receiver" (the earpiece of a phone)
    /// or "Speaker", else the server's own words. Fails when no server has said it.
    virtual Result<QString> currentRoute() const = 0;
    /// Chooses between the ports of a device that has several. Speaker is its loudspeaker, also with headphones plugged
    /// in. None is, to play and record, the headphones or else the earpiece; in category Playback, what it was before
    /// this program changed it. Has no effect on a device without a choice; fails when no server answers.
    virtual Result<void> overrideOutputAudioPort(PortOverride port) = 0;
};

}  // namespace tavi
