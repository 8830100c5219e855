# add_layer(<folder> SOURCES <files> [LINKS <targets>])
#
# One static library a folder of src/, named morlek_<folder>. A library sees the headers of its own
# folder and of the folders that it links, and no others: each gets an include directory that holds
# nothing but a link to its folder. So an include against the direction of the layers does not build.
function(add_layer folder)
  cmake_parse_arguments(LAYER "" "" "SOURCES;LINKS" ${ARGN})
  set(include_root ${PROJECT_BINARY_DIR}/include/${folder})
  file(MAKE_DIRECTORY ${include_root})
  file(CREATE_LINK ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../src/${folder} ${include_root}/${folder}
       SYMBOLIC)

  list(TRANSFORM LAYER_SOURCES PREPEND ${folder}/)
  add_library(morlek_${folder} STATIC ${LAYER_SOURCES})
  target_include_directories(morlek_${folder} PUBLIC ${include_root})
  target_link_libraries(
    morlek_${folder}
    PUBLIC ${LAYER_LINKS}
    PRIVATE morlek_compiler)
endfunction()
