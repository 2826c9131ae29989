#include "ui/Texts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace tavi {

Qt::LayoutDirection installTexts(QCoreApplication& application) {
    const QString folder = QStringLiteral(":/strings");
    const QString name = QStringLiteral("tavi");
    const QString separator = QStringLiteral("_");
    // Every language has every text, so one is enough.
    auto* translator = new QTranslator(&application);
    for (const QLocale& locale : {QLocale::system(), QLocale(QLocale::English)}) {
        if (translator->load(locale, name, separator, folder)) {
            QCoreApplication::installTranslator(translator);
            return QLocale(translator->language()).textDirection();
        }
    }
    return Qt::LeftToRight;
}

}  // namespace tavi
