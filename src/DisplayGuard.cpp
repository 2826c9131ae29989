#include "DisplayGuard.h"

#include <QString>
#include <cstdlib>
#include <utility>

#include "Output.h"

namespace tavi {

namespace {

QtMessageHandler g_next = nullptr;
/// What the window system's plugin said first.
QString g_reason;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        reportFailure({QStringLiteral("no window can be shown: ") + (g_reason.isEmpty() ? text : g_reason).trimmed()});
        std::_Exit(EXIT_FAILURE);
    }
    if (QLatin1String(context.category).startsWith(QLatin1String("qt.qpa."))) {
        g_reason = g_reason.isEmpty() ? text : g_reason;
    } else {
        g_next(type, context, text);
    }
}

}  // namespace

DisplayGuard::DisplayGuard() : m_previous(qInstallMessageHandler(handleMessage)) {
    g_next = m_previous;
}

DisplayGuard::~DisplayGuard() {
    qInstallMessageHandler(m_previous);
    if (!g_reason.isEmpty()) {
        // It could be shown all the same.
        qWarning("%s", qUtf8Printable(std::exchange(g_reason, {})));
    }
}

}  // namespace tavi
