# Headers that most sources read, compiled once. A source still includes what it uses: the option is off for whoever
# wants to see that it does.
option(TAVI_PRECOMPILED "Compile the headers that most sources read once" ON)

# tavi_precompiled(NAME LINKS target... HEADERS header...)
#
# Declares the library NAME that has these headers precompiled, for the sources that tavi_use_precompiled names.
function(tavi_precompiled name)
  cmake_parse_arguments(arg "" "" "LINKS;HEADERS" ${ARGN})
  if(TAVI_PRECOMPILED)
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp.in "// Carries the precompiled headers.\n")
    configure_file(${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp COPYONLY)
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${arg_LINKS} tavi_warnings)
    target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      # The compiler cache tells by the preprocessed source whether it has seen it.
      target_compile_options(${name} PRIVATE -fpch-preprocess)
    endif()
  endif()
endfunction()

# tavi_use_precompiled(TARGET NAME): the sources of a target read what NAME has precompiled.
function(tavi_use_precompiled target name)
  if(TAVI_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM ${name})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      # Programs, too, are compiled as the headers were; Qt asks for that on Debian 12 only.
      target_compile_options(${target} PRIVATE -fpch-preprocess -fPIC)
    endif()
  endif()
endfunction()
