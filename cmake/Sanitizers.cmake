# BARHATCH_SANITIZE turns on both sanitizers for every target; a finding ends the program, so no test can pass over it.
if(BARHATCH_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
# The fuzzer's counters, for the library above all.
if(BARHATCH_BUILD_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
