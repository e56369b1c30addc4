# Every warning is an error, in all our targets. -Wconversion and -Wsign-conversion are here because
# file positions and value counts are 64-bit and most other integers are not.
set(shadow -Wshadow)
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # A source that is compiled in one go with its neighbours would be blamed for their names.
  set(shadow -Wshadow=local)
endif()
add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wconversion -Wsign-conversion ${shadow} -Wold-style-cast -Wcast-align -Wcast-qual
    -Wnon-virtual-dtor -Woverloaded-virtual -Wundef -Wformat=2
    -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(project_warnings INTERFACE -Wduplicated-cond -Wlogical-op)
  if(NOT PLOT3D_SANITIZE)
    # With the sanitizers' checks in VTK's headers GCC 12 looks for such branches without an end.
    target_compile_options(project_warnings INTERFACE -Wduplicated-branches)
  endif()
else()
  # GCC 12 blames the standard library's own inlined code alone, and takes a tenth longer for it.
  target_compile_options(project_warnings INTERFACE -Wnull-dereference)
endif()
