#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <chrono>
#include <functional>
#include <optional>

namespace tavi {

/// Runs a program of the desktop's and takes what it prints, for as long as that may take and no longer. Main thread;
/// returns at once. The completion comes later, once: with what the program printed, or nothing where there is no such
/// program in the PATH, it failed, or its time was over. Never after the owner is gone; the program ends with the
/// owner.
void runDesktopCommand(QObject* owner, const QString& program, const QStringList& arguments,
                       std::chrono::milliseconds limit,
                       const std::function<void(const std::optional<QByteArray>& output)>& completion);

}  // namespace tavi
