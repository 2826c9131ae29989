#pragma once

#include "platform/Pasteboard.h"

namespace tavi {

/// The clipboard of the windows' display.
class QuickPasteboard final : public Pasteboard {
public:
    void setMimeData(std::unique_ptr<QMimeData> data) override;
};

}  // namespace tavi
