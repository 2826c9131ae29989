#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <utility>

#include "platform/Announcer.h"

namespace tavi {

/// Has screen readers say what the screens show anew, wherever the keyboard is. Main thread only.
class Announcements : public QObject {
    Q_OBJECT

public:
    /// The announcer must outlive this.
    explicit Announcements(Announcer& announcer) : m_announcer(announcer) {}

    /// Says the text whenever that signal finds it changed and not empty. Ends with the sender.
    template <typename Sender, typename Signal>
    void follow(const Sender& sender, Signal changed, std::function<QString()> text) {
        connect(&sender, changed, this, [this, text = std::move(text), last = std::make_shared<QString>()] {
            const QString now = text();
            if (std::exchange(*last, now) != now && !now.isEmpty()) {
                m_announcer.announce(now);
            }
        });
    }

private:
    Announcer& m_announcer;
};

}  // namespace tavi
