#include "LastMoment.h"

#include <QCoreApplication>
#include <QString>
#include <QThread>
#include <utility>

namespace tavi {

namespace {

QtMessageHandler g_next = nullptr;
std::function<void()> g_callback;

/// What the plugins for X11 and Wayland say before they call exit().
bool isDisplayGone(const QString& text) {
    return text.contains(QLatin1String(" connection broke")) ||
           text.contains(QLatin1String("Wayland connection experienced a fatal error"));
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    g_next(type, context, text);
    const QCoreApplication* application = QCoreApplication::instance();
    const bool isHere = application != nullptr && QThread::currentThread() == application->thread();
    if (isHere && (type == QtFatalMsg || isDisplayGone(text))) {
        if (const auto callback = std::exchange(g_callback, {})) {
            callback();
        }
    }
}

}  // namespace

LastMoment::LastMoment(std::function<void()> callback) : m_previous(qInstallMessageHandler(handleMessage)) {
    g_next = m_previous;
    g_callback = std::move(callback);
}

LastMoment::~LastMoment() {
    qInstallMessageHandler(m_previous);
    g_callback = {};
}

}  // namespace tavi
