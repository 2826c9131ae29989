#include "app/SupportRows.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QSysInfo>

#include "app/RatingLaunch.h"
#include "recording/AudioSettings.h"

namespace tavi {

void SupportRows::rate() {
    reportLaunch(m_services.appRater);
}

void SupportRows::moreApps() {
    m_services.urlOpener.canOpenURL(QUrl(QStringLiteral(TAVI_MORE_APPS)), [](bool) {});
}

void SupportRows::reportBug() {
    emailSubject(qtTrId("bug_report"), qtTrId("gmail").arg(QStringLiteral(TAVI_SUPPORT_ADDRESS)),
                 qtTrId("issue_recorder") + facts());
}

void SupportRows::openGuide() {
    const QString guide = QStringLiteral("/../share/tavi/guide/index.html");
    m_services.urlOpener.openURL(QUrl::fromLocalFile(QDir::cleanPath(QCoreApplication::applicationDirPath() + guide)));
}

void SupportRows::emailSubject(const QString& emailSubject, const QString& andWithT0, const QString& andWithBody) {
    const auto refuse = [self = QPointer(this), andWithT0] {
        if (self) {
            self->m_services.notices.postNotice({qtTrId("report_no_mail").arg(andWithT0)});
        }
    };
    if (!m_services.mailComposer.canSendMail()) {
        refuse();
        return;
    }
    m_services.mailComposer.compose({andWithT0, emailSubject, andWithBody, {}},
                                    [refuse](const Result<MailComposeResult>& result) {
                                        if (!result) {
                                            qWarning("%s", qPrintable(result.error().text));
                                            refuse();
                                        }
                                    });
}

QString SupportRows::facts() const {
    const QString type = m_services.settings.audioFileType();
    const QString quality = m_services.settings.audioQualityType();
    const AudioRecordSettings format = generateAudioSettings(type, quality);
    const QString server = m_services.audioSession.serverName();
    const QString system = QStringLiteral("%1, %2 %3, %4, Qt %5")
                               .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
                                    QSysInfo::currentCpuArchitecture(), QLatin1String(qVersion()));
    return qtTrId("report_facts")
        .arg(QCoreApplication::applicationVersion(), system, server.isEmpty() ? qtTrId("report_no_server") : server,
             QStringLiteral("%1, %2, %3 Hz × %4")
                 .arg(type, quality)
                 .arg(format.sampleRate)
                 .arg(format.numberOfChannels));
}

}  // namespace tavi
