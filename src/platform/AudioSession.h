#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "platform/Error.h"

namespace tavi {

/// Something to record from.
struct AudioSessionPort {
    /// The sound system's own name for it, the same the next time that it is there.
    QString uid;
    /// What people call it.
    QString portName;

    bool operator==(const AudioSessionPort&) const = default;
};

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
    /// The microphones that are there, as the server said last; those with nothing plugged in, and the monitors of
    /// sinks, are none.
    virtual std::vector<AudioSessionPort> availableInputs() const = 0;
    /// What is recorded from: the preferred microphone while it is there, else the user's default source. Empty where
    /// there is nothing.
    virtual AudioSessionPort currentInput() const = 0;
    /// Prefers a microphone by its uid, for what is recorded now and later; an empty one prefers none.
    virtual void setPreferredInput(const QString& uid) = 0;
    /// Has the listener called, on any thread, whenever the answers of the two have changed. An empty one is none.
    virtual void setInputsListener(std::function<void()> listener) = 0;
    /// What sound comes out of, as the server said last: "Headphones", "Headset", "Receiver" (the earpiece of a phone)
    /// or "Speaker", else the server's own words. Fails when no server has said it.
    virtual Result<QString> currentRoute() const = 0;
    /// The sound server and its version, as it says them itself; empty where none has said it.
    virtual QString serverName() const = 0;
    /// Chooses between the ports of a device that has several. Speaker is its loudspeaker, also with headphones plugged
    /// in. None is, to play and record, the headphones or else the earpiece; in category Playback, what it was before
    /// this program changed it. Has no effect on a device without a choice; fails when no server answers.
    virtual Result<void> overrideOutputAudioPort(PortOverride port) = 0;
};

}  // namespace tavi
