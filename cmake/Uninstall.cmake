# Removes what the last `cmake --install` of this build folder put in place; run there.
if(NOT EXISTS install_manifest.txt)
  message(FATAL_ERROR "Nothing was installed from this build folder.")
endif()
file(STRINGS install_manifest.txt installed)
foreach(file IN LISTS installed)
  message(STATUS "Removing: $ENV{DESTDIR}${file}")
  file(REMOVE "$ENV{DESTDIR}${file}")
endforeach()
