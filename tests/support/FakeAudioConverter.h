#pragma once

#include <memory>

#include "platform/AudioConverter.h"

namespace tavi::test {

/// For those who never listen to what is read: nothing is converted.
class FakeAudioConverters : public AudioConverters {
public:
    AudioStatus create(const AudioStreamBasicDescription&, const AudioStreamBasicDescription&,
                       std::unique_ptr<AudioConverter>& converter) override {
        converter.reset();
        return kAudioNoError;
    }
    AudioStatus formatInfo(AudioStreamBasicDescription&) const override { return kAudioFileUnsupportedDataFormatError; }
};

}  // namespace tavi::test
