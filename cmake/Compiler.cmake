# Every target of the project links this. The presets that are worked with make errors of warnings.
add_library(morlek_compiler INTERFACE)
target_compile_options(
  morlek_compiler
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wformat=2)

# What is optimised on Linux is hardened like a distribution's package, whoever builds it. The
# sanitizers check more than this, and in their own way.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT MORLEK_SANITIZE)
  set(optimised "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
  target_compile_options(
    morlek_compiler INTERFACE "$<${optimised}:-fstack-protector-strong>"
                              "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  target_compile_definitions(morlek_compiler INTERFACE "$<${optimised}:_GLIBCXX_ASSERTIONS>")
  target_link_options(morlek_compiler INTERFACE LINKER:-z,relro,-z,now)
endif()

if(MORLEK_BUILD_FUZZERS)
  target_compile_options(morlek_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(MORLEK_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(morlek_compiler INTERFACE ${sanitizers})
  target_link_options(morlek_compiler INTERFACE ${sanitizers})
endif()
