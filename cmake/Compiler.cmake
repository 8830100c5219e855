# Every target of the project links this: warnings are errors under each compiler we support.
add_library(morlek_compiler INTERFACE)
target_compile_options(
  morlek_compiler
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Werror
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wnull-dereference
            -Wformat=2)

if(MORLEK_BUILD_FUZZERS)
  target_compile_options(morlek_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(MORLEK_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(morlek_compiler INTERFACE ${sanitizers})
  target_link_options(morlek_compiler INTERFACE ${sanitizers})
endif()
