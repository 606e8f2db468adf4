# Compiler settings shared by every target of the project.

# Highway compiles each kernel once per instruction-set target. SSSE3 adds
# nothing over SSE4 for our kernels and AVX3_DL nothing over AVX3, so both are
# left out to keep build times down; SSE2-only machines run the portable
# EMU128 variant.
set(KELS_HWY_DEFINES "HWY_DISABLED_TARGETS=(HWY_SSSE3|HWY_AVX3_DL)")

set(KELS_WARNINGS -Wall -Wextra -Wno-unused-parameter)

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # 32-bit x86: SSE2 is the baseline; keep float arithmetic out of the x87 unit
  # so results agree with the 64-bit build.
  add_compile_options(-msse2 -mfpmath=sse)
endif()

if(KELS_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# kels_add_test_binary(NAME SOURCES...): one GoogleTest binary, registered with
# CTest as a single test so a failure names its subsystem.
function(kels_add_test_binary name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE kels_test_support)
  target_compile_options(${name} PRIVATE ${KELS_WARNINGS})
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
endfunction()
