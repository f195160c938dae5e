# Sanitizers, for clang, and in what is fuzzed coverage instrumentation for libFuzzer. Test code has the address
# sanitizer only: the others would take most of its compile time.
option(QVR_SANITIZE "Check addresses and undefined behaviour, and build the fuzz targets" OFF)
if(QVR_SANITIZE)
  add_compile_options(-fsanitize=address -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
  set(QVR_SANITIZE_PRODUCT -fsanitize=undefined)
  set(QVR_SANITIZE_FUZZED -fsanitize=fuzzer-no-link)
endif()
