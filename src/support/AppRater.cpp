#include "support/AppRater.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>
#include <limits>
#include <utility>

#include "platform/Application.h"

namespace tavi {

namespace {

const QString kBundle = QStringLiteral("com.quillfen.voicerecorder");
constexpr qint64 kMillisecondsPerDay = 86'400'000;

AppRater* s_sharedInstance = nullptr;

}  // namespace

AppRater::AppRater(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    s_sharedInstance = this;
    connect(&m_services.formatHold, &FormatHold::heldChanged, this, &AppRater::waitForMoment);
    connect(&m_services.lockState, &LockState::changed, this, &AppRater::waitForMoment);
    connect(&m_services.notifications, &NotificationCenter::posted, this, [this](const QString& name) {
        // It is said while the program is still in the background.
        if (name == applicationnotification::kWillEnterForeground) {
            appLaunched();
        }
    });
}

AppRater::~AppRater() {
    stopWaiting();
    s_sharedInstance = nullptr;
}

AppRater* AppRater::sharedInstance() {
    return s_sharedInstance;
}

void AppRater::appLaunched() {
    if (m_options.versionCheckEnabled && m_services.store.appVersion() != getCurrentVersion()) {
        resetUserDefaultValues();
        m_services.store.setAppVersion(getCurrentVersion());
    }
    if (m_services.store.isRemindMeLater()) {
        appLaunchedWithDaysUntilCheck(m_options.remindMeDaysUntilPrompt, m_options.remindMeLaunchesUntilPrompt);
    } else {
        appLaunchedWithDaysUntilCheck(m_options.daysUntilPrompt, m_options.launchesUntilPrompt);
    }
}

void AppRater::appLaunchedWithDaysUntilCheck(int days, int andLaunchesUntilCheck) {
    if (m_services.store.isDontShowAgain()) {
        return;
    }
    const int before = m_services.store.launchCount();
    const int count = before == std::numeric_limits<int>::max() ? before : before + 1;
    m_services.store.setLaunchCount(count);
    if (count >= andLaunchesUntilCheck && isDateExpired(days) && !showSystemRater()) {
        getApplicationID();
    }
}

void AppRater::resetUserDefaultValues() {
    m_services.store.restart(false, false, m_services.runLoop.clock().now());
}

bool AppRater::isDateExpired(int days) {
    const QDateTime now = m_services.runLoop.clock().now();
    if (!m_services.store.firstLaunch().isValid()) {
        m_services.store.setFirstLaunch(now);
    }
    return m_services.store.firstLaunch().msecsTo(now) >= days * kMillisecondsPerDay;
}

bool AppRater::showSystemRater() {
    if (m_services.softwareStore.review == nullptr || !m_options.usesSystemAppRaterWhenAvailable) {
        return false;
    }
    m_services.softwareStore.review->requestReview();
    // From now on the reminder's thresholds count, so that the system is asked again and again, on purpose: it decides
    // itself how often the user sees that.
    m_services.store.restart(false, true, m_services.runLoop.clock().now());
    return true;
}

void AppRater::getApplicationID() {
    if (!m_services.store.storeIdentifier().isEmpty()) {
        showRater();
    } else if (m_step == Step::None) {
        m_step = Step::WaitToLookUp;
        waitForMoment();
    }
}

void AppRater::lookUp() {
    m_step = Step::LookUp;
    m_services.softwareStore.catalogue.lookUp(kBundle, m_options.countryCode,
                                              [self = QPointer(this)](const QString& identifier) {
                                                  if (!self) {
                                                      return;
                                                  }
                                                  self->m_step = Step::None;
                                                  if (!identifier.isEmpty()) {
                                                      self->m_services.store.setStoreIdentifier(identifier);
                                                      self->showRater();
                                                  }
                                              });
}

void AppRater::showRater() {
    if (m_step == Step::None) {
        m_step = Step::WaitToAsk;
        waitForMoment();
    }
}

void AppRater::ask() {
    m_step = Step::Ask;
    const auto answer = [self = QPointer(this)](int index) {
        return [self, index] {
            if (self) {
                self->m_step = Step::None;
                self->alertViewClickedButtonAtIndex(index);
            }
        };
    };
    Alert alert{getLocalisedStringForKey("MessageTitle"), getLocalisedStringForKey("Message"), {}};
    int index = 0;
    if (!m_options.hideNoButton) {
        alert.actions.push_back(
            {getLocalisedStringForKey("NoButtonTitle"), AlertAction::Style::Cancel, answer(index++)});
    }
    alert.actions.push_back({getLocalisedStringForKey("NowButtonTitle"), AlertAction::Style::Default, answer(index++)});
    alert.actions.push_back({getLocalisedStringForKey("LaterButtonTitle"), AlertAction::Style::Default, answer(index)});
    m_services.presenter.presentAlert(std::move(alert));
}

void AppRater::alertViewClickedButtonAtIndex(int index) {
    enum { No, Now, Later };
    switch (m_options.hideNoButton ? index + 1 : index) {
        case No:
            if (!m_options.hideNoButton) {
                m_services.store.restart(true, false, m_services.runLoop.clock().now());
            }
            break;
        case Now:
            openItunes();
            m_services.store.setDontShowAgain(true);
            break;
        case Later:
            m_services.store.restart(false, true, m_services.runLoop.clock().now());
            break;
        default:
            break;
    }
}

void AppRater::openItunes() {
    const QUrl page(QStringLiteral("appstream://") + m_services.store.storeIdentifier());
    m_services.softwareStore.urlOpener.canOpenURL(page, [self = QPointer(this), page](bool canOpen) {
        if (!self) {
            return;
        }
        if (canOpen) {
            self->m_services.softwareStore.urlOpener.openURL(page);
        } else {
            self->m_services.notices.postNotice({qtTrId("rate_no_store")});
        }
    });
}

QString AppRater::getCurrentVersion() {
    return QCoreApplication::applicationVersion();
}

QString AppRater::getLocalisedStringForKey(const char* key) const {
    QTranslator preferred;
    if (!m_options.preferredLanguage.isEmpty() &&
        preferred.load(QStringLiteral(":/strings/tavi_") + m_options.preferredLanguage)) {
        QString text = preferred.translate(nullptr, key);
        if (!text.isEmpty()) {
            return text;
        }
    }
    return qtTrId(key);
}

void AppRater::setCovered(bool covered) {
    if (std::exchange(m_isCovered, covered) != covered) {
        waitForMoment();
    }
}

bool AppRater::isQuiet() const {
    return !m_isCovered && !m_services.formatHold.isHeld() && !m_services.lockState.isLocked();
}

void AppRater::waitForMoment() {
    stopWaiting();
    if (isQuiet() && (m_step == Step::WaitToLookUp || m_step == Step::WaitToAsk)) {
        m_moment = m_services.runLoop.scheduledTimer(kMoment, false, [this] { onMoment(); });
    }
}

void AppRater::stopWaiting() {
    if (m_moment) {
        m_moment->invalidate();
        m_moment.reset();
    }
}

void AppRater::onMoment() {
    m_moment.reset();
    if (m_step == Step::WaitToLookUp) {
        lookUp();
    } else {
        ask();
    }
}

}  // namespace tavi
