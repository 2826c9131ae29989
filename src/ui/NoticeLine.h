#pragma once

#include <QtQml/qqml.h>

#include <QObject>
#include <memory>
#include <vector>

#include "platform/Notices.h"
#include "platform/RunLoop.h"

namespace tavi {

/// The notice that is shown, until its time is over; then the latest about work that still goes on.
class NoticeLine : public QObject, public Notices {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has one.")
    Q_PROPERTY(bool active READ isActive NOTIFY noticeChanged)
    Q_PROPERTY(QString text READ text NOTIFY noticeChanged)
    /// Empty where there is nothing to do.
    Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY noticeChanged)
    /// How far the work has come that the line is about, from 0 to 1; negative where it is about none.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    /// Whether the user is about to read or use it: it does not go by itself before its whole time has passed anew.
    Q_PROPERTY(bool held MEMBER m_isHeld WRITE setHeld)

public:
    /// How long a notice is shown, in seconds, and how long one that can be acted on.
    static constexpr double kShown = 5.0;
    static constexpr double kShownWithAction = 10.0;

    /// The run loop must outlive the line.
    explicit NoticeLine(RunLoop& runLoop, QObject* parent = nullptr);
    ~NoticeLine() override;

    void postNotice(Notice notice) override;
    std::unique_ptr<ProgressNotice> postProgress(Notice notice) override;

    bool isActive() const { return m_isActive || !m_works.empty(); }
    QString text() const { return shown().text; }
    QString actionTitle() const { return shown().actionTitle; }
    double progress() const;
    void setHeld(bool held);

public Q_SLOTS:
    /// Takes the notice away and does what it offers.
    void act();
    /// Takes the notice away, but not that about work.
    void dismiss() { clear(); }

Q_SIGNALS:
    void noticeChanged();
    void progressChanged();

private:
    class Work;

    const Notice& shown() const;
    void clear();
    void startTimer();
    void stopTimer();

    RunLoop& m_runLoop;
    Notice m_notice;
    bool m_isActive = false;
    bool m_isHeld = false;
    /// The works that go on, the latest last; their owners have them.
    std::vector<Work*> m_works;
    /// Runs while a notice is shown and not held.
    std::shared_ptr<Timer> m_timer;
};

}  // namespace tavi
