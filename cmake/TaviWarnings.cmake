# Warnings that every target of the project is built with. They are errors.
add_library(tavi_warnings INTERFACE)
target_compile_options(tavi_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees uninitialised members in every empty std::optional that it has optimised.
  target_compile_options(tavi_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
