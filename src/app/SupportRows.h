#pragma once

#include <QObject>

#include "app/settings/SettingsStore.h"
#include "platform/AudioSession.h"
#include "platform/MailComposer.h"
#include "platform/Notices.h"
#include "platform/UrlOpener.h"
#include "support/AppRater.h"

namespace tavi {

/// The support section of the settings. Its addresses are chosen when the program is built. Main thread only.
class SupportRows : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString rateText READ rateText CONSTANT)
    Q_PROPERTY(QString moreAppsText READ moreAppsText CONSTANT)
    Q_PROPERTY(QString reportBugText READ reportBugText CONSTANT)

public:
    /// All of it must outlive the rows.
    struct Services {
        AppRater& appRater;
        UrlOpener& urlOpener;
        MailComposer& mailComposer;
        Notices& notices;
        const SettingsStore& settings;
        const AudioSession& audioSession;
    };

    explicit SupportRows(const Services& services, QObject* parent = nullptr) : QObject(parent), m_services(services) {}

    QString rateText() const { return qtTrId("rate"); }
    QString moreAppsText() const { return qtTrId("more_apps"); }
    QString reportBugText() const { return qtTrId("report_bug"); }

    /// Hands the mail over; a notice says where to write where nothing takes it.
    void emailSubject(const QString& emailSubject, const QString& andWithT0, const QString& andWithBody);

public Q_SLOTS:
    /// Counts as a launch: whoever has been asked and has said no is not asked again.
    void rate();
    /// Only finds out whether the page of the maker's other programs can be opened, and never opens it, on purpose.
    void moreApps();
    void reportBug();
    /// Has the user guide that came with the program shown.
    void openGuide();

private:
    /// What a report has to say about program and machine.
    QString facts() const;

    Services m_services;
};

}  // namespace tavi
