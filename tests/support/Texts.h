#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>
#include <utility>

namespace tavi::test {

/// Texts by their ids, for as long as it lives; for every other text its id stands.
struct Texts : QTranslator {
    explicit Texts(QHash<QByteArray, QString> texts) : m_texts(std::move(texts)) {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* id, const char*, int) const override { return m_texts.value(id); }

private:
    QHash<QByteArray, QString> m_texts;
};

}  // namespace tavi::test
