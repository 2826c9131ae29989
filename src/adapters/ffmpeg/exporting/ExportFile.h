#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include "files/DurableFile.h"
#include "platform/Error.h"

namespace tavi {

/// What a running export and those who watch it tell each other. Any thread.
class ExportControl {
public:
    void cancel() { m_isCancelled = true; }
    bool isCancelled() const { return m_isCancelled; }
    void setProgress(double fraction) { m_progress = static_cast<float>(fraction); }
    float progress() const { return m_progress; }

private:
    std::atomic<bool> m_isCancelled = false;
    std::atomic<float> m_progress = 0.0F;
};

/// The file that an export grows into, which has its name only when it is whole. One thread at a time.
class ExportFile {
public:
    /// Fails when there is a file of the final name already.
    static Result<std::unique_ptr<ExportFile>> create(const std::filesystem::path& path);
    ExportFile(const ExportFile&) = delete;
    ExportFile& operator=(const ExportFile&) = delete;

    /// The name for now, which ends in ".m4a". Someone else may make the file of that name anew after discard().
    const std::filesystem::path& temporaryPath() const { return m_file.temporaryPath(); }
    /// Removes the empty file, so that another writer can make it; publish() takes what is there then.
    void discard() { m_file.discard(); }
    int fd() const { return m_file.fd(); }

    /// Appends bytes; the first failure stays, and so does its text.
    void append(std::span<const std::uint8_t> bytes);
    /// Overwrites bytes that have been appended.
    void overwrite(std::span<const std::uint8_t> bytes, std::int64_t offset);
    /// Appends a stretch of another file. Stretches that follow each other, or nearly so, are gathered into large
    /// reads and writes; finish with flush().
    void copy(int source, std::int64_t offset, std::int64_t size);
    /// Writes what is gathered.
    void flush();
    /// Where the next byte goes.
    std::int64_t size() const { return m_size + m_gathered; }
    /// Counts copied bytes towards progress, which is 1 when that many have been copied; copying ends when cancelled.
    void setControl(ExportControl& control, std::int64_t expectedBytes);
    Result<void> result() const;

    /// Brings the file to the disk and gives it its name, replacing nothing.
    Result<void> publish(const ExportControl& control);

private:
    struct Piece {
        std::int64_t offset = 0;
        std::int64_t size = 0;
    };

    explicit ExportFile(DurableFile file) : m_file(std::move(file)) {}

    void fail(const QString& text);
    /// What is gathered through one read and one gathering write.
    void writeGathered();
    void copyLong(const Piece& piece);
    void advance(std::int64_t bytes);

    DurableFile m_file;
    std::int64_t m_size = 0;
    int m_source = -1;
    std::vector<Piece> m_pieces;
    std::int64_t m_gathered = 0;
    std::vector<std::uint8_t> m_window;
    ExportControl* m_control = nullptr;
    std::int64_t m_expected = 0;
    std::int64_t m_copied = 0;
    /// What the disk was told to write already, in bytes from the start.
    std::int64_t m_handedOver = 0;
    QString m_failure;
};

}  // namespace tavi
