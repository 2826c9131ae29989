#include "app/CloudPage.h"

#include <QPointer>
#include <utility>

#include "library/utility/Utility.h"

namespace tavi {

CloudPage::CloudPage(const Services& services, QObject* parent) : QObject(parent), m_services(services) {
    connect(&m_services.cloud, &CloudConnection::conditionChanged, this, &CloudPage::conditionChanged);
}

QString CloudPage::placeText() const {
    const CloudAccount place = account();
    return place.user.isEmpty() ? place.placeText() : qtTrId("cloud_place_of").arg(place.placeText(), place.user);
}

QString CloudPage::stateText() const {
    const CloudCondition condition = m_services.cloud.condition();
    switch (condition.state) {
        case CloudCondition::State::None:
            return {};
        case CloudCondition::State::Off:
            return qtTrId("cloud_state_off");
        case CloudCondition::State::Folder:
            return qtTrId("cloud_state_folder");
        case CloudCondition::State::Working:
            return qtTrId("cloud_state_working");
        case CloudCondition::State::InStep:
            return qtTrId("cloud_state_in_step");
        case CloudCondition::State::Troubled:
            return qtTrId("cloud_state_troubled");
        case CloudCondition::State::Asking:
            return qtTrId("cloud_state_asking").arg(condition.vanished);
    }
    return {};
}

QString CloudPage::lastSyncText() const {
    const QDateTime last = m_services.cloud.condition().lastSync;
    return last.isValid() ? Utility::getTheFormatDate(last) : QString();
}

QString CloudPage::errorText() const {
    return hasAccount() ? m_services.cloud.condition().error : m_connectError;
}

void CloudPage::open() {
    m_isOpen = true;
    Q_EMIT changed();
}

void CloudPage::giveUp() {
    ++m_attempt;
    m_isConnecting ? m_services.cloud.giveUp() : void();
}

void CloudPage::close() {
    giveUp();
    m_isOpen = m_isServerAsked = m_isConnecting = false;
    m_connectError.clear();
    Q_EMIT changed();
}

void CloudPage::askForServer(bool isAsked) {
    giveUp();
    m_isServerAsked = isAsked;
    m_isConnecting = false;
    m_connectError.clear();
    Q_EMIT changed();
}

void CloudPage::askForFolder() {
    m_services.picker.presentForFolder(qtTrId("cloud_choose_title"),
                                       [self = QPointer(this)](const Result<std::optional<PickedDocument>>& picked) {
                                           if (!self || (picked && !*picked)) {
                                               return;
                                           }
                                           if (!picked) {
                                               self->m_connectError = picked.error().text;
                                               return Q_EMIT self->changed();
                                           }
                                           CloudAccount account;
                                           account.kind = CloudAccount::Kind::Folder;
                                           account.folder = (*picked)->path;
                                           self->connectTo(account, {});
                                       });
}

bool CloudPage::mayUseNetwork(const CloudAccount& account) const {
    if (!account.isElsewhere() || Utility::connectedToNetwork(m_services.reachability)) {
        return true;
    }
    Utility::showNetworkError(m_services.presenter);
    return false;
}

void CloudPage::connectToServer(const QString& address, const QString& user, const QString& password) {
    m_connectError.clear();
    Q_EMIT changed();
    CloudAccount account = CloudAccount::server(address, user);
    if (!account.isInClear()) {
        return connectTo(account, password);
    }
    const auto agree = [self = QPointer(this), account, password]() mutable {
        account.mayBeInClear = true;
        self ? self->connectTo(account, password) : void();
    };
    m_services.presenter.presentAlert({qtTrId("cloud_clear_title"),
                                       qtTrId("cloud_clear_text"),
                                       {{qtTrId("Cancel"), AlertAction::Style::Cancel},
                                        {qtTrId("cloud_clear_yes"), AlertAction::Style::Destructive, agree}}});
}

void CloudPage::connectTo(const CloudAccount& account, const QString& password) {
    if (!mayUseNetwork(account)) {
        return;
    }
    m_isConnecting = true;
    m_connectError.clear();
    Q_EMIT changed();
    m_services.cloud.connectTo(account, password,
                               [self = QPointer(this), attempt = ++m_attempt](const Result<void>& result) {
                                   if (!self || attempt != self->m_attempt) {
                                       return;
                                   }
                                   self->m_isConnecting = false;
                                   self->m_isServerAsked = self->m_isServerAsked && !result;
                                   self->m_connectError = result ? QString() : result.error().text;
                                   Q_EMIT self->changed();
                                   if (result) {
                                       Q_EMIT self->accountChanged();
                                   }
                               });
}

void CloudPage::syncNow() {
    if (mayUseNetwork(account())) {
        m_services.cloud.syncNow();
    }
}

void CloudPage::disconnectAccount() {
    const auto leave = [self = QPointer(this)] {
        if (self) {
            self->m_services.cloud.removeAccount();
            self->close();
            Q_EMIT self->accountChanged();
        }
    };
    m_services.presenter.presentAlert({qtTrId("cloud_disconnect_title"),
                                       qtTrId("cloud_disconnect_text").arg(account().placeText()),
                                       {{qtTrId("Cancel"), AlertAction::Style::Cancel},
                                        {qtTrId("cloud_disconnect"), AlertAction::Style::Destructive, leave}}});
}

void CloudPage::conditionChanged() {
    // Asked once by itself: whoever puts it off finds the question on the page. A look that failed settles nothing.
    const CloudCondition::State state = m_services.cloud.condition().state;
    const bool isUnsettled = state == CloudCondition::State::Troubled || state == CloudCondition::State::Working;
    if (isAsking()) {
        std::exchange(m_wasAsking, true) ? void() : askAboutVanished();
    } else if (m_hasAnswered || !isUnsettled) {
        m_wasAsking = m_hasAnswered = false;
    }
    Q_EMIT changed();
}

void CloudPage::askAboutVanished() {
    const int asked = m_services.cloud.condition().vanished;
    const auto answer = [self = QPointer(this), asked](bool areRemoved) {
        return [self, asked, areRemoved] {
            if (self && self->m_services.cloud.condition().vanished == asked) {
                self->m_hasAnswered = true;
                self->m_services.cloud.answerVanished(areRemoved);
            } else if (self && self->isAsking()) {
                // There are others by now, of which the user knows nothing.
                self->askAboutVanished();
            }
        };
    };
    m_services.presenter.presentAlert(
        {qtTrId("cloud_vanished_title"),
         qtTrId("cloud_vanished_text").arg(asked),
         {{qtTrId("cloud_vanished_later"), AlertAction::Style::Cancel},
          {qtTrId("cloud_vanished_keep"), AlertAction::Style::Default, answer(false)},
          {qtTrId("cloud_vanished_remove"), AlertAction::Style::Destructive, answer(true)}}});
}

}  // namespace tavi
