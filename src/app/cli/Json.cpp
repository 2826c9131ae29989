#include "app/cli/Json.h"

#include <QJsonDocument>

#include "files/PathText.h"

namespace tavi {

QByteArray jsonText(const QJsonArray& array) {
    // In JSON such characters are only found in texts, where each may be written as its number (RFC 8259, 7).
    QString json;
    for (const QChar character : QString::fromUtf8(QJsonDocument(array).toJson())) {
        json += isUnseen(character) && character != QLatin1Char('\n')
                    ? QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'))
                    : QString(character);
    }
    return json.toUtf8();
}

}  // namespace tavi
