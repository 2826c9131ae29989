#pragma once

#include <QList>
#include <QObject>

#include "passcode/PasscodeButtonStyle.h"
#include "passcode/PasscodeStore.h"
#include "passcode/PasscodeType.h"
#include "platform/Outlets.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The entry screen: ten keys and four dots. It collects four digits, judges them, and tells its delegate. What was
/// typed is in none of its properties. Main thread only.
class PasscodeViewController : public QObject {
    Q_OBJECT
    Q_PROPERTY(tavi::LabelOutlet lblInstruction READ lblInstruction NOTIFY outletsChanged)
    Q_PROPERTY(double instructionSize READ instructionSize NOTIFY viewGenerated)
    Q_PROPERTY(tavi::ButtonOutlet btnCancelOrDelete READ btnCancelOrDelete NOTIFY outletsChanged)
    Q_PROPERTY(bool cancelOrDeleteHidden READ isCancelOrDeleteHidden NOTIFY outletsChanged)
    Q_PROPERTY(double cancelOrDeleteSize READ cancelOrDeleteSize NOTIFY viewGenerated)
    /// What keeps every passcode from being correct; empty while nothing does.
    Q_PROPERTY(QString trouble READ trouble NOTIFY outletsChanged)
    Q_PROPERTY(int numberOfDigitsEntered READ numberOfDigitsEntered NOTIFY outletsChanged)
    Q_PROPERTY(QObjectList passcodeButtons READ passcodeButtons NOTIFY viewGenerated)
    Q_PROPERTY(QObjectList passcodeEntryViews READ passcodeEntryViews NOTIFY viewGenerated)
    Q_PROPERTY(QString backgroundColor READ backgroundColor NOTIFY viewGenerated)
    Q_PROPERTY(QString backgroundImage READ backgroundImage NOTIFY viewGenerated)
    Q_PROPERTY(QString logo READ logo NOTIFY viewGenerated)
    Q_PROPERTY(bool tablet READ isTablet WRITE setTablet NOTIFY tabletChanged)
    Q_PROPERTY(int passcodeButtonSize READ passcodeButtonSize NOTIFY tabletChanged)
    Q_PROPERTY(int logoDistance READ logoDistance NOTIFY tabletChanged)

public:
    static constexpr int kDigits = 4;

    /// What the screen works with; all of it must outlive the screen.
    struct Services {
        PasscodeStore& store;
        const PasscodeAppearance& appearance;
        RunLoop& runLoop;
    };
    /// What the one button beside the keys does.
    enum Tag { TagNone = 0, TagCancel = 1, TagDelete = 2 };
    enum class Orientations { Portrait, All };

    PasscodeViewController(PasscodeType type, PasscodeViewControllerDelegate& delegate, const Services& services,
                           QObject* parent = nullptr);
    ~PasscodeViewController() override;

    /// A Change becomes a Setup once the old passcode was correct.
    PasscodeType passcodeType() const { return m_passcodeType; }
    int currentWorkflowStep() const { return m_currentWorkflowStep; }
    int numberOfDigitsEntered() const { return m_numberOfDigitsEntered; }
    LabelOutlet lblInstruction() const { return m_lblInstruction; }
    ButtonOutlet btnCancelOrDelete() const { return m_btnCancelOrDelete; }
    bool isCancelOrDeleteHidden() const { return m_isCancelOrDeleteHidden; }
    Tag cancelOrDeleteTag() const { return m_cancelOrDeleteTag; }
    double instructionSize() const { return m_services.appearance.instructionsLabelFont.pointSize; }
    double cancelOrDeleteSize() const { return m_services.appearance.cancelOrDeleteButtonFont.pointSize; }
    QString trouble() const { return m_trouble; }
    /// Ten PasscodeCircularButton, 0 first; four PasscodeCircularView.
    QObjectList passcodeButtons() const { return m_passcodeButtons; }
    QObjectList passcodeEntryViews() const { return m_passcodeEntryViews; }
    QString backgroundColor() const { return m_services.appearance.backgroundColor; }
    QString backgroundImage() const { return m_services.appearance.backgroundImage; }
    QString logo() const { return m_services.appearance.logo; }

    /// There is room for list and player side by side.
    bool isTablet() const { return m_isTablet; }
    void setTablet(bool isTablet);
    /// Points across a key.
    int passcodeButtonSize() const { return m_isTablet ? 80 : 65; }
    /// Points from the logo's middle down to the instruction's.
    int logoDistance() const { return m_isTablet ? 130 : 120; }
    Orientations supportedInterfaceOrientations() const {
        return m_isTablet ? Orientations::All : Orientations::Portrait;
    }

    /// Builds everything anew: what was half typed is gone. Before anything else.
    void viewWillAppear();
    /// The store may have become readable, or no longer be so.
    void troubleChanged();

public Q_SLOTS:
    /// The key with that digit, 0 to 9. Nothing happens once four digits are there.
    void passcodeBtnPressed(int tag);
    void cancelOrDeleteBtnPressed();
    /// What was typed on a keyboard; true where it was a digit of any script.
    bool typed(const QString& text);
    /// Deletes the last digit where there is one.
    void deletePressed();
    /// Cancels where that is offered.
    void cancelPressed();

Q_SIGNALS:
    void viewGenerated();
    void outletsChanged();
    void tabletChanged();
    /// The dots are to be at these points beside their place, one after the other at equal times, and back there after
    /// that many seconds.
    void shakeRequested(const QList<double>& offsets, double seconds);

private:
    void generateView();
    void createButtons();
    void createPasscodeEntryView();
    void updateLayoutBasedOnWorkflowStep();
    void enableCancelIfAllowed();
    void enableDelete();
    void resetPasscodeEntryView();
    void evaluatePasscodeEntry();
    void evaluateExisting(const QString& entry);
    void evaluateNew(QString& entry);
    void startOver(PasscodeType type);
    void performErrorWithErrorType(int errorType);
    void performShake();

    PasscodeType m_passcodeType;
    PasscodeViewControllerDelegate& m_delegate;
    Services m_services;
    bool m_isTablet = false;
    int m_currentWorkflowStep = 0;
    int m_numberOfDigitsEntered = 0;
    QString m_passcodeEntered;
    QString m_passcodeFirstEntry;
    QString m_trouble;
    LabelOutlet m_lblInstruction;
    ButtonOutlet m_btnCancelOrDelete;
    bool m_isCancelOrDeleteHidden = true;
    Tag m_cancelOrDeleteTag = TagNone;
    QObjectList m_passcodeButtons;
    QObjectList m_passcodeEntryViews;
};

}  // namespace tavi
