#pragma once

#include <atomic>
#include <memory>
#include <thread>

#include "adapters/folder/FolderCloud.h"
#include "adapters/folder/FolderThread.h"
#include "adapters/qt/QtTrash.h"
#include "adapters/webdav/DavProbe.h"
#include "adapters/webdav/WebDavMirror.h"
#include "app/settings/SettingsStore.h"
#include "cloud/CloudConnection.h"
#include "cloud/iCloud.h"
#include "files/FileDescriptor.h"
#include "platform/Keychain.h"
#include "platform/Reachability.h"

namespace tavi {

/// The user's cloud, on the adapters that the account asks for.
class Cloud final : public CloudConnection {
public:
    /// What it works with; all of it must outlive this.
    struct Services {
        const AppContainer& container;
        UserDefaults& defaults;
        SettingsStore& settings;
        RunLoop& runLoop;
        NotificationCenter& notifications;
        Keychain& keychain;
        Reachability& reachability;
    };

    explicit Cloud(const Services& services);
    ~Cloud() override;

    iCloud& documents() { return m_documents; }
    /// Takes up what it could not do without what the keychain has or had not.
    void keychainChanged() { apply(); }

    CloudAccount account() const override { return CloudAccount::of(m_services.defaults); }
    CloudCondition condition() const override;
    std::map<std::filesystem::path, CloudFile> files() const override;
    void connectTo(const CloudAccount& account, const QString& password, Completion completion) override;
    void giveUp() override;
    void removeAccount() override;
    void settingsChanged() override;
    void syncNow() override;
    void download(const std::filesystem::path& name) override;
    void answerVanished(bool areRemoved) override;

private:
    /// Does what account and switch say, as far as it is not so.
    void apply();
    void startMirror(const CloudAccount& account);
    void stopMirror();
    void take(const CloudAccount& account, const QString& password);
    void follow();
    void tellCircumstances();

    Services m_services;
    QtTrash m_trash;
    FileDescriptor m_lock;
    std::shared_ptr<WebDavMirror> m_mirror;
    /// Of the account that the mirror has.
    CloudAccount m_mirrored;
    /// Why there is no mirror, though there should be.
    QString m_trouble;
    std::shared_ptr<std::atomic<bool>> m_isTold = std::make_shared<std::atomic<bool>>(false);
    std::thread m_stopping;
    bool m_isWaitingForLock = false;
    bool m_isVisible = true;
    int m_attempt = 0;
    std::unique_ptr<DavProbe> m_probe;
    FolderThread m_disk;
    FolderCloud m_folder;
    iCloud m_documents;
};

}  // namespace tavi
