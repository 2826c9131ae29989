#pragma once

#include <QMimeData>
#include <memory>

namespace tavi {

/// The clipboard that all programs of the desktop share. Main thread only.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// Takes the place of what is there.
    virtual void setMimeData(std::unique_ptr<QMimeData> data) = 0;
};

}  // namespace tavi
