# The program.
qt_add_executable(tavi
  Cloud.cpp Cloud.h CloudCommands.cpp CloudCommands.h CloudPlace.cpp CloudPlace.h
  DisplayGuard.cpp DisplayGuard.h LastMoment.cpp LastMoment.h Output.cpp Output.h
  Platform.cpp Platform.h Program.cpp Program.h Screens.h SettingsFiles.h Terminal.cpp Terminal.h main.cpp)
target_compile_definitions(tavi PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS TAVI_VERSION="${PROJECT_VERSION}")
target_link_libraries(tavi PRIVATE
  tavi_app tavi_command_line tavi_passcode tavi_trimming tavi_waves_painting
  tavi_screens
  tavi_adapter_qt tavi_adapter_pulse tavi_adapter_recorder tavi_adapter_player tavi_adapter_quick
  tavi_adapter_dbus tavi_adapter_desktop tavi_adapter_plist tavi_adapter_secret tavi_adapter_folder tavi_adapter_webdav
  tavi_adapter_network tavi_companion_parts
  tavi_warnings)
# Its modules are linked above; those of Qt are found at run time.
set_target_properties(tavi PROPERTIES QT_QML_MODULE_NO_IMPORT_SCAN TRUE)
# Without it the program starts and can neither record nor tell durations.
add_dependencies(tavi tavi_media)
install(TARGETS tavi RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
