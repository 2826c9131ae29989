#pragma once

#include <plist/plist.h>

#include <QVariant>
#include <memory>
#include <optional>

namespace tavi {

struct PlistFree {
    void operator()(void* node) const { plist_free(node); }
};
/// A node with all that is below it.
using PlistNode = std::unique_ptr<void, PlistFree>;

/// The value as nodes; null for what they cannot hold exactly.
PlistNode plistNodeOf(const QVariant& value);
/// The nodes' value; nothing where one is of a type that property lists of files do not have.
std::optional<QVariant> valueOfPlistNode(plist_t node);

}  // namespace tavi
