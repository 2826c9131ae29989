#pragma once

#include <QObject>
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>

#include "platform/AppContainer.h"
#include "platform/DocumentPicker.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"

namespace tavi {

/// Exports recordings: asks where a copy is to go and makes it in the background, one after the other. A copy has its
/// name once it is whole, and replaces what has that name only where the user has agreed. A notice says how far it has
/// come, and gives it up. Main thread only.
class RecordingExport : public QObject {
    Q_OBJECT

public:
    /// After that many seconds a copy is worth a notice.
    static constexpr double kPatience = 0.5;

    /// All of it must outlive this.
    struct Services {
        DocumentPicker& documentPicker;
        Presenter& presenter;
        Notices& notices;
        NotificationCenter& notifications;
        const AppContainer& container;
        RunLoop& runLoop;
    };

    explicit RecordingExport(const Services& services, QObject* parent = nullptr);
    /// Gives up what is being copied, and waits for none of it.
    ~RecordingExport() override;

    /// Asks where, copies, and says what has come of it.
    void present(const std::filesystem::path& file);

Q_SIGNALS:
    /// The user wants to see what has been exported.
    void showRequested(const std::filesystem::path& path);

private:
    struct Copy;

    void picked(const std::filesystem::path& file, const Result<std::optional<PickedDocument>>& answer);
    void append(const std::filesystem::path& from, const PickedDocument& to);
    void start();
    bool isRunning(const std::shared_ptr<Copy>& copy) const;
    void show(const std::shared_ptr<Copy>& copy);
    void leave(const std::shared_ptr<Copy>& copy);
    void ended(const std::shared_ptr<Copy>& copy, int error);
    void askToReplace(const std::filesystem::path& from, const std::filesystem::path& to);
    void tellDone(const Copy& copy);
    /// That text, with the file's name, in a notice.
    void tell(const QString& text, const std::filesystem::path& file) const;

    Services m_services;
    /// The first one is running.
    std::deque<std::shared_ptr<Copy>> m_copies;
};

}  // namespace tavi
