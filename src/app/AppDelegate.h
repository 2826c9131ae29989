#pragma once

#include <optional>

#include "app/settings/SettingsStore.h"
#include "library/RecordingImport.h"
#include "passcode/PasscodeCoordinator.h"
#include "platform/AppContainer.h"
#include "platform/Application.h"
#include "platform/AudioSession.h"
#include "platform/IdleTimer.h"
#include "platform/ProgressView.h"
#include "platform/TabBar.h"
#include "platform/UserDefaults.h"
#include "recording/AudioRecordVC.h"
#include "support/AppRater.h"

namespace tavi {

/// The program's start-up, its quick actions and its URLs. Main thread only.
class AppDelegate : public ApplicationDelegate {
public:
    /// What the start-up works with; all of it must outlive the delegate.
    struct Services {
        Application& application;
        IdleTimer& idleTimer;
        SettingsStore& settings;
        UserDefaults& sharedDefaults;
        const AppContainer& container;
        AudioSession& audioSession;
        TabBar& tabBar;
        AudioRecordVC& objrecordVC;
        RecordingImport& imports;
        ProgressView& hudView;
        AppRater& appRater;
        PasscodeCoordinator& passcode;
    };

    explicit AppDelegate(const Services& services);
    ~AppDelegate() override;

    /// The program's delegate; null before there is one. For what puts the program together alone: everybody else is
    /// handed what they need.
    static AppDelegate* initAppdelegate();

    /// What the screens read when they are built: defaults first, then the rest of the start-up. False when a quick
    /// action launched the program; it runs at the first activation.
    bool applicationDidFinishLaunching(const LaunchOptions& options);

    /// The entry screen in the program's own colours and letters.
    static void setPasscodeStyle(PasscodeAppearance& appearance);

    void applicationDidBecomeActive() override;
    void applicationWillResignActive() override {}
    void applicationDidEnterBackground() override {}
    void applicationWillEnterForeground() override {}
    void applicationWillTerminate() override;
    /// Files are imported, and the library shows that; the companions' schemes choose a tab and drive the recording
    /// screen. Always true.
    bool applicationOpenURL(const QUrl& url) override;
    void applicationPerformActionForShortcutItem(const ShortcutItem& item,
                                                 std::function<void(bool)> completionHandler) override;

    /// Covers the window with the text and a ring until hideCustomProgressView(). Any thread; both take effect later,
    /// on the main thread, in their order.
    void showCustomProgressViewWithText(const QString& text);
    void hideCustomProgressView();

private:
    void setTheUserDefaultsValue();
    void setAppStart(bool started);
    void createICloudFolder() const;
    void createDynamicShortcut();
    bool checkIfAShortcutWasLaunchedAndSetItInAGlobalParam(const LaunchOptions& options);
    bool lauchVcWithShortcutItem(const ShortcutItem& item);
    /// Index of the tab that the item leads to; none for an item without a title.
    std::optional<int> viewControllerToBeLauched(const ShortcutItem& item);

    Services m_services;
    std::optional<ShortcutItem> m_shortcutItemLaunched;
};

}  // namespace tavi
