#include "cloud/NoCloud.h"

namespace tavi {

void NoCloud::setupiCloudDocumentSyncWithUbiquityContainer(const QString& /*identifier*/) {
    m_queues.dispatchMain([weak = std::weak_ptr(m_self)] {
        if (const auto self = weak.lock(); self && (*self)->m_delegate != nullptr) {
            (*self)->m_delegate->iCloudAvailabilityDidChangeToState(false, {}, {});
        }
    });
}

}  // namespace tavi
