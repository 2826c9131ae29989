#pragma once

#include <QString>
#include <functional>

namespace tavi {

/// What the store that the user gets programs from knows of them. Main thread only.
class StoreCatalogue {
public:
    virtual ~StoreCatalogue() = default;

    /// Looks for the program of that bundle identifier. The completion gets the identifier that the store has it under,
    /// empty where it has none or cannot be asked: on the main thread, once, never before this returns, after some
    /// seconds at the latest, and not once the catalogue is gone. A store that knows no countries leaves the code
    /// aside.
    virtual void lookUp(const QString& bundleIdentifier, const QString& countryCode,
                        std::function<void(const QString& identifier)> completion) = 0;
};

}  // namespace tavi
