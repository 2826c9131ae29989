#pragma once

#include <QByteArray>
#include <filesystem>
#include <optional>

// Messages as files, which others may read and write at any time.

namespace tavi::messagefile {

/// The most that a message takes as an archive. Others may write anything: what is larger is none.
inline constexpr qint64 kMostMessageBytes = qint64{16} << 20;
/// The most that a file takes that is sent as one.
inline constexpr qint64 kMostFileBytes = qint64{256} << 20;

/// Whether an identifier can name a file in a folder: not empty, no "/", no "..", no U+0000, and 200 bytes at most.
bool canName(const QString& identifier);

/// Gives the path these contents in one step: whoever reads finds the old ones or the new ones. The disk has them
/// later, as a message is worth nothing after a power cut. Any thread.
bool write(const std::filesystem::path& path, const QByteArray& contents);

/// The contents of an ordinary file; nothing where there is none, or it holds more than that. Any thread.
std::optional<QByteArray> read(const std::filesystem::path& path, qint64 most = kMostMessageBytes);

}  // namespace tavi::messagefile
