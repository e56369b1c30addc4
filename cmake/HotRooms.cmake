# Rooms that go over every value or every byte of a file. Where the rest is compiled for a short build
# (RelWithDebInfo: the presets dev and demo), they are compiled as in a release.
function(hot_room target)
  target_compile_options(${target} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O2>)
endfunction()
