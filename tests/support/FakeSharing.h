#pragma once

#include <utility>
#include <vector>

#include "platform/DocumentInteraction.h"
#include "platform/DocumentPicker.h"
#include "platform/Pasteboard.h"

namespace tavi::test {

/// Keeps what was to be opened and shown, and answers as it is told.
struct FakeDocumentInteraction : DocumentInteraction {
    void presentOpenInMenu(const std::filesystem::path& path, const QRectF&, Completion completion) override {
        opened.push_back(path);
        completion(result);
    }
    void showInFolder(const std::filesystem::path& path, Completion completion) override {
        shown.push_back(path);
        completion(result);
    }

    std::vector<std::filesystem::path> opened;
    std::vector<std::filesystem::path> shown;
    Result<void> result;
};

/// Picks what a test has put into it; nothing is a cancelled choice.
struct FakeDocumentPicker : DocumentPicker {
    void presentForExport(const std::filesystem::path& file, Completion completion) override {
        asked.push_back(file);
        completion(answer);
    }
    void presentForFolder(const QString&, Completion completion) override { completion(answer); }

    std::vector<std::filesystem::path> asked;
    Result<std::optional<PickedDocument>> answer;
};

struct FakePasteboard : Pasteboard {
    void setMimeData(std::unique_ptr<QMimeData> newData) override { data = std::move(newData); }

    std::unique_ptr<QMimeData> data;
};

}  // namespace tavi::test
