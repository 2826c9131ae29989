#include "adapters/desktop/DesktopCommand.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

namespace tavi {

void runDesktopCommand(QObject* owner, const QString& program, const QStringList& arguments,
                       std::chrono::milliseconds limit,
                       const std::function<void(const std::optional<QByteArray>& output)>& completion) {
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        QMetaObject::invokeMethod(
            owner, [completion] { completion(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    auto* process = new QProcess(owner);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, owner,
                     [process, completion](int exitCode, QProcess::ExitStatus status) {
                         process->deleteLater();
                         const bool isDone = status == QProcess::NormalExit && exitCode == 0;
                         completion(isDone ? std::optional(process->readAllStandardOutput()) : std::nullopt);
                     });
    QObject::connect(process, &QProcess::errorOccurred, owner, [process, completion](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            process->deleteLater();
            completion(std::nullopt);
        }
    });
    QObject::connect(owner, &QObject::destroyed, process, [process] {
        process->disconnect();
        process->kill();
        process->waitForFinished();
    });
    QTimer::singleShot(limit, process, &QProcess::kill);
    process->start(path, arguments);
}

}  // namespace tavi
