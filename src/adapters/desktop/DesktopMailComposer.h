#pragma once

#include <QObject>

#include "adapters/desktop/PortalMail.h"
#include "adapters/desktop/XdgEmail.h"
#include "platform/MailComposer.h"

namespace tavi {

/// Mail through the desktop portal, else through xdg-email.
///
/// Whether the portal offers mail is asked when this is built and known a moment later; canSendMail() never waits for
/// it. Completions come after compose() has returned, and not once this is gone. A user who closes the mail unsent is
/// no error.
class DesktopMailComposer final : public QObject, public MailComposer {
    Q_OBJECT

public:
    /// The portal must outlive this.
    explicit DesktopMailComposer(PortalRequests& portal) : m_portal(portal) {}

    bool canSendMail() const override { return m_portal.isAvailable() || m_xdgEmail.isAvailable(); }
    void compose(const MailMessage& message, Completion completion) override;

private:
    void composeWithXdgEmail(const MailMessage& message, const Completion& completion);
    void completeLater(const Completion& completion, const Error& error);

    PortalMail m_portal;
    XdgEmail m_xdgEmail;
};

}  // namespace tavi
