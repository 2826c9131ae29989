#pragma once

#include <QByteArray>
#include <QJsonArray>

namespace tavi {

/// JSON for a terminal: a sign that it would act on, or by which the rest is shown in another order, is its number.
QByteArray jsonText(const QJsonArray& array);

}  // namespace tavi
