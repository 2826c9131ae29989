# TAVI_SANITIZERS: a list for -fsanitize=, such as "address,undefined" or "thread"; empty for none.
set(TAVI_SANITIZERS "" CACHE STRING "Sanitizers to build everything with")
if(TAVI_SANITIZERS)
  add_compile_options(-fsanitize=${TAVI_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TAVI_SANITIZERS})
endif()
