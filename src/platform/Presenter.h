#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

namespace tavi {

/// One button of an alert or action sheet.
struct AlertAction {
    enum class Style { Default, Cancel, Destructive };

    QString title;
    Style style = Style::Default;
    /// Called on the main thread once the alert is gone; may be empty.
    std::function<void()> handler = {};
    /// For one of several choices of which one holds at present: whether it is this one.
    std::optional<bool> isChosen = {};
};

/// A text with buttons, in the middle of the window or as a sheet at its lower edge.
struct Alert {
    QString title;
    QString message;
    std::vector<AlertAction> actions;
};

/// Shows alerts and sheets over whatever is on screen. Main thread only.
///
/// An alert presented while another one stands waits for its turn; none is dropped. Dismissing without a choice counts
/// as the action of style Cancel, or the only action.
class Presenter {
public:
    virtual ~Presenter() = default;

    virtual void presentAlert(Alert alert) = 0;
    virtual void presentActionSheet(Alert sheet) = 0;
    /// Puts the sheet in the place of one with that title, where one stands or waits.
    virtual void updateActionSheet(Alert sheet) = 0;
};

}  // namespace tavi
