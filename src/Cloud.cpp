#include "Cloud.h"

#include <QLoggingCategory>
#include <QPointer>
#include <QSysInfo>
#include <utility>

#include "CloudPlace.h"
#include "files/ConflictNames.h"
#include "files/FileNames.h"
#include "files/FolderListing.h"
#include "platform/Application.h"

namespace tavi {

namespace {

Q_LOGGING_CATEGORY(lcCloud, "tavi.cloud", QtInfoMsg)

/// How soon the folder is asked for again that another process keeps in step.
constexpr double kLockPause = 5.0;

FolderCloud::Place placeOf(const CloudAccount& account, const AppContainer& container,
                           std::shared_ptr<CloudMirror> mirror) {
    switch (account.kind) {
        case CloudAccount::Kind::None:
            return {};
        case CloudAccount::Kind::Folder:
            return {account.folder, account.token(), nullptr};
        case CloudAccount::Kind::Server:
            // Without a mirror, such as before a keyring opens, what is saved waits there.
            return {mirrorFolder(account, container), account.token(), std::move(mirror), true};
    }
    return {};
}

CloudFile::State stateOf(MirrorState state) {
    switch (state) {
        case MirrorState::There:
            return CloudFile::State::There;
        case MirrorState::Waiting:
            return CloudFile::State::Waiting;
        case MirrorState::Sending:
            return CloudFile::State::Sending;
        case MirrorState::OnlyThere:
            return CloudFile::State::OnlyThere;
        case MirrorState::Arriving:
        case MirrorState::Old:
            return CloudFile::State::Arriving;
    }
    return CloudFile::State::There;
}

Result<void> markFolder(const std::filesystem::path& folder) {
    const int error = markContainer(folder);
    return error == 0 ? Result<void>() : failure(QString::fromStdString(writeErrorText(error)));
}

}  // namespace

Cloud::Cloud(const Services& services)
    : m_services(services),
      m_disk(services.runLoop),
      m_folder({services.runLoop, services.notifications, m_trash, services.container.cachesPath() / "cloud.lock",
                QSysInfo::machineHostName()},
               {}),
      m_documents(
          {m_folder, m_folder, m_folder, m_folder, services.notifications, services.container, services.runLoop}) {
    connect(&m_folder, &FolderCloud::changed, this, &CloudConnection::filesChanged);
    connect(&m_services.notifications, &NotificationCenter::posted, this, [this](const QString& name) {
        m_isVisible = name == applicationnotification::kWillEnterForeground ||
                      (m_isVisible && name != applicationnotification::kDidEnterBackground);
        tellCircumstances();
    });
    m_services.reachability.setObserver([this] { tellCircumstances(); });
    apply();
}

Cloud::~Cloud() {
    m_services.reachability.setObserver(nullptr);
    m_probe.reset();
    m_folder.setPlace({});
    m_mirror ? m_mirror->stop() : void();
    m_stopping.joinable() ? m_stopping.join() : void();
}

void Cloud::apply() {
    if (m_stopping.joinable()) {
        return;
    }
    const CloudAccount wanted = account();
    const bool isMirrored = wanted.kind == CloudAccount::Kind::Server && m_services.settings.isCloudSyncOn();
    m_trouble.clear();
    if (m_mirror && (!isMirrored || m_mirrored != wanted)) {
        stopMirror();
    } else if (isMirrored && !m_mirror) {
        startMirror(wanted);
    }
    m_folder.setPlace(placeOf(wanted, m_services.container, m_mirror));
    Q_EMIT conditionChanged();
    Q_EMIT filesChanged();
}

void Cloud::stopMirror() {
    m_folder.setPlace(placeOf(account(), m_services.container, nullptr));
    m_mirror->setConditionObserver(nullptr);
    m_stopping =
        std::thread([mirror = std::exchange(m_mirror, nullptr), self = QPointer(this), &runLoop = m_services.runLoop] {
            mirror->stop();
            runLoop.dispatchMain([self] {
                if (self) {
                    self->m_stopping.join();
                    self->m_lock = FileDescriptor();
                    self->apply();
                }
            });
        });
}

void Cloud::startMirror(const CloudAccount& account) {
    if (!m_lock.isValid()) {
        m_lock = takeCloudLock(m_services.container);
    }
    if (!m_lock.isValid()) {
        m_trouble = qtTrId("error_cloud_elsewhere");
        if (!std::exchange(m_isWaitingForLock, true)) {
            m_services.runLoop.dispatchAfter(kLockPause, [self = QPointer(this)] {
                if (self) {
                    self->m_isWaitingForLock = false;
                    self->apply();
                }
            });
        }
        return;
    }
    auto place = mirrorPlace(account, m_services.container, m_services.keychain);
    auto mirror = place ? WebDavMirror::create(*place, m_trash)
                        : Result<std::unique_ptr<WebDavMirror>>(tl::unexpected(place.error()));
    if (!mirror) {
        m_trouble = mirror.error().text;
        qCWarning(lcCloud, "%s", qUtf8Printable(m_trouble));
        return;
    }
    m_mirror = std::move(*mirror);
    m_mirrored = account;
    follow();
}

void Cloud::tellCircumstances() {
    if (m_mirror) {
        m_mirror->setCircumstances(!m_mirrored.isElsewhere() || !m_services.reachability.isOffline(), m_isVisible);
    }
}

void Cloud::follow() {
    tellCircumstances();
    // Many changes are one for those who show them.
    m_mirror->setConditionObserver([told = m_isTold, self = QPointer(this), &runLoop = m_services.runLoop] {
        if (!told->exchange(true)) {
            runLoop.dispatchMain([told, self] {
                *told = false;
                if (self) {
                    Q_EMIT self->conditionChanged();
                    Q_EMIT self->filesChanged();
                }
            });
        }
    });
}

CloudCondition Cloud::condition() const {
    using State = CloudCondition::State;
    const CloudAccount place = account();
    const bool isOn = m_services.settings.isCloudSyncOn();
    if (place.kind == CloudAccount::Kind::None || !isOn) {
        return {place.kind == CloudAccount::Kind::None ? State::None : State::Off, {}, {}, 0};
    }
    if (place.kind == CloudAccount::Kind::Folder) {
        return {State::Folder, {}, {}, 0};
    }
    if (!m_mirror) {
        return {m_stopping.joinable() ? State::Working : State::Troubled, {}, m_trouble, 0};
    }
    const MirrorCondition mirror = m_mirror->condition();
    const auto vanished = static_cast<int>(mirror.outcome.vanished.size());
    const State state = vanished > 0              ? State::Asking
                        : mirror.isWorking        ? State::Working
                        : mirror.outcome.isInStep ? State::InStep
                                                  : State::Troubled;
    return {state, mirror.lastSync, mirror.outcome.error, vanished};
}

std::map<std::filesystem::path, CloudFile> Cloud::files() const {
    std::map<std::filesystem::path, CloudFile> found;
    const bool isServer = account().kind == CloudAccount::Kind::Server;
    for (const auto& [name, status] : m_folder.knownItems()) {
        found[name].state = isServer ? CloudFile::State::Waiting : CloudFile::State::There;
    }
    if (m_mirror) {
        for (const auto& [name, state] : m_mirror->states()) {
            found[name].state = stateOf(state);
        }
        for (const auto& [name, progress] : m_mirror->condition().progress) {
            found[name].progress = progress;
        }
    }
    for (auto& [name, file] : found) {
        file.isConflict = originalOfConflict(name).has_value();
    }
    return found;
}

void Cloud::connectTo(const CloudAccount& account, const QString& password, Completion completion) {
    const auto answered = [self = QPointer(this), attempt = ++m_attempt, account, password,
                           completion = std::move(completion)](const Result<void>& answer) {
        if (!self || attempt != self->m_attempt) {
            return;
        }
        self->m_probe.reset();
        answer ? self->take(account, password) : void();
        completion(answer);
    };
    m_probe.reset();
    if (account.kind == CloudAccount::Kind::Folder) {
        const auto answer = std::make_shared<Result<void>>();
        m_disk.post([answer, folder = account.folder] { *answer = markFolder(folder); },
                    [answer, answered] { answered(*answer); });
        return;
    }
    m_probe = std::make_unique<DavProbe>(davAccount(account, password),
                                         [answered, &runLoop = m_services.runLoop](const Result<void>& answer) {
                                             runLoop.dispatchMain([answered, answer] { answered(answer); });
                                         });
}

void Cloud::giveUp() {
    ++m_attempt;
    m_probe.reset();
}

void Cloud::take(const CloudAccount& account, const QString& password) {
    const CloudAccount old = this->account();
    if (old.token() != account.token()) {
        removePassword(old, m_services.keychain);
    }
    if (account.kind == CloudAccount::Kind::Server) {
        // One that cannot be kept now is kept later, and can be had until then.
        keepPassword(account, password, m_services.keychain);
    }
    account.store(m_services.defaults);
    m_services.settings.setCloudSyncOn(true);
    // Another password of the same account, too, is for another mirror.
    m_mirrored = {};
    settingsChanged();
}

void Cloud::removeAccount() {
    removePassword(account(), m_services.keychain);
    CloudAccount().store(m_services.defaults);
    m_services.settings.setCloudSyncOn(false);
    settingsChanged();
}

void Cloud::settingsChanged() {
    apply();
    if (m_services.settings.isCloudSyncOn() && account().kind != CloudAccount::Kind::None) {
        m_documents.setupiCloudDocumentSyncWithUbiquityContainer({});
    }
}

void Cloud::syncNow() {
    m_mirror ? m_mirror->wake() : apply();
}

void Cloud::download(const std::filesystem::path& name) {
    if (m_mirror) {
        (void)m_mirror->download(name);
    }
}

void Cloud::answerVanished(bool areRemoved) {
    m_mirror ? m_mirror->answerVanished(areRemoved) : void();
}

}  // namespace tavi
