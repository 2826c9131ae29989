#include "trimming/waves/WaveView.h"

namespace tavi {

WaveView::WaveView(QObject* parent) : QObject(parent) {}

void WaveView::setFrameSize(const QSizeF& size) {
    if (size == m_size) {
        return;
    }
    m_size = size;
    configure();
    resetWave();
}

WaveView& WaveView::setWaveType(int type, double maxValue, double minValue) {
    m_maxValue = maxValue;
    m_minValue = minValue;
    m_last = m_new = QPointF(0.0, m_size.height() * 0.5);
    m_xInterval = 1.0;
    m_lineWidth = 1.0;
    m_lineColor = QStringLiteral("red");
    m_fillingColor = QStringLiteral("red");
    m_isFilling = false;
    m_zeroPointValue = minValue;
    m_zeroPointLineWidth = 2.0;
    m_waveType = type;
    configure();
    return *this;
}

void WaveView::configure() {
    if (m_waveType == Mirror) {
        m_waveRange = m_size.height() * 0.5;
    } else if (m_waveType == Default) {
        m_waveRange = m_size.height();
        m_banchmark = m_size.height() * 0.5;
    }
}

void WaveView::initwithWaveForm() {
    m_new.setX(0.0);
    startWavingWithValue(-120.0);
}

void WaveView::startWavingWithValue(double value) {
    m_last = m_new;
    m_new.rx() += m_xInterval;
    if (m_waveType == Default) {
        m_new.setY(m_waveRange - m_waveRange * (value - m_minValue) / (m_maxValue - m_minValue));
    } else if (m_waveType == Mirror) {
        // On purpose a reading below the zero point is taller than one exactly at it: silence leaves a visible line.
        const double height = value < m_zeroPointValue
                                  ? m_zeroPointLineWidth * 0.5
                                  : (value - m_zeroPointValue) * m_waveRange / (m_maxValue - m_zeroPointValue);
        m_new.setY(m_waveRange - height);
    }
    if (m_new.x() > m_size.width()) {
        m_last.setX(0.0);
        m_new.setX(m_xInterval);
        Q_EMIT needsDisplay(QRectF(QPointF(), m_size));
    } else {
        Q_EMIT needsDisplay(QRectF(m_last.x(), 0.0, m_xInterval, m_size.height()));
    }
}

void WaveView::resetWave() {
    m_last = m_new = QPointF(0.0, m_size.height() * 0.5);
    Q_EMIT needsDisplay(QRectF(QPointF(), m_size));
}

void WaveView::setBanchmarkHeight(double height) {
    m_banchmark = height;
    m_waveRange = height >= m_size.height() * 0.5 ? 2.0 * height : 2.0 * (m_size.height() - height);
}

QRectF WaveView::mirrorBar() const {
    return QRectF(QPointF(m_last.x(), m_new.y()), QPointF(m_new.x(), 2.0 * m_waveRange - m_new.y()));
}

}  // namespace tavi
