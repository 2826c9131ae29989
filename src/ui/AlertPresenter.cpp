#include "ui/AlertPresenter.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tavi {

namespace {

/// In a flood from outside the user reads the first one, and so many of the last.
constexpr std::ptrdiff_t kMostFromOutside = 16;

}  // namespace

void AlertPresenter::present(Entry entry) {
    if (entry.alert.actions.empty()) {
        // Nobody could ever close it; a bare button does.
        entry.alert.actions.push_back({qtTrId("OK"), AlertAction::Style::Cancel});
    }
    m_queue.push_back(std::move(entry));
    boundFlood();
    if (m_queue.size() == 1) {
        Q_EMIT frontChanged();
    }
}

void AlertPresenter::boundFlood() {
    const auto isFromOutside = [](const Entry& entry) { return entry.alert.isFromOutside; };
    const auto waiting = m_queue.begin() + 1;
    if (std::count_if(waiting, m_queue.end(), isFromOutside) > kMostFromOutside) {
        m_queue.erase(std::find_if(waiting, m_queue.end(), isFromOutside));
    }
}

void AlertPresenter::updateActionSheet(Alert sheet) {
    const auto entry = std::find_if(m_queue.begin(), m_queue.end(), [&sheet](const Entry& one) {
        return one.isSheet && one.alert.title == sheet.title;
    });
    if (entry != m_queue.end()) {
        entry->alert = std::move(sheet);
        Q_EMIT frontChanged();
    }
}

QVariantList AlertPresenter::actions() const {
    QVariantList list;
    if (isActive()) {
        for (const AlertAction& action : m_queue.front().alert.actions) {
            list.append(QVariantMap{
                {QStringLiteral("title"), action.title},
                {QStringLiteral("image"), action.image},
                {QStringLiteral("shortcut"), action.shortcut},
                {QStringLiteral("cancel"), action.style == AlertAction::Style::Cancel},
                {QStringLiteral("destructive"), action.style == AlertAction::Style::Destructive},
                {QStringLiteral("choice"), action.isChosen.has_value()},
                {QStringLiteral("chosen"), action.isChosen.value_or(false)},
            });
        }
    }
    return list;
}

int AlertPresenter::actionOfStyle(AlertAction::Style style) const {
    if (!isActive()) {
        return -1;
    }
    const auto& actions = m_queue.front().alert.actions;
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [style](const AlertAction& action) { return action.style == style; });
    return found == actions.end() ? -1 : static_cast<int>(found - actions.begin());
}

int AlertPresenter::defaultAction() const {
    // Beside something destructive, Enter must do no harm.
    const int cancel = actionOfStyle(AlertAction::Style::Cancel);
    if (cancel >= 0 && actionOfStyle(AlertAction::Style::Destructive) >= 0) {
        return cancel;
    }
    const int usual = actionOfStyle(AlertAction::Style::Default);
    return usual >= 0 ? usual : cancel;
}

void AlertPresenter::choose(int action, const QString& text) {
    if (!isActive() || action < 0 || action >= static_cast<int>(m_queue.front().alert.actions.size())) {
        return;
    }
    const AlertAction chosen = std::move(m_queue.front().alert.actions[static_cast<std::size_t>(action)]);
    m_queue.pop_front();
    Q_EMIT frontChanged();
    if (chosen.textHandler) {
        chosen.textHandler(text);
    } else if (chosen.handler) {
        chosen.handler();
    }
}

void AlertPresenter::dismiss() {
    const int cancel = actionOfStyle(AlertAction::Style::Cancel);
    if (cancel >= 0) {
        choose(cancel);
    } else if (isActive() && m_queue.front().alert.actions.size() == 1) {
        choose(0);
    }
}

}  // namespace tavi
