#include "passcode/PasscodeViewController.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "passcode/PasscodeCircularButton.h"

namespace tavi {

namespace {

constexpr int kFirstEntry = 0;
constexpr int kConfirmation = 1;
/// For a moment: the two entries differ.
constexpr int kMismatch = 3;

constexpr int kErrorWrong = 0;
constexpr int kErrorMismatch = 1;

/// So that the last dot is seen filled.
constexpr double kEvaluationDelay = 0.1;
constexpr double kShakeSeconds = 0.75;

/// To the left and the right, each time less far.
QList<double> shakeOffsets() {
    constexpr double kAmplitude = 30.0;
    constexpr double kDecay = 0.7;
    constexpr double kLeast = 0.01;
    constexpr int kPairs = 4;
    QList<double> offsets;
    double amplitude = kAmplitude;
    for (int i = 0; i < 2 * kPairs && amplitude > kLeast; ++i, amplitude *= kDecay) {
        offsets.append(i % 2 == 0 ? -amplitude : amplitude);
    }
    return offsets;
}

/// Leaves nothing of it in memory.
void forget(QString& digits) {
    digits.fill(QLatin1Char('0'));
    digits.clear();
}

PasscodeCircularView& dotAt(const QObjectList& dots, qsizetype index) {
    return *static_cast<PasscodeCircularView*>(dots.at(index));
}

}  // namespace

PasscodeViewController::PasscodeViewController(PasscodeType type, PasscodeViewControllerDelegate& delegate,
                                               const Services& services, QObject* parent)
    : QObject(parent), m_passcodeType(type), m_delegate(delegate), m_services(services) {}

PasscodeViewController::~PasscodeViewController() {
    forget(m_passcodeEntered);
    forget(m_passcodeFirstEntry);
}

void PasscodeViewController::setTablet(bool isTablet) {
    if (std::exchange(m_isTablet, isTablet) != isTablet) {
        Q_EMIT tabletChanged();
    }
}

void PasscodeViewController::viewWillAppear() {
    generateView();
}

void PasscodeViewController::generateView() {
    createButtons();
    createPasscodeEntryView();
    updateLayoutBasedOnWorkflowStep();
    m_trouble = m_services.store.trouble();
    Q_EMIT viewGenerated();
    Q_EMIT outletsChanged();
}

void PasscodeViewController::createButtons() {
    const PasscodeButtonStyleProvider& provider = m_services.appearance.buttonStyleProvider;
    constexpr int kAll = PasscodeButtonStyleProvider::kAllButtons;
    const bool isOneForAll = provider.customStyleExistsForButtonType(kAll);
    for (QObject* old : std::exchange(m_passcodeButtons, {})) {
        old->deleteLater();
    }
    for (int i = 0; i <= 9; ++i) {
        const PasscodeButtonStyle style = provider.styleForButtonType(isOneForAll ? kAll : i);
        m_passcodeButtons.append(new PasscodeCircularButton(QString::number(i), style, this));
    }
    m_btnCancelOrDelete = {{}, {}, m_services.appearance.cancelOrDeleteButtonColor};
    m_isCancelOrDeleteHidden = true;
    m_cancelOrDeleteTag = TagNone;
    m_lblInstruction.textColor = m_services.appearance.instructionsLabelColor;
}

void PasscodeViewController::createPasscodeEntryView() {
    for (QObject* old : std::exchange(m_passcodeEntryViews, {})) {
        old->deleteLater();
    }
    for (int i = 0; i < kDigits; ++i) {
        m_passcodeEntryViews.append(new PasscodeCircularView(m_services.appearance.passcodeViewLineColor,
                                                             m_services.appearance.passcodeViewFillColor, this));
    }
    resetPasscodeEntryView();
}

void PasscodeViewController::updateLayoutBasedOnWorkflowStep() {
    m_isCancelOrDeleteHidden = true;
    switch (m_passcodeType) {
        case PasscodeType::Setup:
            if (m_currentWorkflowStep == kMismatch) {
                m_currentWorkflowStep = kFirstEntry;
            }
            m_lblInstruction.text = m_currentWorkflowStep == kFirstEntry ? qtTrId("new_pass") : qtTrId("Re_pass");
            break;
        case PasscodeType::Change:
            m_lblInstruction.text = qtTrId("old_pass");
            break;
        case PasscodeType::Unlock:
        case PasscodeType::Verify:
            m_lblInstruction.text = qtTrId("password");
            break;
    }
    enableCancelIfAllowed();
    resetPasscodeEntryView();
    Q_EMIT outletsChanged();
}

void PasscodeViewController::enableCancelIfAllowed() {
    // Never to unlock: the lock does not go without the passcode.
    if (m_passcodeType != PasscodeType::Unlock) {
        m_btnCancelOrDelete.title = qtTrId("Cancel");
        m_cancelOrDeleteTag = TagCancel;
        m_isCancelOrDeleteHidden = false;
    }
}

void PasscodeViewController::enableDelete() {
    if (m_cancelOrDeleteTag != TagDelete) {
        m_cancelOrDeleteTag = TagDelete;
        m_btnCancelOrDelete.title = qtTrId("Delete");
    }
    m_isCancelOrDeleteHidden = false;
}

void PasscodeViewController::resetPasscodeEntryView() {
    for (qsizetype i = 0; i < m_passcodeEntryViews.size(); ++i) {
        dotAt(m_passcodeEntryViews, i).clear();
    }
    forget(m_passcodeEntered);
    m_passcodeEntered.reserve(kDigits);
    m_numberOfDigitsEntered = 0;
}

void PasscodeViewController::passcodeBtnPressed(int tag) {
    if (m_numberOfDigitsEntered == kDigits) {
        return;
    }
    m_passcodeEntered += QLatin1Char(static_cast<char>('0' + tag));
    dotAt(m_passcodeEntryViews, m_numberOfDigitsEntered).fill();
    ++m_numberOfDigitsEntered;
    if (m_numberOfDigitsEntered == 1) {
        enableDelete();
    } else if (m_numberOfDigitsEntered == kDigits) {
        m_services.runLoop.dispatchAfter(kEvaluationDelay, [self = QPointer(this)] {
            if (self) {
                self->evaluatePasscodeEntry();
            }
        });
    }
    Q_EMIT outletsChanged();
}

void PasscodeViewController::cancelOrDeleteBtnPressed() {
    if (m_cancelOrDeleteTag == TagCancel) {
        m_delegate.passcodeSetupCancelled();
        return;
    }
    // Also between the last digit and its evaluation, on purpose: what is left is evaluated then.
    if (m_cancelOrDeleteTag != TagDelete || m_numberOfDigitsEntered == 0) {
        return;
    }
    --m_numberOfDigitsEntered;
    dotAt(m_passcodeEntryViews, m_numberOfDigitsEntered).clear();
    m_passcodeEntered.chop(1);
    if (m_numberOfDigitsEntered == 0) {
        m_isCancelOrDeleteHidden = true;
        enableCancelIfAllowed();
    }
    Q_EMIT outletsChanged();
}

bool PasscodeViewController::typed(const QString& text) {
    const int digit = text.size() == 1 ? text.front().digitValue() : -1;
    if (digit >= 0) {
        passcodeBtnPressed(digit);
    }
    return digit >= 0;
}

void PasscodeViewController::deletePressed() {
    if (m_cancelOrDeleteTag == TagDelete) {
        cancelOrDeleteBtnPressed();
    }
}

void PasscodeViewController::cancelPressed() {
    if (m_cancelOrDeleteTag == TagCancel) {
        cancelOrDeleteBtnPressed();
    }
}

void PasscodeViewController::evaluatePasscodeEntry() {
    // What has been judged is of no use any more, though the screen may stay.
    QString entry = std::exchange(m_passcodeEntered, {});
    if (m_passcodeType == PasscodeType::Setup) {
        evaluateNew(entry);
    } else {
        evaluateExisting(entry);
    }
    forget(entry);
}

void PasscodeViewController::evaluateExisting(const QString& entry) {
    if (!m_services.store.isPasscodeCorrect(entry)) {
        m_trouble = m_services.store.whyNoneIsCorrect();
        performErrorWithErrorType(kErrorWrong);
        startOver(m_passcodeType);
    } else if (m_passcodeType == PasscodeType::Change) {
        startOver(PasscodeType::Setup);
    } else {
        m_delegate.didVerifyPasscode();
    }
}

void PasscodeViewController::evaluateNew(QString& entry) {
    if (m_currentWorkflowStep == kFirstEntry) {
        m_passcodeFirstEntry.swap(entry);
        m_currentWorkflowStep = kConfirmation;
        updateLayoutBasedOnWorkflowStep();
        return;
    }
    const bool isRepeated = entry == m_passcodeFirstEntry;
    forget(m_passcodeFirstEntry);
    if (isRepeated) {
        // Whether it could be stored changes nothing here: the store keeps it until it can.
        m_services.store.setPasscode(entry);
        m_delegate.didSetupPasscode();
    } else {
        m_currentWorkflowStep = kMismatch;
        performErrorWithErrorType(kErrorMismatch);
        updateLayoutBasedOnWorkflowStep();
    }
}

void PasscodeViewController::startOver(PasscodeType type) {
    m_passcodeType = type;
    m_currentWorkflowStep = kFirstEntry;
    updateLayoutBasedOnWorkflowStep();
}

void PasscodeViewController::troubleChanged() {
    m_trouble = m_services.store.trouble();
    Q_EMIT outletsChanged();
}

void PasscodeViewController::performErrorWithErrorType(int) {
    // The same for every error.
    performShake();
}

void PasscodeViewController::performShake() {
    Q_EMIT shakeRequested(shakeOffsets(), kShakeSeconds);
}

}  // namespace tavi
