#pragma once

#include <QObject>

#include "files/FileDescriptor.h"
#include "platform/AppContainer.h"
#include "platform/Error.h"

namespace tavi {

/// Keeps "AudioFileType" and "AudioQualityType" as they are from the start of a recording until its file is saved: both
/// are read again meanwhile, and have to say what the file is. Main thread only.
///
/// Other processes see the hold by a lock of the kernel's on a file in the caches folder, which goes with this process
/// however that ends.
class FormatHold : public QObject {
    Q_OBJECT

public:
    explicit FormatHold(const AppContainer& container, QObject* parent = nullptr);

    bool isHeld() const { return m_isHeld; }
    void setHeld(bool held);

    /// For another process: leave to change the two settings, as long as it keeps what this returns. Fails while a
    /// recording holds them, and when the lock's file cannot be opened.
    static Result<FileDescriptor> leaveToChange(const AppContainer& container);

Q_SIGNALS:
    void heldChanged();

private:
    const AppContainer& m_container;
    FileDescriptor m_lock;
    bool m_isHeld = false;
};

}  // namespace tavi
