# The warnings every target of the project is built with: target_link_libraries(<target> PRIVATE barhatch_warnings).
add_library(barhatch_warnings INTERFACE)
target_compile_options(barhatch_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wdouble-promotion -Wshadow -Wcast-align
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wextra-semi>
  $<$<BOOL:${BARHATCH_WARNINGS_AS_ERRORS}>:-Werror>)
