#pragma once

#include "adapters/desktop/PortalRequests.h"
#include "platform/MailComposer.h"

namespace tavi {

/// Mail through the interface org.freedesktop.portal.Email of the desktop portal. Main thread; never waits.
class PortalMail : public QObject {
public:
    using Outcome = PortalRequests::Outcome;

    /// The portal must outlive this.
    explicit PortalMail(PortalRequests& portal);

    /// Whether the portal has answered that it offers mail; it is asked when this is built, and whenever it comes.
    bool isAvailable() const { return m_version > 0; }
    /// Hands over the mail with open files in place of names. The outcome comes later, on the main thread. Fails when
    /// an attachment cannot be opened.
    Result<void> compose(const MailMessage& message, const std::function<void(Outcome)>& completion);

private:
    PortalRequests& m_portal;
    quint32 m_version = 0;
};

}  // namespace tavi
