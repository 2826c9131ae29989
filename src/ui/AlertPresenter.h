#pragma once

#include <QtQml/qqml.h>

#include <QObject>
#include <QVariantList>
#include <deque>

#include "platform/Presenter.h"

namespace tavi {

/// The queue of alerts and sheets; QML shows the front one.
class AlertPresenter : public QObject, public Presenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has one.")
    Q_PROPERTY(bool active READ isActive NOTIFY frontChanged)
    /// Whether the front one is an action sheet.
    Q_PROPERTY(bool sheet READ isSheet NOTIFY frontChanged)
    Q_PROPERTY(QString title READ title NOTIFY frontChanged)
    Q_PROPERTY(QString message READ message NOTIFY frontChanged)
    /// One map an action: "title", and whether it is "cancel" or "destructive", a "choice", and "chosen" at present.
    Q_PROPERTY(QVariantList actions READ actions NOTIFY frontChanged)
    /// The action that Enter chooses at once: the first harmless one; -1 for none.
    Q_PROPERTY(int defaultAction READ defaultAction NOTIFY frontChanged)

public:
    using QObject::QObject;

    void presentAlert(Alert alert) override { present({std::move(alert), false}); }
    void presentActionSheet(Alert sheet) override { present({std::move(sheet), true}); }
    void updateActionSheet(Alert sheet) override;

    bool isActive() const { return !m_queue.empty(); }
    bool isSheet() const { return isActive() && m_queue.front().isSheet; }
    QString title() const { return isActive() ? m_queue.front().alert.title : QString(); }
    QString message() const { return isActive() ? m_queue.front().alert.message : QString(); }
    QVariantList actions() const;
    int defaultAction() const;

public Q_SLOTS:
    /// Takes the front one away, shows the next, and then calls the action's handler.
    void choose(int action);
    /// Chooses the action of style Cancel, or the only one; where there is neither, the alert stays.
    void dismiss();

Q_SIGNALS:
    void frontChanged();

private:
    struct Entry {
        Alert alert;
        bool isSheet = false;
    };

    void present(Entry entry);
    int actionOfStyle(AlertAction::Style style) const;

    std::deque<Entry> m_queue;
};

}  // namespace tavi
