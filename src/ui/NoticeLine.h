#pragma once

#include <QtQml/qqml.h>

#include <QObject>
#include <memory>

#include "platform/Notices.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The notice that is shown, until its time is over.
class NoticeLine : public QObject, public Notices {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has one.")
    Q_PROPERTY(bool active READ isActive NOTIFY noticeChanged)
    Q_PROPERTY(QString text READ text NOTIFY noticeChanged)
    /// Empty where there is nothing to do.
    Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY noticeChanged)

public:
    /// How long a notice is shown, in seconds.
    static constexpr double kShown = 6.0;

    /// The run loop must outlive the line.
    explicit NoticeLine(RunLoop& runLoop, QObject* parent = nullptr);
    ~NoticeLine() override;

    void postNotice(Notice notice) override;

    bool isActive() const { return m_timer != nullptr; }
    QString text() const { return m_notice.text; }
    QString actionTitle() const { return m_notice.actionTitle; }

public Q_SLOTS:
    /// Takes the notice away and does what it offers.
    void act();

Q_SIGNALS:
    void noticeChanged();

private:
    void clear();

    RunLoop& m_runLoop;
    Notice m_notice;
    /// Runs while a notice is shown.
    std::shared_ptr<Timer> m_timer;
};

}  // namespace tavi
