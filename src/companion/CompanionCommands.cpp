#include "companion/CompanionCommands.h"

#include <QCoreApplication>

namespace tavi {

namespace {

QUrl urlOf(CompanionCommand command) {
    switch (command) {
        case CompanionCommand::Record:
            return QUrl(QStringLiteral("TaviRecordStart:"));
        case CompanionCommand::Stop:
            return QUrl(QStringLiteral("TaviRecordStop:"));
        case CompanionCommand::Show:
        case CompanionCommand::Say:
            break;
    }
    return QUrl(QStringLiteral("TaviliteConnect:"));
}

}  // namespace

void CompanionCommands::perform(CompanionCommand command, const QString& text, const Completion& completion) {
    const bool isByChannel = m_services.channel != nullptr && command != CompanionCommand::Show;
    const bool isAbsent = m_services.recorder.state().phase == RecorderState::Phase::Absent;
    if (isAbsent && (isByChannel || command == CompanionCommand::Stop)) {
        completion(Recorder::Outcome::Failed, {qtTrId("companion_not_running")});
    } else if (!isByChannel) {
        m_services.recorder.open(urlOf(command), completion);
    } else if (command == CompanionCommand::Say) {
        pass(QStringLiteral("ChangeRecord"), text, completion);
    } else {
        const QString identifier =
            command == CompanionCommand::Record ? QStringLiteral("Record") : QStringLiteral("Stop");
        pass(identifier, identifier, completion);
    }
}

void CompanionCommands::pass(const QString& identifier, const QString& message, const Completion& completion) {
    if (m_services.channelType == MMWormholeTransitingType::SessionContext) {
        // Every entry of a context is told when one has changed: what was asked for before is not asked for again.
        m_services.channel->clearAllMessageContents();
    }
    m_services.channel->passMessageObject(message, identifier);
    completion(Recorder::Outcome::Opened, {});
}

}  // namespace tavi
