#include "adapters/local/SessionContext.h"

#include <QUuid>
#include <utility>

#include "adapters/local/SessionLink.h"
#include "files/DurableFile.h"
#include "files/FileContents.h"
#include "files/PositionedIo.h"

namespace tavi {

namespace {

const QString kStamp = QStringLiteral("stamp");
const QString kValues = QStringLiteral("values");

}  // namespace

SessionContext SessionContext::stamped(QVariantMap values) {
    return {.stamp = QUuid::createUuid().toRfc4122(), .values = std::move(values)};
}

Result<QByteArray> SessionContext::encoded(const PropertyLists& propertyLists) const {
    return propertyLists.dataWithPropertyList(QVariantMap{{kStamp, stamp}, {kValues, values}});
}

Result<SessionContext> SessionContext::decoded(const QByteArray& bytes, const PropertyLists& propertyLists) {
    const auto list = propertyLists.propertyListWithData(bytes);
    const QVariantMap map = list ? list->toMap() : QVariantMap();
    if (map.value(kStamp).typeId() != QMetaType::QByteArray || map.value(kValues).typeId() != QMetaType::QVariantMap) {
        return failure(QStringLiteral("This is no context of a session."));
    }
    return SessionContext{.stamp = map.value(kStamp).toByteArray(), .values = map.value(kValues).toMap()};
}

SessionContext SessionContext::read(const std::filesystem::path& file, const PropertyLists& propertyLists) {
    const auto contents = FileContents::ofFile(file);
    if (!contents || contents->size() > static_cast<std::uint64_t>(SessionLink::kMostDictionaryBytes)) {
        return {};
    }
    QByteArray bytes(static_cast<qsizetype>(contents->size()), Qt::Uninitialized);
    bytes.truncate(static_cast<qsizetype>(contents->read(bytes.data(), contents->size(), 0)));
    return decoded(bytes, propertyLists).value_or(SessionContext());
}

bool SessionContext::write(const std::filesystem::path& file, const QByteArray& encoded) {
    DurableFile made = DurableFile::create(file, {}, Existing::Replace);
    const auto size = static_cast<std::size_t>(encoded.size());
    return made.isValid() && writeFully(systemPwrite(), made.fd(), encoded.constData(), size, 0).error == 0 &&
           made.publish(Disk::Later) == 0;
}

}  // namespace tavi
