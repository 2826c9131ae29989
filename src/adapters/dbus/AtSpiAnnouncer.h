#pragma once

#include "platform/Announcer.h"

namespace tavi {

/// Announces over AT-SPI, as an "Announcement" of the program's root object; Qt itself can do so from 6.8 on.
class AtSpiAnnouncer final : public Announcer {
public:
    void announce(const QString& text) override;
};

}  // namespace tavi
