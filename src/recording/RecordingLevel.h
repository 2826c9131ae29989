#pragma once

#include <QObject>

#include "platform/AudioRecorder.h"

namespace tavi {

/// How loud the input of a recording is, and whether that is worth a hint. Main thread only.
class RecordingLevel : public QObject {
    Q_OBJECT
    Q_PROPERTY(double value READ value NOTIFY changed)
    Q_PROPERTY(bool isClipping READ isClipping NOTIFY changed)
    Q_PROPERTY(bool isSilent READ isSilent NOTIFY changed)

public:
    using QObject::QObject;

    /// The level that was read last, in dBFS.
    double value() const { return m_value; }
    /// Whether the input was too loud within the last second and a half.
    bool isClipping() const { return m_readingsSinceClip < kClipReadings; }
    /// Whether nothing was heard for ten seconds.
    bool isSilent() const { return m_silentReadings >= kSilentReadings; }

    /// Reads the recorder's meters, which have just been updated; called ten times a second.
    void read(AudioRecorder& recorder);
    void forget();

Q_SIGNALS:
    void changed();

private:
    /// Of the ten that are taken in a second.
    static constexpr int kClipReadings = 15;
    static constexpr int kSilentReadings = 100;
    static constexpr double kSilence = -160.0;

    double m_value = kSilence;
    int m_silentReadings = 0;
    int m_readingsSinceClip = kClipReadings;
};

}  // namespace tavi
