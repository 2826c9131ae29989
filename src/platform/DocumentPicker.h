#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <optional>

#include "platform/Error.h"

namespace tavi {

/// What a file is picked for.
enum class DocumentPickerMode { Import, ExportToService };

/// A name that the user has chosen for a file.
struct PickedDocument {
    std::filesystem::path path;
    /// Whether the user has been asked, and has agreed, that what has this name is replaced.
    bool mayReplace = false;
};

/// Lets the user choose where a file goes, or a folder. Main thread only; no call waits.
class DocumentPicker {
public:
    /// Nothing where the user has chosen nothing.
    using Completion = std::function<void(Result<std::optional<PickedDocument>>)>;

    virtual ~DocumentPicker() = default;

    /// Asks where a copy of the file is to go, and proposes its name. Whoever asked makes the copy. The completion is
    /// called once, on the main thread, after this has returned, and not once this is gone.
    virtual void presentForExport(const std::filesystem::path& file, Completion completion) = 0;
    /// Asks for a folder that is there, under that title. The completion comes as above.
    virtual void presentForFolder(const QString& title, Completion completion) = 0;
};

}  // namespace tavi
