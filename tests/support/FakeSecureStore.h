#pragma once

#include <QMap>

#include "passcode/SecureStore.h"

namespace tavi::test {

/// Values in memory. With a trouble nothing can be read, and nothing is stored.
struct FakeSecureStore : SecureStore {
    bool setObject(const QVariant& value, const QString& key) override {
        if (troubleText.isEmpty()) {
            values.insert(key, value);
        }
        return troubleText.isEmpty();
    }
    QVariant objectForKey(const QString& key) const override {
        return troubleText.isEmpty() ? values.value(key) : QVariant();
    }
    QString trouble() const override { return troubleText; }

    QMap<QString, QVariant> values;
    QString troubleText;
};

}  // namespace tavi::test
