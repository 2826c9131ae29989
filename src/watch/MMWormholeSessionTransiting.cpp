#include "watch/MMWormholeSessionTransiting.h"

#include "files/PathText.h"

namespace tavi {

bool MMWormholeSessionContextTransiting::writeMessageObject(const QVariant& message, const QString& identifier) {
    const auto archive = identifier.isEmpty() || !message.isValid() ? std::nullopt : archived(message);
    if (!archive) {
        return false;
    }
    WatchSession& session = services().session;
    QVariantMap context = session.applicationContext();
    context.insert(m_lastContext);
    context.insert(identifier, *archive);
    m_lastContext = context;
    (void)session.updateApplicationContext(context);
    return false;
}

QVariant MMWormholeSessionContextTransiting::messageObjectForIdentifier(const QString& identifier) {
    const WatchSession& session = services().session;
    QVariant archive = session.receivedApplicationContext().value(identifier);
    if (!archive.isValid()) {
        archive = session.applicationContext().value(identifier);
    }
    return archive.typeId() == QMetaType::QByteArray ? unarchived(archive.toByteArray()) : QVariant();
}

void MMWormholeSessionContextTransiting::deleteContentForIdentifier(const QString& identifier) {
    m_lastContext.remove(identifier);
    QVariantMap context = services().session.applicationContext();
    context.remove(identifier);
    (void)services().session.updateApplicationContext(context);
}

void MMWormholeSessionContextTransiting::deleteContentForAllMessages() {
    m_lastContext.clear();
    (void)services().session.updateApplicationContext({});
}

bool MMWormholeSessionFileTransiting::writeMessageObject(const QVariant& message, const QString& identifier) {
    // Its name is the identifier alone.
    const bool hasName = messagefile::canName(identifier) && identifier != u".";
    const auto archive = hasName && message.isValid() ? archived(message, messagefile::kMostFileBytes) : std::nullopt;
    if (!archive || !services().session.isReachable()) {
        return false;
    }
    const std::filesystem::path folder = messagePassingDirectoryPath().value_or(services().container.temporaryPath());
    const std::filesystem::path path = folder / nativePath(identifier);
    if (messagefile::write(path, *archive)) {
        (void)services().session.transferFile(path, {{QStringLiteral("identifier"), identifier}});
    }
    return false;
}

bool MMWormholeSessionMessageTransiting::writeMessageObject(const QVariant& message, const QString& identifier) {
    const auto archive = identifier.isEmpty() || !message.isValid() ? std::nullopt : archived(message);
    if (archive && services().session.isReachable()) {
        (void)services().session.sendMessage({{identifier, *archive}});
    }
    return false;
}

}  // namespace tavi
