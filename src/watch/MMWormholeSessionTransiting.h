#pragma once

#include "watch/MMWormholeFileTransiting.h"

// The ways by which messages travel through the session with the companion. They tell of themselves: writing is false.

namespace tavi {

/// A message is an entry of the application context: the companion gets the last one of each, also later.
class MMWormholeSessionContextTransiting : public MMWormholeFileTransiting {
public:
    using MMWormholeFileTransiting::MMWormholeFileTransiting;

    bool writeMessageObject(const QVariant& message, const QString& identifier) override;
    /// What the other end has told, else what this one has.
    QVariant messageObjectForIdentifier(const QString& identifier) override;
    void deleteContentForIdentifier(const QString& identifier) override;
    void deleteContentForAllMessages() override;

private:
    /// All that was written here, so that two messages in a row do not take each other's place.
    QVariantMap m_lastContext;
};

/// A message is sent as a file, to a companion that is there.
class MMWormholeSessionFileTransiting : public MMWormholeFileTransiting {
public:
    using MMWormholeFileTransiting::MMWormholeFileTransiting;

    bool writeMessageObject(const QVariant& message, const QString& identifier) override;
};

/// A message is sent as it is, to a companion that is there; nothing remains of it.
class MMWormholeSessionMessageTransiting : public MMWormholeFileTransiting {
public:
    using MMWormholeFileTransiting::MMWormholeFileTransiting;

    bool writeMessageObject(const QVariant& message, const QString& identifier) override;
    QVariant messageObjectForIdentifier(const QString&) override { return {}; }
    void deleteContentForIdentifier(const QString&) override {}
    void deleteContentForAllMessages() override {}
};

}  // namespace tavi
