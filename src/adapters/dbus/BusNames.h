#pragma once

#include <QLatin1String>
#include <QString>
#include <filesystem>

namespace tavi {

/// Where the program's own object is on the session bus, whatever its name there.
inline constexpr QLatin1String kApplicationObjectPath("/com/quillfen/voicerecorder");
/// Interface of that object: Desktop Entry 1.5 of freedesktop.org, chapter "D-Bus Activation".
inline constexpr QLatin1String kApplicationInterface("org.freedesktop.Application");
/// The action by which a process that has changed the recordings has the running program read them anew.
inline constexpr QLatin1String kRefreshAction("refresh");

/// The name that an instance owns on the session bus. An instance with a container of its own gets a name of its own,
/// the same for every way to write the folder's path, so that it runs beside the others. The folder should exist.
QString busNameForContainer(const std::filesystem::path& containerPath);

}  // namespace tavi
