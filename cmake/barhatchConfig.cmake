# find_package(barhatch) gives barhatch::barhatch, the shared library, and barhatch::barhatch_static.
include(${CMAKE_CURRENT_LIST_DIR}/barhatchTargets.cmake)
