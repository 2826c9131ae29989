# What nearly every source that uses Qt reads.
tavi_precompiled(tavi_qt_headers LINKS Qt6::Core tl::expected
  HEADERS <QByteArray> <QDateTime> <QHash> <QObject> <QPointer> <QString> <QStringList> <QVariant>
    <algorithm> <filesystem> <functional> <memory> <optional> <vector> <tl/expected.hpp>)

# tavi_module(NAME [METATYPES | PLAIN] SOURCES file... [LINKS target...] [PRIVATE_LINKS target...])
#
# Declares the static library tavi_NAME of one source folder. Headers are included by their path below src/.
# LINKS are the modules and libraries that its headers use, PRIVATE_LINKS those that only its sources use; together they
# are the folder's edges in the link graph. METATYPES is for folders whose classes a QML module names with QML_FOREIGN,
# PLAIN for those in plain C++, without Qt.
function(tavi_module name)
  cmake_parse_arguments(arg "METATYPES;PLAIN" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  set(target tavi_${name})
  if(arg_METATYPES)
    qt_add_library(${target} STATIC ${arg_SOURCES})
  else()
    add_library(${target} STATIC ${arg_SOURCES})
  endif()
  if(NOT arg_PLAIN)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    tavi_use_precompiled(${target} tavi_qt_headers)
  endif()
  if(arg_METATYPES)
    qt_extract_metatypes(${target})
  endif()
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${target} PUBLIC ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS} tavi_warnings)
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
endfunction()

# All QML modules land below one folder, by their URIs, where the QML tools look for them.
set(QT_QML_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml)

# Compiled QML starts sooner, and takes its time to build: it is for the program that people run.
set(TAVI_QML_CACHE NO_CACHEGEN)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  set(TAVI_QML_CACHE "")
endif()

# tavi_qml_module(NAME URI uri SOURCES file... QML file... LINKS target... [RESOURCES file...])
#
# Declares tavi_NAME, the QML module of one screen: its QML files and the items and foreign types that they use.
function(tavi_qml_module name)
  cmake_parse_arguments(arg "" "URI" "SOURCES;QML;LINKS;RESOURCES" ${ARGN})
  set(target tavi_${name})
  qt_add_library(${target} STATIC)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  foreach(file IN LISTS arg_QML)
    get_filename_component(base ${file} NAME)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${base})
  endforeach()
  qt_add_qml_module(${target} URI ${arg_URI} VERSION 1.0 RESOURCE_PREFIX / SOURCES ${arg_SOURCES} QML_FILES ${arg_QML}
    RESOURCES ${arg_RESOURCES} ${TAVI_QML_CACHE})
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${target} PUBLIC ${arg_LINKS} Qt6::Quick)
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
endfunction()
