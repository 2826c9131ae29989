#pragma once

#include <QMessageLogContext>

namespace tavi {

/// To be there while the application is made: where there is no display Qt calls abort(); with this the program says so
/// in one line, and ends. One at a time; main thread.
class DisplayGuard {
public:
    DisplayGuard();
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;

private:
    QtMessageHandler m_previous;
};

}  // namespace tavi
