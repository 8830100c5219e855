# add_layer(<folder> SOURCES <files> [LINKS <targets>])
#
# One static library a folder of src/, named morlek_<folder>. Its headers are included as
# "<folder>/<header>". What it may include is what it links; a test reads every include and tells
# when one goes against the direction of the layers.
function(add_layer folder)
  cmake_parse_arguments(LAYER "" "" "SOURCES;LINKS" ${ARGN})
  list(TRANSFORM LAYER_SOURCES PREPEND ${folder}/)
  add_library(morlek_${folder} STATIC ${LAYER_SOURCES})
  target_include_directories(morlek_${folder} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(
    morlek_${folder}
    PUBLIC ${LAYER_LINKS}
    PRIVATE morlek_compiler)
  # Not for tests: with every check inlined GCC sees null pointers there that cannot come.
  target_compile_options(morlek_${folder} PRIVATE -Wnull-dereference)
endfunction()
