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

if(MORLEK_BUILD_FUZZERS)
  target_compile_options(morlek_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(MORLEK_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(morlek_compiler INTERFACE ${sanitizers})
  target_link_options(morlek_compiler INTERFACE ${sanitizers})
endif()
