#pragma once

#include <QList>
#include <QPointF>
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
    /// In the place of handler where the alert has a text field: is given what that holds.
    std::function<void(const QString& text)> textHandler = {};
    /// For a sheet: the name of an image of the shell, and the key that does the same, as the user reads it.
    QString image = {};
    QString shortcut = {};
};

/// A text with buttons, in the middle of the window or as a sheet at its lower edge.
struct Alert {
    QString title;
    QString message;
    std::vector<AlertAction> actions;
    /// What the alert's one text field holds at first; nothing for an alert without one.
    std::optional<QString> text = {};
    /// Where in the window a sheet has been asked for. In a wide window it opens there, as a menu, and leaves out the
    /// action of style Cancel.
    std::optional<QPointF> anchor = {};
    /// For a sheet with an anchor: the shape of the sound that it is about, numbers from 0 to 1. Shown at its head.
    QList<qreal> levels = {};
    /// Another program has it shown, and may do so any number of times; nobody waits for an answer.
    bool isFromOutside = false;
};

/// Shows alerts and sheets over whatever is on screen. Main thread only.
///
/// An alert presented while another one stands waits for its turn. None is dropped, but of those from outside
/// the oldest that waits where more than 16 do. Dismissing without a choice counts as the action of style Cancel, or
/// the only action.
class Presenter {
public:
    virtual ~Presenter() = default;

    virtual void presentAlert(Alert alert) = 0;
    virtual void presentActionSheet(Alert sheet) = 0;
    /// Puts the sheet in the place of one with that title, where one stands or waits.
    virtual void updateActionSheet(Alert sheet) = 0;
};

}  // namespace tavi
