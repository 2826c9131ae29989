#pragma once

namespace tavi {

/// The system's own request for a review. Main thread only. No desktop has one; there is no such object then.
class StoreReview {
public:
    virtual ~StoreReview() = default;

    /// Has the system ask the user, or not ask, as it sees fit; nobody tells which.
    virtual void requestReview() = 0;
};

}  // namespace tavi
