#include "adapters/desktop/XdgTool.h"

#include <QProcess>
#include <QStandardPaths>

namespace tavi {

namespace {

/// The exit codes of the xdg-utils in words.
QString reason(const QString& name, int exitCode) {
    switch (exitCode) {
        case 2:
            return QStringLiteral("a file is missing");
        case 3:
            return QStringLiteral("no program was found");
        default:
            return QStringLiteral("%1 ended with %2").arg(name).arg(exitCode);
    }
}

}  // namespace

XdgTool::XdgTool(const QString& name) : m_name(name), m_program(QStandardPaths::findExecutable(name)) {}

void XdgTool::run(const QStringList& arguments, const std::function<void(Result<void>)>& completion) {
    auto* process = new QProcess(this);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    connect(process, &QProcess::finished, this,
            [process, completion, name = m_name](int exitCode, QProcess::ExitStatus status) {
                process->deleteLater();
                if (status == QProcess::NormalExit && exitCode == 0) {
                    completion({});
                } else {
                    completion(failure(reason(name, exitCode)));
                }
            });
    connect(
        process, &QProcess::errorOccurred, this, [process, completion, name = m_name](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                process->deleteLater();
                completion(failure(QStringLiteral("%1 could not be started: %2").arg(name, process->errorString())));
            }
        });
    process->start(m_program, arguments);
}

}  // namespace tavi
