#pragma once

#include <QByteArray>
#include <QObject>
#include <chrono>

#include "platform/StoreCatalogue.h"

namespace tavi {

/// The catalogue of software that the desktop's software centre shows, and what is installed, by the command
/// appstreamcli. In a process of its own: the first reading of a large catalogue takes seconds. Nothing is asked of the
/// network. It knows no countries.
class AppstreamCatalogue final : public QObject, public StoreCatalogue {
public:
    explicit AppstreamCatalogue(std::chrono::milliseconds limit = std::chrono::seconds(20)) : m_limit(limit) {}

    void lookUp(const QString& bundleIdentifier, const QString& countryCode,
                std::function<void(const QString& identifier)> completion) override;

    /// The identifier in the AppStream XML of components, the first one's; empty where there is none.
    static QString identifierIn(const QByteArray& xml);

private:
    std::chrono::milliseconds m_limit;
};

}  // namespace tavi
