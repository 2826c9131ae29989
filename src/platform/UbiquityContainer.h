#pragma once

#include <QDateTime>
#include <QString>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "platform/Error.h"

namespace tavi {

/// Posted in the notification centre when an account has been set up, replaced or removed.
inline constexpr QLatin1String kUbiquityIdentityDidChangeNotification("NSUbiquityIdentityDidChangeNotification");
/// The folder of a container that holds its documents.
inline constexpr std::string_view kUbiquityDocumentsFolder("Documents");

/// What is known of a file in the container.
struct UbiquityItemAttributes {
    std::uint64_t size = 0;
    QDateTime modified;
    QDateTime created;
};

/// The folder on this machine that mirrors the user's cloud. What is put there goes to the cloud by itself, now or once
/// there is a network. Main thread unless said otherwise. A folder whose disk or network does not answer holds up
/// nobody: where a call waits, it does so for less than a frame, or as long as it says.
class UbiquityContainer {
public:
    using Completion = std::function<void(Result<void>)>;

    virtual ~UbiquityContainer() = default;

    /// The container of an identifier, the program's own where that is empty; nothing without an account, or where the
    /// folder is not to be had within five seconds. Any thread; not the main one, since it waits.
    virtual std::optional<std::filesystem::path> urlForUbiquityContainerIdentifier(const QString& identifier) = 0;
    /// Says which account is set up, with or without a network; empty where none is.
    virtual QString ubiquityIdentityToken() const = 0;

    /// Entries of a folder in the container; none where it does not answer, then what was there last.
    virtual std::vector<std::filesystem::path> contentsOfDirectory(const std::filesystem::path& folder) = 0;
    /// Nothing where there is no such file here.
    virtual std::optional<UbiquityItemAttributes> attributesOfItem(const std::filesystem::path& url) = 0;

    /// Asks for a file that is only in the cloud; it arrives later. A failure where it cannot be asked for.
    virtual Result<void> startDownloadingUbiquitousItem(const std::filesystem::path& url) = 0;
    /// Removes the copy on this machine once the cloud has the same; a failure as long as it has not.
    virtual void evictUbiquitousItem(const std::filesystem::path& url, Completion completion) = 0;
    /// Removes a file here and in the cloud, be it here or not.
    virtual void removeItem(const std::filesystem::path& url, Completion completion) = 0;
    /// Renames a file here and in the cloud, be it here or not. A failure where the name is taken.
    virtual void moveItem(const std::filesystem::path& from, const std::filesystem::path& to,
                          Completion completion) = 0;
};

}  // namespace tavi
