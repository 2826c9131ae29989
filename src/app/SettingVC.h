#pragma once

#include <QObject>
#include <QStringList>
#include <functional>
#include <vector>

#include "app/CloudPage.h"
#include "app/PasscodeRows.h"
#include "app/SupportRows.h"
#include "app/settings/FormatHold.h"
#include "app/settings/SettingsStore.h"
#include "platform/Presenter.h"
#include "platform/RunLoop.h"
#include "platform/TabBar.h"

namespace tavi {

/// Seconds that a skip slider stands for: the multiple of 5 nearest to its position, which runs from 5 to 60.
double snappedSkipSeconds(double sliderValue);

/// The settings screen (tab 2). Every choice is stored at once. Main thread only.
class SettingVC : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY rowsChanged)
    Q_PROPERTY(QStringList sectionarray READ sectionarray CONSTANT)
    Q_PROPERTY(QStringList headerTexts READ headerTexts NOTIFY rowsChanged)
    Q_PROPERTY(QString extentionText READ extentionText NOTIFY rowsChanged)
    Q_PROPERTY(QString fileType READ fileType NOTIFY rowsChanged)
    Q_PROPERTY(bool isFormatHeld READ isFormatHeld NOTIFY formatHeldChanged)
    Q_PROPERTY(QString qualityText READ qualityText NOTIFY rowsChanged)
    Q_PROPERTY(QString quality READ quality NOTIFY rowsChanged)
    Q_PROPERTY(QString rewindText READ rewindText NOTIFY slidersChanged)
    Q_PROPERTY(double rewindValue READ rewindValue NOTIFY slidersChanged)
    Q_PROPERTY(QString forwardText READ forwardText NOTIFY slidersChanged)
    Q_PROPERTY(double forwardValue READ forwardValue NOTIFY slidersChanged)
    Q_PROPERTY(QString iCloundText READ iCloundText NOTIFY rowsChanged)
    Q_PROPERTY(bool isCloudSyncOn READ isCloudSyncOn NOTIFY rowsChanged)
    Q_PROPERTY(QString quickMailText READ quickMailText NOTIFY rowsChanged)
    Q_PROPERTY(bool isQuickMailOn READ isQuickMailOn NOTIFY rowsChanged)
    Q_PROPERTY(tavi::SupportRows* support READ support CONSTANT)
    Q_PROPERTY(tavi::CloudPage* cloud READ cloud CONSTANT)
    Q_PROPERTY(tavi::PasscodeRows* passcode READ passcode CONSTANT)

public:
    /// What the screen works with; all of it must outlive the screen.
    struct Services {
        SettingsStore& settings;
        FormatHold& formatHold;
        RunLoop& runLoop;
        Presenter& presenter;
        TabBar& tabBar;
        SupportRows& support;
        PasscodeCoordinator& passcode;
        CloudPage& cloud;
    };

    explicit SettingVC(const Services& services, QObject* parent = nullptr);

    QString title() const { return m_title; }
    /// Keys of all section headers. The last has no section and is never shown, on purpose: the list stays as it is.
    QStringList sectionarray() const;
    /// Headers of the sections that are shown, in their order.
    QStringList headerTexts() const { return m_headerTexts; }
    QString extentionText() const { return m_extentionText; }
    QString fileType() const { return m_fileType; }
    /// Whether type and quality cannot be chosen now, because of a recording.
    bool isFormatHeld() const { return m_services.formatHold.isHeld(); }
    QString qualityText() const { return m_qualityText; }
    QString quality() const { return m_quality; }
    QString rewindText() const { return m_rewindText; }
    /// Slider positions, 5 to 60 seconds.
    double rewindValue() const { return m_rewindValue; }
    QString forwardText() const { return m_forwardText; }
    double forwardValue() const { return m_forwardValue; }
    QString iCloundText() const { return m_iCloundText; }
    bool isCloudSyncOn() const { return m_isCloudSyncOn; }
    QString quickMailText() const { return m_quickMailText; }
    bool isQuickMailOn() const { return m_isQuickMailOn; }
    SupportRows* support() const { return &m_services.support; }
    CloudPage* cloud() const { return &m_services.cloud; }
    PasscodeRows* passcode() { return &m_passcode; }

public Q_SLOTS:
    void viewDidLoad();
    void viewWillAppear();
    /// The bar's button: leaves the settings for the recording screen.
    void dismissView();
    /// Builds all rows anew.
    void loadData();
    /// Shows the sheet, unless type and quality are held. What is chosen in a sheet that stands when they become held
    /// is stored when they no longer are.
    void showExtentionActionsheet();
    void showQualityActionsheet();
    /// The user moved a slider to that position.
    void rewindSliderChange(double value);
    void forwardSliderChange(double value);
    /// The user turned a switch. That of the cloud asks where it is, where nobody has said so yet: it goes on once
    /// there is one.
    void hideShowiClound(bool on);
    void autoQuickMail(bool on);

Q_SIGNALS:
    void rowsChanged();
    void slidersChanged();
    void formatHeldChanged();

private:
    void store(std::function<void()> choice);
    void storeWaiting();
    void buildSliderRows();
    void loadDataSoon();
    void cloudAccountChanged();

    Services m_services;
    PasscodeRows m_passcode{m_services.passcode};
    bool m_rowsBuilt = false;
    std::vector<std::function<void()>> m_waiting;
    QString m_title;
    QStringList m_headerTexts;
    QString m_extentionText;
    QString m_fileType;
    QString m_qualityText;
    QString m_quality;
    QString m_rewindText;
    double m_rewindValue = 0.0;
    QString m_forwardText;
    double m_forwardValue = 0.0;
    QString m_iCloundText;
    bool m_isCloudSyncOn = false;
    QString m_quickMailText;
    bool m_isQuickMailOn = false;
};

}  // namespace tavi
