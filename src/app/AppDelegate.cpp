#include "app/AppDelegate.h"

#include <QCoreApplication>

#include "app/RatingLaunch.h"
#include "files/FileNames.h"

namespace tavi {

namespace {

constexpr int kRecordTab = 0;
constexpr int kLibraryTab = 1;

QList<ShortcutItem> arrayOfDynamicShortcutItems() {
    return {
        {QStringLiteral("Record"), qtTrId("Record Audio"), qtTrId("Quick Create Voice Memo"), QStringLiteral("record")},
        {QStringLiteral("Recordings"), qtTrId("Recordings"), qtTrId("Recorded Voice Memos"),
         QStringLiteral("voicememo")}};
}

AppDelegate* s_sharedDelegate = nullptr;

bool hasScheme(const QUrl& url, QLatin1String scheme) {
    return url.scheme().compare(scheme, Qt::CaseInsensitive) == 0;
}

}  // namespace

AppDelegate::AppDelegate(const Services& services) : m_services(services) {
    s_sharedDelegate = this;
}

AppDelegate::~AppDelegate() {
    s_sharedDelegate = nullptr;
}

AppDelegate* AppDelegate::initAppdelegate() {
    return s_sharedDelegate;
}

bool AppDelegate::applicationDidFinishLaunching(const LaunchOptions& options) {
    setTheUserDefaultsValue();
    m_services.passcode.activatePasscodeProtection();
    setPasscodeStyle(m_services.passcode.appearance);
    setAppStart(true);
    // On purpose a refusal shows nothing here: the recording screen asks again, and says so, when it matters.
    m_services.audioSession.requestRecordPermission([](bool) {});
    createICloudFolder();
    m_services.settings.writeSortIfAbsent();
    reportLaunch(m_services.appRater);
    createDynamicShortcut();
    return !checkIfAShortcutWasLaunchedAndSetItInAGlobalParam(options);
}

void AppDelegate::setTheUserDefaultsValue() {
    m_services.settings.writeFirstLaunchValues();
    // The screen must not lock while a recording is in progress.
    m_services.idleTimer.setIdleTimerDisabled(true);
}

void AppDelegate::setPasscodeStyle(PasscodeAppearance& appearance) {
    const QString accent = QStringLiteral("#c8252c");
    const QString black = QStringLiteral("#000000");
    const QString letters = QStringLiteral("Avenir-Book");
    PasscodeButtonStyle style;
    style.lineColor = style.titleColor = style.selectedFillColor = accent;
    style.fillColor = QStringLiteral("#00000000");
    style.selectedLineColor = style.selectedTitleColor = black;
    style.titleFont = {letters, 35.0};
    appearance.buttonStyleProvider = {};
    appearance.buttonStyleProvider.addStyle(style, PasscodeButtonStyleProvider::kAllButtons);
    appearance.instructionsLabelFont = {letters, 20.0};
    appearance.instructionsLabelColor = accent;
    appearance.cancelOrDeleteButtonFont = {letters, 15.0};
    appearance.cancelOrDeleteButtonColor = QStringLiteral("#ff0000");
    appearance.backgroundColor = black;
    appearance.logo = QStringLiteral("wp_white.png");
    appearance.passcodeViewFillColor = accent;
    appearance.passcodeViewLineColor = accent;
}

void AppDelegate::setAppStart(bool started) {
    m_services.sharedDefaults.setObject(started, settingskey::kAppStart);
    m_services.sharedDefaults.synchronize();
}

void AppDelegate::createICloudFolder() const {
    // Without the folder there is nothing to mirror into; the recordings themselves do not need it.
    std::error_code ignored;
    std::filesystem::create_directory(m_services.container.documentsPath() / foldername::kCloud, ignored);
}

void AppDelegate::createDynamicShortcut() {
    if (m_services.application.shortcutItems().isEmpty()) {
        m_services.application.setShortcutItems(arrayOfDynamicShortcutItems());
    }
}

bool AppDelegate::checkIfAShortcutWasLaunchedAndSetItInAGlobalParam(const LaunchOptions& options) {
    for (const ShortcutItem& item : m_services.application.shortcutItems()) {
        if (options.shortcutType == item.type) {
            m_shortcutItemLaunched = item;
        }
    }
    return m_shortcutItemLaunched.has_value();
}

void AppDelegate::applicationDidBecomeActive() {
    if (m_shortcutItemLaunched) {
        lauchVcWithShortcutItem(*m_shortcutItemLaunched);
        m_shortcutItemLaunched.reset();
    }
}

void AppDelegate::applicationWillTerminate() {
    m_services.objrecordVC.finishBeforeTermination();
    setAppStart(false);
}

bool AppDelegate::lauchVcWithShortcutItem(const ShortcutItem& item) {
    if (!item.type.isEmpty()) {
        viewControllerToBeLauched(item);
    }
    return false;
}

std::optional<int> AppDelegate::viewControllerToBeLauched(const ShortcutItem& item) {
    if (item.localizedTitle.isEmpty()) {
        return std::nullopt;
    }
    if (item.localizedTitle == qtTrId("Recordings")) {
        m_services.tabBar.setSelectedIndex(kLibraryTab);
        return kLibraryTab;
    }
    m_services.tabBar.setSelectedIndex(kRecordTab);
    m_services.objrecordVC.playAndPauseRecording(nullptr);
    return kRecordTab;
}

void AppDelegate::applicationPerformActionForShortcutItem(const ShortcutItem& item,
                                                          std::function<void(bool)> completionHandler) {
    completionHandler(lauchVcWithShortcutItem(item));
}

void AppDelegate::showCustomProgressViewWithText(const QString& text) {
    m_services.hudView.show({.text = text, .type = Progress::HudType::Ring, .cancel = {}});
}

void AppDelegate::hideCustomProgressView() {
    m_services.hudView.hide();
}

bool AppDelegate::applicationOpenURL(const QUrl& url) {
    if (url.isLocalFile()) {
        m_services.tabBar.setSelectedIndex(kLibraryTab);
        m_services.imports.importFiles({url});
    }
    if (hasScheme(url, QLatin1String("TaviliteConnect"))) {
        m_services.tabBar.setSelectedIndex(kLibraryTab);
    }
    if (hasScheme(url, QLatin1String("TaviRecordStart"))) {
        m_services.tabBar.setSelectedIndex(kRecordTab);
        m_services.objrecordVC.playAndPauseRecording(nullptr);
    }
    if (hasScheme(url, QLatin1String("TaviRecordStop"))) {
        m_services.tabBar.setSelectedIndex(kRecordTab);
        m_services.objrecordVC.stopAndSaveRecording(nullptr);
    }
    return true;
}

}  // namespace tavi
