#include "adapters/desktop/AppstreamCatalogue.h"

#include <QXmlStreamReader>

#include "adapters/desktop/DesktopCommand.h"

namespace tavi {

void AppstreamCatalogue::lookUp(const QString& bundleIdentifier, const QString&,
                                std::function<void(const QString& identifier)> completion) {
    runDesktopCommand(this, QStringLiteral("appstreamcli"), {QStringLiteral("dump"), bundleIdentifier}, m_limit,
                      [completion = std::move(completion)](const std::optional<QByteArray>& output) {
                          completion(output ? identifierIn(*output) : QString());
                      });
}

QString AppstreamCatalogue::identifierIn(const QByteArray& xml) {
    QXmlStreamReader reader(xml);
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("id")) {
            return reader.readElementText().trimmed();
        }
        if (reader.name() != QLatin1String("component")) {
            reader.skipCurrentElement();
        }
    }
    return {};
}

}  // namespace tavi
