#pragma once

#include <QObject>
#include <memory>

#include "app/settings/FormatHold.h"
#include "app/settings/RatingStore.h"
#include "platform/LockState.h"
#include "platform/Notices.h"
#include "platform/NotificationCenter.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"
#include "platform/StoreCatalogue.h"
#include "platform/StoreReview.h"
#include "platform/UrlOpener.h"

namespace tavi {

/// When and how the user is asked for a rating.
struct RatingOptions {
    int daysUntilPrompt = 3;
    int launchesUntilPrompt = 7;
    /// The same after the user has chosen to be asked later.
    int remindMeDaysUntilPrompt = 3;
    int remindMeLaunchesUntilPrompt = 7;
    /// Whether another version of the program begins to count anew.
    bool versionCheckEnabled = false;
    bool hideNoButton = false;
    /// Such as "de"; empty for the program's own.
    QString preferredLanguage;
    /// Of the store.
    QString countryCode = QStringLiteral("tr");
    bool usesSystemAppRaterWhenAvailable = true;
};

/// Counts launches and days, and asks for a rating when there are enough of both. Main thread only.
///
/// The question waits for a quiet moment: nothing is recorded or saved, the screens are in sight with nothing before
/// them, and nothing is locked, all of it for kMoment. So does the search of the store's catalogue before it. One
/// question at a time.
class AppRater : public QObject {
    Q_OBJECT
    /// Whether the screens are out of sight, or something stands before them. They are until this is told otherwise.
    Q_PROPERTY(bool covered READ isCovered WRITE setCovered)

public:
    /// Seconds for which it has to be quiet.
    static constexpr double kMoment = 1.0;

    /// What is asked with; all of it must outlive this.
    struct Services {
        RatingStore& store;
        RunLoop& runLoop;
        Presenter& presenter;
        Notices& notices;
        NotificationCenter& notifications;
        const FormatHold& formatHold;
        const LockState& lockState;
        struct {
            StoreCatalogue& catalogue;
            UrlOpener& urlOpener;
            /// Null where the system has none.
            StoreReview* review = nullptr;
        } softwareStore;
    };

    explicit AppRater(const Services& services, QObject* parent = nullptr);
    ~AppRater() override;

    /// The rater of the program; null before there is one. For what puts the program together alone.
    static AppRater* sharedInstance();

    RatingOptions& options() { return m_options; }
    bool isCovered() const { return m_isCovered; }
    void setCovered(bool covered);

    /// A launch of the program: counts it, and asks if it is time. A return from the background counts by itself.
    void appLaunched();
    void appLaunchedWithDaysUntilCheck(int days, int andLaunchesUntilCheck);

    void resetUserDefaultValues();
    /// Whether that many days have passed since the first launch, which is now where none is known.
    bool isDateExpired(int days);
    /// False, without any change, where the system has no request of its own or it is not to be used.
    bool showSystemRater();
    /// Asks as soon as the store's identifier of the program is known. Where it cannot be found nobody is asked, and
    /// nothing is said.
    void getApplicationID();
    void showRater();
    /// The answer, counted from 0 as the buttons are: no (unless hidden), now, later.
    void alertViewClickedButtonAtIndex(int index);
    /// Opens the program's page in the store, or says that nothing here can.
    void openItunes();

    static QString getCurrentVersion();
    /// The text in the preferred language; in the program's own where that has none.
    QString getLocalisedStringForKey(const char* key) const;

private:
    /// What waits for a quiet moment, or goes on.
    enum class Step { None, WaitToLookUp, LookUp, WaitToAsk, Ask };

    bool isQuiet() const;
    /// Something has changed: the moment begins anew.
    void waitForMoment();
    void stopWaiting();
    void onMoment();
    void lookUp();
    void ask();

    Services m_services;
    RatingOptions m_options;
    bool m_isCovered = true;
    Step m_step = Step::None;
    std::shared_ptr<Timer> m_moment;
};

}  // namespace tavi
