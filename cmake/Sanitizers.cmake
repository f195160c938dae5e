set(QVR_SANITIZE "" CACHE STRING "Checks to compile in, as -fsanitize= takes them")
if(QVR_SANITIZE)
  add_compile_options(-fsanitize=${QVR_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${QVR_SANITIZE})
endif()

# Code that libFuzzer can watch; the targets themselves link its main function.
option(QVR_FUZZ "Build the fuzz targets instead of the tests; for clang" OFF)
if(QVR_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link -D_GLIBCXX_ASSERTIONS)
endif()
