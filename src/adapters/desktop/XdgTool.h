#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

#include "platform/Error.h"

namespace tavi {

/// One of the xdg-utils, which find the user's programs themselves. Main thread; never waits.
class XdgTool : public QObject {
public:
    /// Looks for it in the PATH.
    explicit XdgTool(const QString& name);

    bool isAvailable() const { return !m_program.isEmpty(); }
    /// Starts it, an argument a string: no shell reads them. The completion comes when it has ended, which may be when
    /// the program that it started has; with the reason where it failed, such as "no program was found".
    void run(const QStringList& arguments, const std::function<void(Result<void>)>& completion);

private:
    QString m_name;
    QString m_program;
};

}  // namespace tavi
