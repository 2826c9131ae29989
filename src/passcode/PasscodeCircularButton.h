#pragma once

#include <QObject>

#include "passcode/PasscodeButtonStyle.h"

namespace tavi {

/// A round key with a digit: what it is drawn with, at rest and pressed. Its line is kLineWidth wide.
class PasscodeCircularButton : public QObject {
    Q_OBJECT
    Q_PROPERTY(int tag READ tag CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(double titleSize READ titleSize CONSTANT)
    Q_PROPERTY(bool highlighted READ isHighlighted WRITE setHighlighted NOTIFY changed)
    Q_PROPERTY(QString strokeColor READ strokeColor NOTIFY changed)
    Q_PROPERTY(QString fillColor READ fillColor NOTIFY changed)
    Q_PROPERTY(QString titleColor READ titleColor NOTIFY changed)

public:
    static constexpr double kLineWidth = 0.5;

    PasscodeCircularButton(const QString& number, const PasscodeButtonStyle& style, QObject* parent = nullptr)
        : QObject(parent), m_title(number), m_style(style), m_titleColor(style.lineColor) {
        // The digit of a key that was never pressed has the line's colour and not the title's, on purpose.
    }

    /// The digit.
    int tag() const { return m_title.toInt(); }
    QString title() const { return m_title; }
    double titleSize() const { return m_style.titleFont.pointSize; }
    QString strokeColor() const { return m_isHighlighted ? m_style.selectedLineColor : m_style.lineColor; }
    QString fillColor() const { return m_isHighlighted ? m_style.selectedFillColor : m_style.fillColor; }
    QString titleColor() const { return m_titleColor; }

    bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool highlighted) {
        m_isHighlighted = highlighted;
        m_titleColor = highlighted ? m_style.selectedTitleColor : m_style.titleColor;
        Q_EMIT changed();
    }

Q_SIGNALS:
    void changed();

private:
    QString m_title;
    PasscodeButtonStyle m_style;
    QString m_titleColor;
    bool m_isHighlighted = false;
};

/// A dot that stands for a digit of the passcode: empty, or filled once the digit has been typed.
class PasscodeCircularView : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString lineColor READ lineColor CONSTANT)
    Q_PROPERTY(QString fillColor READ fillColor CONSTANT)
    Q_PROPERTY(bool filled READ isFilled NOTIFY changed)

public:
    /// Points across, and its line's width.
    static constexpr double kDiameter = 14.0;
    static constexpr double kLineWidth = 0.5;

    PasscodeCircularView(const QString& lineColor, const QString& fillColor, QObject* parent = nullptr)
        : QObject(parent), m_lineColor(lineColor), m_fillColor(fillColor) {}

    QString lineColor() const { return m_lineColor; }
    QString fillColor() const { return m_fillColor; }
    bool isFilled() const { return m_isFilled; }
    void fill() { setFilled(true); }
    void clear() { setFilled(false); }

Q_SIGNALS:
    void changed();

private:
    void setFilled(bool filled) {
        m_isFilled = filled;
        Q_EMIT changed();
    }

    QString m_lineColor;
    QString m_fillColor;
    bool m_isFilled = false;
};

}  // namespace tavi
