#pragma once

#include <QtQml/qqml.h>

#include <QObject>

#include "platform/TabBar.h"

namespace tavi {

/// The shell's tabs: which one is shown, and whether the user may choose another.
class TabBarController : public QObject, public TabBar {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has one.")
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
    Q_PROPERTY(bool userInteractionEnabled READ isUserInteractionEnabled NOTIFY userInteractionEnabledChanged)

public:
    static constexpr int kTabs = 3;

    using QObject::QObject;

    int selectedIndex() const override { return m_selectedIndex; }
    /// An index that names no tab changes nothing.
    void setSelectedIndex(int index) override;
    bool isUserInteractionEnabled() const override { return m_userInteractionEnabled; }
    void setUserInteractionEnabled(bool enabled) override;

public Q_SLOTS:
    /// A tap or key of the user's; does nothing while user interaction is disabled.
    void select(int index);
    /// The way back to the first tab, open even then: it is the one that the user is kept at.
    void goBack() { setSelectedIndex(0); }

Q_SIGNALS:
    void selectedIndexChanged();
    void userInteractionEnabledChanged();

private:
    int m_selectedIndex = 0;
    bool m_userInteractionEnabled = true;
};

}  // namespace tavi
