#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

#include "platform/MailComposer.h"

namespace tavi {

/// Mail through xdg-email, which finds the user's mail program itself. Main thread; never waits.
class XdgEmail : public QObject {
public:
    /// Looks for xdg-email in the PATH.
    XdgEmail();

    bool isAvailable() const { return !m_program.isEmpty(); }
    /// Starts xdg-email. The completion comes when that has handed over the mail or given up.
    void compose(const MailMessage& message, const MailComposer::Completion& completion);

    /// The command line, an argument a string: no shell reads it. A recipient that is no mail address is left out,
    /// since xdg-email would take it for an option; the user then fills it in.
    static QStringList arguments(const MailMessage& message);

private:
    QString m_program;
};

}  // namespace tavi
