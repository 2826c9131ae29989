#pragma once

#include <QtQml/qqml.h>

#include <QObject>

#include "platform/ProgressView.h"

namespace tavi {

/// The window's progress overlay.
class JHUD : public QObject, public ProgressView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has one.")
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)
    Q_PROPERTY(QString text READ text NOTIFY shownChanged)
    /// Whether it is the bar, and not the ring.
    Q_PROPERTY(bool bar READ isBar NOTIFY shownChanged)
    Q_PROPERTY(bool cancellable READ isCancellable NOTIFY shownChanged)
    Q_PROPERTY(double share READ share NOTIFY shareChanged)

public:
    using QObject::QObject;

    void show(Progress progress) override;
    void setShare(double share) override;
    void hide() override;

    bool isShown() const { return m_isShown; }
    QString text() const { return m_progress.text; }
    bool isBar() const { return m_progress.type == Progress::HudType::Bar; }
    bool isCancellable() const { return m_progress.cancel != nullptr; }
    double share() const { return m_share; }

public Q_SLOTS:
    /// The user gives it up.
    void cancel();

Q_SIGNALS:
    void shownChanged();
    void shareChanged();

private:
    void change(bool isShown, Progress progress);

    bool m_isShown = false;
    Progress m_progress;
    double m_share = 0.0;
};

}  // namespace tavi
