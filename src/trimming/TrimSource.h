#pragma once

#include <QList>
#include <QObject>
#include <filesystem>
#include <optional>
#include <vector>

#include "platform/AssetExportSession.h"
#include "platform/RunLoop.h"
#include "trimming/waves/WaveformLoader.h"

namespace tavi {

/// What a trimmer knows of its recording, which never changes: read once, in the background. Main thread only.
class TrimSource : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<qreal> waveform READ waveform NOTIFY waveformLoaded)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool canExport READ canExport NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    /// All of it must outlive this.
    struct Services {
        AssetExportSessions& exports;
        WaveformLoader& waveforms;
        RunLoop& runLoop;
    };

    TrimSource(const Services& services, std::filesystem::path path, QObject* parent = nullptr);
    ~TrimSource() override;

    /// Reads the recording, unless that is under way.
    void load();
    /// Lets go of the loader, which another trimmer needs.
    void giveUp();

    const std::filesystem::path& path() const { return m_path; }
    /// None until it is read.
    const std::optional<Asset>& asset() const { return m_asset; }
    /// How loud the recording is from place to place; empty until it is known, and where that cannot be.
    const std::vector<float>& points() const { return m_points; }
    /// The same from 0 to 1, as it is painted.
    QList<qreal> waveform() const;
    bool isLoading() const { return m_isLoading; }
    /// Whether the recording has been looked at and holds sound.
    bool canExport() const { return m_asset && !m_asset->audioTracks.empty(); }
    /// Why the recording cannot be trimmed, in one line; empty where it can.
    QString problem() const;

Q_SIGNALS:
    void assetLoaded();
    void waveformLoaded();
    void changed();

private:
    Services m_services;
    std::filesystem::path m_path;
    std::optional<Asset> m_asset;
    std::vector<float> m_points;
    bool m_isLoading = false;
};

}  // namespace tavi
