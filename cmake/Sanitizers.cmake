# Checks that the compiler puts into the code, and eyes for libFuzzer; for clang. The memory that the tests themselves
# touch is checked too, what else they do is not: that would take most of the time that they take to compile.
option(QVR_SANITIZE "Check addresses and undefined behaviour, and build the fuzz targets" OFF)
if(QVR_SANITIZE)
  add_compile_options(-fsanitize=address -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
  set(QVR_SANITIZE_PRODUCT -fsanitize=undefined,fuzzer-no-link)
endif()
