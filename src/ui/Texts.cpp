#include "ui/Texts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace tavi {

Qt::LayoutDirection installTexts(QCoreApplication& application) {
    const QString folder = QStringLiteral(":/strings");
    const QString name = QStringLiteral("tavi");
    const QString separator = QStringLiteral("_");
    Qt::LayoutDirection direction = Qt::LeftToRight;
    // The last one installed is asked first; what it does not have is said in English.
    for (const QLocale& locale : {QLocale(QLocale::English), QLocale::system()}) {
        auto* translator = new QTranslator(&application);
        if (translator->load(locale, name, separator, folder)) {
            QCoreApplication::installTranslator(translator);
            direction = QLocale(translator->language()).textDirection();
        }
    }
    return direction;
}

}  // namespace tavi
