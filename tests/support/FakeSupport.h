#pragma once

#include "support/AppRater.h"
#include "support/FakeServices.h"

namespace tavi::test {

struct FakeStoreReview : StoreReview {
    void requestReview() override { ++requests; }

    int requests = 0;
};

/// Finds the identifier, when the test says so.
struct FakeStoreCatalogue : StoreCatalogue {
    void lookUp(const QString& bundle, const QString& countryCode,
                std::function<void(const QString&)> completion) override {
        asked << bundle + QLatin1Char(' ') + countryCode;
        waiting.push_back(std::move(completion));
    }
    void answer() {
        for (const auto& completion : std::exchange(waiting, {})) {
            completion(identifier);
        }
    }

    QString identifier = QStringLiteral("com.example.store");
    QStringList asked;
    std::vector<std::function<void(const QString&)>> waiting;
};

/// Opens what it is said to be able to open, and keeps what it was asked.
struct FakeUrlOpener : UrlOpener {
    explicit FakeUrlOpener(RunLoop& runLoop) : m_runLoop(runLoop) {}

    void canOpenURL(const QUrl& url, std::function<void(bool)> completion) override {
        asked << url.toString();
        m_runLoop.dispatchMain([completion = std::move(completion), can = canOpen] { completion(can); });
    }
    void openURL(const QUrl& url) override { opened << url.toString(); }

    bool canOpen = true;
    QStringList asked;
    QStringList opened;

private:
    RunLoop& m_runLoop;
};

/// A rater with all that it needs.
struct FakeRating {
    FakeServices& fakes;
    Presenter& presenter = fakes.presenter;
    Notices& notices = fakes.notices;

    RatingStore store{fakes.defaults};
    FakeStoreCatalogue catalogue{};
    FakeUrlOpener urlOpener{fakes.runLoop};
    AppRater::Services services{store,           fakes.runLoop,         presenter,
                                notices,         fakes.notifications,   fakes.formatHold,
                                fakes.lockState, {catalogue, urlOpener}};
    AppRater rater{services};
};

}  // namespace tavi::test
