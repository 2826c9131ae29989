#pragma once

#include <QStringList>

#include "adapters/desktop/XdgTool.h"
#include "platform/MailComposer.h"

namespace tavi {

/// Mail through xdg-email, which finds the user's mail program itself. Main thread; never waits.
class XdgEmail {
public:
    bool isAvailable() const { return m_tool.isAvailable(); }
    /// Starts xdg-email. The completion comes when that has handed over the mail or given up.
    void compose(const MailMessage& message, const MailComposer::Completion& completion);

    /// The command line, an argument a string. A recipient that is no mail address is left out, since xdg-email would
    /// take it for an option; the user then fills it in.
    static QStringList arguments(const MailMessage& message);

private:
    XdgTool m_tool{QStringLiteral("xdg-email")};
};

}  // namespace tavi
