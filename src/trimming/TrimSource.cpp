#include "trimming/TrimSource.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace tavi {

TrimSource::TrimSource(const Services& services, std::filesystem::path path, QObject* parent)
    : QObject(parent), m_services(services), m_path(std::move(path)) {}

TrimSource::~TrimSource() {
    giveUp();
}

void TrimSource::load() {
    if (std::exchange(m_isLoading, true)) {
        return;
    }
    Q_EMIT changed();
    const QPointer<TrimSource> self(this);
    // A length that no header tells takes reading all of the file.
    m_services.runLoop.dispatchBackground([self, services = m_services, path = m_path] {
        const Asset asset = services.exports.assetWithURL(path);
        services.runLoop.dispatchMain([self, asset] {
            if (self) {
                self->m_asset = asset;
                Q_EMIT self->assetLoaded();
                Q_EMIT self->changed();
            }
        });
    });
    m_services.waveforms.load(m_path, [self](const std::vector<float>& points) {
        if (self) {
            self->m_isLoading = false;
            self->m_points = points;
            Q_EMIT self->waveformLoaded();
            Q_EMIT self->changed();
        }
    });
}

void TrimSource::giveUp() {
    if (std::exchange(m_isLoading, false)) {
        m_services.waveforms.cancel();
    }
}

QList<qreal> TrimSource::waveform() const {
    const float gain = fittingGain(m_points);
    QList<qreal> levels;
    for (const float point : m_points) {
        levels.append(static_cast<qreal>(std::min(point * gain, 1.0F)));
    }
    return levels;
}

QString TrimSource::problem() const {
    const bool isUnreadable = m_asset && m_asset->audioTracks.empty();
    return isUnreadable ? qtTrId("trimmer_unreadable") : QString();
}

}  // namespace tavi
