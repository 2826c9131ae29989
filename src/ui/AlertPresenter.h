#pragma once

#include <QtQml/qqml.h>

#include <QList>
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
    /// Whether the front one has a text field, and what that holds at first.
    Q_PROPERTY(bool hasField READ hasField NOTIFY frontChanged)
    Q_PROPERTY(QString fieldText READ fieldText NOTIFY frontChanged)
    /// Whether the front one belongs beside a point of the window, and which.
    Q_PROPERTY(bool anchored READ isAnchored NOTIFY frontChanged)
    Q_PROPERTY(QPointF anchor READ anchor NOTIFY frontChanged)
    Q_PROPERTY(QList<qreal> levels READ levels NOTIFY frontChanged)
    /// One map an action: "title", "image" and "shortcut", and whether it is "cancel" or "destructive", a "choice", and
    /// "chosen" at present.
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
    bool hasField() const { return isActive() && m_queue.front().alert.text.has_value(); }
    QString fieldText() const { return hasField() ? *m_queue.front().alert.text : QString(); }
    bool isAnchored() const { return isActive() && m_queue.front().alert.anchor.has_value(); }
    QPointF anchor() const { return isAnchored() ? *m_queue.front().alert.anchor : QPointF(); }
    QList<qreal> levels() const { return isActive() ? m_queue.front().alert.levels : QList<qreal>(); }
    QVariantList actions() const;
    int defaultAction() const;

public Q_SLOTS:
    /// Takes the front one away, shows the next, and then calls the action's handler; with what the text field holds.
    void choose(int action, const QString& text = {});
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
    void boundFlood();
    int actionOfStyle(AlertAction::Style style) const;

    std::deque<Entry> m_queue;
};

}  // namespace tavi
