#include "recording/MicrophoneChoice.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace tavi {

MicrophoneChoice::MicrophoneChoice(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    m_services.audioSession.setPreferredInput(m_services.settings.microphone());
    m_services.audioSession.setInputsListener([self = QPointer(this), &runLoop = m_services.runLoop] {
        runLoop.dispatchMain([self] {
            if (self) {
                self->inputsChanged();
            }
        });
    });
}

MicrophoneChoice::~MicrophoneChoice() {
    m_services.audioSession.setInputsListener({});
}

QString MicrophoneChoice::name() const {
    return m_inUse.isEmpty() ? m_services.audioSession.currentInput().portName : m_inUse;
}

void MicrophoneChoice::willRecord() {
    const QString uid = m_services.settings.microphone();
    m_services.audioSession.setPreferredInput(uid);
    const QString other = m_services.audioSession.currentInput().portName;
    if (!uid.isEmpty() && !isThere(uid) && !other.isEmpty()) {
        m_services.notices.postNotice({qtTrId("microphone_absent").arg(m_services.settings.microphoneName(), other)});
    }
}

void MicrophoneChoice::setInUse(const QString& name) {
    if (std::exchange(m_inUse, name) != name) {
        Q_EMIT nameChanged();
    }
}

void MicrophoneChoice::choose() {
    // Who was not connected to the sound system so far is told of its microphones once that is done.
    m_services.audioSession.requestRecordPermission([](bool) {});
    m_services.presenter.presentActionSheet(sheet());
}

void MicrophoneChoice::inputsChanged() {
    Q_EMIT nameChanged();
    m_services.presenter.updateActionSheet(sheet());
}

Alert MicrophoneChoice::sheet() {
    const QString chosen = m_services.settings.microphone();
    const bool isChosenThere = isThere(chosen);
    Alert alert{qtTrId("microphone_title"), {}, {}};
    const auto add = [&](const QString& title, const AudioSessionPort& port, bool isChosen) {
        const auto choose = [self = QPointer(this), port] {
            if (self) {
                self->prefer(port);
            }
        };
        alert.actions.push_back({title, AlertAction::Style::Default, choose, isChosen});
    };
    add(qtTrId("microphone_default"), {}, !isChosenThere);
    for (const AudioSessionPort& port : m_services.audioSession.availableInputs()) {
        add(port.portName, port, isChosenThere && port.uid == chosen);
    }
    alert.actions.push_back({qtTrId("Cancel"), AlertAction::Style::Cancel});
    return alert;
}

void MicrophoneChoice::prefer(const AudioSessionPort& port) {
    m_services.settings.setMicrophone(port.uid, port.portName);
    m_services.audioSession.setPreferredInput(port.uid);
    Q_EMIT nameChanged();
}

bool MicrophoneChoice::isThere(const QString& uid) const {
    const auto inputs = m_services.audioSession.availableInputs();
    return std::any_of(inputs.begin(), inputs.end(), [&uid](const AudioSessionPort& port) { return port.uid == uid; });
}

}  // namespace tavi
