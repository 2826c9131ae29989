#pragma once

#include "platform/Clock.h"

namespace tavi {

/// The system's wall clock.
class QtClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

}  // namespace tavi
