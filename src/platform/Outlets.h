#pragma once

#include <QObject>
#include <QString>

namespace tavi {

/// What a screen says about one of its labels; QML draws it.
struct LabelOutlet {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString textColor MEMBER textColor)
    Q_PROPERTY(bool hidden MEMBER hidden)

public:
    QString text;
    /// A colour as QML reads it, "#rrggbb"; empty for the style's own.
    QString textColor;
    bool hidden = false;

    bool operator==(const LabelOutlet&) const = default;
};

/// What a screen says about one of its buttons; QML draws it.
struct ButtonOutlet {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString image MEMBER image)
    Q_PROPERTY(QString tintColor MEMBER tintColor)
    Q_PROPERTY(bool enabled MEMBER enabled)
    Q_PROPERTY(bool selected MEMBER selected)

public:
    QString title;
    /// Name of an image of the shell, such as "rec_normal.png"; empty for none.
    QString image;
    /// A colour as QML reads it, "#rrggbb"; empty for the style's own.
    QString tintColor;
    bool enabled = true;
    bool selected = false;

    bool operator==(const ButtonOutlet&) const = default;
};

/// What a screen says about one of its sliders; QML draws it. The least value is 0.
struct SliderOutlet {
    Q_GADGET
    Q_PROPERTY(double value MEMBER value)
    Q_PROPERTY(double maximumValue MEMBER maximumValue)

public:
    double value = 0.0;
    double maximumValue = 0.0;

    bool operator==(const SliderOutlet&) const = default;
};

}  // namespace tavi
