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
    -Wnon-virtual-dtor -Woverloaded-virtual -Wundef -Wnull-dereference -Wformat=2
    -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 reports false null dereferences inside the standard library's own inlined code.
  target_compile_options(project_warnings INTERFACE
      -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wno-error=null-dereference)
endif()

# For those that use CLI11, behind project_warnings: GCC 12 sees a null dereference in its split, where
# that is inlined, and blames the standard library.
add_library(cli11_warnings INTERFACE)
target_compile_options(cli11_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-null-dereference>)
