#include "watch/MMWormholeSession.h"

#include <optional>

#include "watch/MMWormholeFileTransiting.h"
#include "watch/MessageFile.h"

namespace tavi {

namespace {

std::optional<MMWormholeServices>& sharedServices() {
    static std::optional<MMWormholeServices> s_services;
    return s_services;
}

}  // namespace

MMWormholeSession::MMWormholeSession(const MMWormholeServices& services, const QString& applicationGroupIdentifier)
    : MMWormhole(services, std::make_unique<MMWormholeFileTransiting>(services, applicationGroupIdentifier)) {
    services.session.setDelegate(this);
}

MMWormholeSession::~MMWormholeSession() {
    services().session.setDelegate(nullptr);
}

void MMWormholeSession::setSharedServices(const MMWormholeServices& services) {
    sharedServices().emplace(services);
}

MMWormholeSession& MMWormholeSession::sharedListeningSession() {
    // Left to the end of the process: its ports are gone by then.
    static auto* const s_shared = new MMWormholeSession(*sharedServices());
    return *s_shared;
}

void MMWormholeSession::activateSessionListening() {
    services().session.activateSession();
}

Result<QVariant> MMWormholeSession::unarchived(const QVariant& archive) const {
    const QByteArray bytes = archive.typeId() == QMetaType::QByteArray ? archive.toByteArray() : QByteArray();
    return services().propertyLists.unarchiveObjectWithData(bytes);
}

void MMWormholeSession::notifyListeners(const QVariantMap& archives) {
    for (auto entry = archives.begin(); entry != archives.end(); ++entry) {
        // What is no archive of a plain value is no message.
        if (const auto message = unarchived(entry.value())) {
            notifyListenerForMessageWithIdentifier(entry.key(), *message);
        }
    }
}

void MMWormholeSession::sessionDidReceiveFile(const std::filesystem::path& file, const QVariantMap& metadata) {
    const QString identifier = metadata.value(QStringLiteral("identifier")).toString();
    const auto contents = messagefile::read(file, messagefile::kMostFileBytes);
    const auto message = contents ? unarchived(*contents) : failure({});
    if (!message) {
        return;
    }
    notifyListenerForMessageWithIdentifier(identifier, *message);
    if (message->isValid()) {
        // Files are kept as archives of messages, which they are.
        wormholeMessenger().writeMessageObject(*message, identifier);
    }
}

}  // namespace tavi
