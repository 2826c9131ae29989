add_executable(recorder_bench recorder_bench.cpp)
target_include_directories(recorder_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(recorder_bench PRIVATE tavi_adapter_recorder tavi_adapter_ffmpeg tavi_adapter_qt tavi_warnings)
target_compile_definitions(recorder_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

add_executable(plot_bench plot_bench.cpp)
target_include_directories(plot_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(plot_bench PRIVATE tavi_waves_painting tavi_warnings)
target_compile_definitions(plot_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

# What is measured beside other libraries needs the packages of group "bench".
pkg_check_modules(TAGLIB IMPORTED_TARGET taglib)
if(TAGLIB_FOUND)
  add_executable(library_bench library_bench.cpp)
  target_link_libraries(library_bench PRIVATE
    tavi_library tavi_adapter_ffmpeg tavi_adapter_qt PkgConfig::FFMPEG PkgConfig::TAGLIB tavi_warnings)
  target_compile_definitions(library_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
endif()

add_executable(player_bench player_bench.cpp)
target_include_directories(player_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(player_bench PRIVATE
  tavi_adapter_player tavi_adapter_pulse tavi_adapter_ffmpeg tavi_adapter_qt tavi_test_pulse tavi_warnings)
target_compile_definitions(player_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

# Beside the rings of others, whose packages only scripts/bench installs.
pkg_check_modules(JACK QUIET IMPORTED_TARGET jack)
find_package(Boost QUIET CONFIG)
if(JACK_FOUND AND Boost_FOUND)
  add_executable(ring_bench ring_bench.cpp)
  target_link_libraries(ring_bench PRIVATE tavi_engine PkgConfig::JACK Boost::headers tavi_warnings)
endif()

add_executable(waveform_bench waveform_bench.cpp)
target_link_libraries(waveform_bench PRIVATE tavi_engine tavi_adapter_ffmpeg tavi_adapter_qt tavi_warnings)
target_compile_definitions(waveform_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

add_executable(trimmer_bench trimmer_bench.cpp)
target_include_directories(trimmer_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(trimmer_bench PRIVATE tavi_screens tavi_adapter_qt tavi_warnings)
target_compile_definitions(trimmer_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

add_executable(export_bench export_bench.cpp)
target_link_libraries(export_bench PRIVATE tavi_adapter_ffmpeg tavi_warnings)
target_compile_definitions(export_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)

add_executable(scroll_bench scroll_bench.cpp)
target_include_directories(scroll_bench PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(scroll_bench PRIVATE tavi_screens tavi_test_support Qt6::Quick tavi_warnings)
target_compile_definitions(scroll_bench PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
