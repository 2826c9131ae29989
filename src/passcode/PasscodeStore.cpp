#include "passcode/PasscodeStore.h"

#include <QCoreApplication>

namespace tavi {

namespace {

/// Something else in its place, which nobody here has stored, is no date.
QDateTime dateIn(const QVariant& value) {
    return value.typeId() == QMetaType::QDateTime ? value.toDateTime() : QDateTime();
}

}  // namespace

bool PasscodeStore::setPasscode(const QString& passcode) {
    return m_keychain.setObject(passcode, passcodekey::kPasscode);
}

bool PasscodeStore::isPasscodeCorrect(const QString& passcode) const {
    QVariant value = storedPasscode();
    QString stored = value.toString();
    const bool isCorrect = value.isValid() && stored == passcode;
    value.clear();
    stored.fill(QLatin1Char('0'));
    return isCorrect;
}

QString PasscodeStore::whyNoneIsCorrect() const {
    const QString trouble = m_keychain.trouble();
    return !trouble.isEmpty() || storedPasscode().isValid() ? trouble : qtTrId("passcode_missing");
}

void PasscodeStore::setPasscodeInactivityDurationInMinutes(int minutes) {
    m_keychain.setObject(minutes, passcodekey::kInactivityDuration);
}

int PasscodeStore::getPasscodeInactivityDurationInMinutes() const {
    return m_keychain.objectForKey(passcodekey::kInactivityDuration).toInt();
}

void PasscodeStore::startTrackingInactivity() {
    m_keychain.setObject(m_clock.now(), passcodekey::kInactivityStarted);
}

void PasscodeStore::stopTrackingInactivity() {
    m_keychain.setObject(m_clock.now(), passcodekey::kInactivityEnded);
}

QDateTime PasscodeStore::getInactivityStartTime() const {
    return dateIn(m_keychain.objectForKey(passcodekey::kInactivityStarted));
}

QDateTime PasscodeStore::getInactivityEndTime() const {
    return dateIn(m_keychain.objectForKey(passcodekey::kInactivityEnded));
}

QVariant PasscodeStore::storedPasscode() const {
    const QVariant stored = m_keychain.objectForKey(passcodekey::kPasscode);
    return stored.typeId() == QMetaType::QString ? stored : QVariant();
}

}  // namespace tavi
