#pragma once

#include <QtQml/qqmlextensionplugin.h>

// The QML modules of the window, linked statically. For the one source of a program that has its main().

Q_IMPORT_QML_PLUGIN(TaviPlugin)
Q_IMPORT_QML_PLUGIN(Tavi_LibraryPlugin)
Q_IMPORT_QML_PLUGIN(Tavi_PasscodePlugin)
Q_IMPORT_QML_PLUGIN(Tavi_RecordingPlugin)
Q_IMPORT_QML_PLUGIN(Tavi_SettingsPlugin)
Q_IMPORT_QML_PLUGIN(Tavi_TrimmingPlugin)
Q_IMPORT_QML_PLUGIN(Tavi_UiPlugin)
Q_IMPORT_QML_PLUGIN(Tavi_WavesPlugin)
