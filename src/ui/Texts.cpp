#include "ui/Texts.h"

#include <QCoreApplication>
#include <QTranslator>

namespace tavi {

void installTexts(QCoreApplication& application) {
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral(":/strings/tavi_en.qm"))) {
        QCoreApplication::installTranslator(translator);
    }
}

}  // namespace tavi
