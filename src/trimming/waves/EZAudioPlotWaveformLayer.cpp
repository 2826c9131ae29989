#include "trimming/waves/EZAudioPlotWaveformLayer.h"

namespace tavi {

namespace {

const QString& pathKey() {
    static const QString key = QStringLiteral("path");
    return key;
}

}  // namespace

LayerTransaction::Settings LayerTransaction::s_current;

LayerTransaction LayerTransaction::withoutActions() {
    Settings settings = s_current;
    settings.disableActions = true;
    return LayerTransaction(settings);
}

void EZAudioPlotWaveformLayer::setPath(PlotPath path) {
    m_path = std::move(path);
    m_pathAnimation = actionForKey(pathKey());
}

std::optional<BasicAnimation> EZAudioPlotWaveformLayer::actionForKey(const QString& key) const {
    const LayerTransaction::Settings& transaction = LayerTransaction::current();
    // Nothing else of such a layer is animated here.
    if (key != pathKey() || transaction.disableActions) {
        return std::nullopt;
    }
    return BasicAnimation{key, transaction.animationDuration, transaction.animationTimingFunction};
}

}  // namespace tavi
