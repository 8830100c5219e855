# add_layer(<folder> [<targets>])
#
# One static library a folder of src/, named morlek_<folder>, of all sources there but a main program. Its
# headers are included as "<folder>/<header>". What it may include is what it links; a test reads
# every include and reports one that goes against the direction of the layers.
function(add_layer folder)
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main(_windows)?\\.cpp$")
  add_library(morlek_${folder} STATIC ${sources})
  target_include_directories(morlek_${folder} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(
    morlek_${folder}
    PUBLIC ${ARGN}
    PRIVATE morlek_compiler)
  # Not for tests: with every check inlined GCC sees null pointers there that cannot come.
  target_compile_options(morlek_${folder} PRIVATE -Wnull-dereference)
endfunction()
