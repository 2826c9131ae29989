#pragma once

#include <QString>
#include <filesystem>
#include <memory>

#include "platform/AppContainer.h"
#include "platform/Error.h"

namespace tavi {

/// The program's folders on disk: where the XDG base directories and user directories put them, or all below one
/// folder.
///
///     documents    the user's music folder + "Voice Recordings"       DIR/Documents
///     unsaved      $XDG_DATA_HOME/com.quillfen.voicerecorder/Unsaved   DIR/Unsaved
///     caches       $XDG_CACHE_HOME/com.quillfen.voicerecorder          DIR/Caches
///     temporary    "tmp" in the caches folder                          DIR/tmp
///     preferences  $XDG_CONFIG_HOME/com.quillfen.voicerecorder         DIR/Preferences
///     groups       $XDG_DATA_HOME/com.quillfen.voicerecorder/Groups    DIR/Groups
///
/// Temporary files hold sound, which is too large for a file system in memory; so they lie beside the caches.
/// Folders that this makes are for the user alone, but for the documents folder, which the user shares as he likes.
class QtAppContainer final : public AppContainer {
public:
    /// Makes the folders. With a container DIR, relative to the working directory or absolute, everything is below it;
    /// with an empty one, the XDG folders are used. Fails when a folder other than the documents folder
    /// cannot be made or written, and where the XDG folders would be in no home.
    static Result<std::unique_ptr<QtAppContainer>> create(const std::filesystem::path& container = {});

    std::filesystem::path documentsPath() const override { return m_documents; }
    std::filesystem::path unsavedPath() const override { return m_unsaved; }
    std::filesystem::path cachesPath() const override { return m_caches; }
    std::filesystem::path temporaryPath() const override { return m_temporary; }
    std::filesystem::path preferencesPath() const override { return m_preferences; }
    std::filesystem::path groupContainerPath(const QString& groupIdentifier) const override;

private:
    QtAppContainer() = default;

    std::filesystem::path m_documents;
    std::filesystem::path m_unsaved;
    std::filesystem::path m_caches;
    std::filesystem::path m_temporary;
    std::filesystem::path m_preferences;
    std::filesystem::path m_groups;
};

}  // namespace tavi
