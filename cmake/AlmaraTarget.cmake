# Settings that every target of the project shares.

set(ALMARA_SANITIZERS "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")

# almara_target(<target>): language level, deterministic floating point, warnings and sanitizers.
function(almara_target target)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF
    C_STANDARD 99 C_STANDARD_REQUIRED ON C_EXTENSIONS OFF)
  # A fused multiply-add rounds once where the series round twice, so a day could depend on the
  # processor. With contraction off every compiler gives the same doubles.
  target_compile_options(${target} PRIVATE -ffp-contract=off)
  # 32 bits of time end in 2038, boards in 2099.
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_definitions(${target} PRIVATE _TIME_BITS=64 _FILE_OFFSET_BITS=64)
  endif()
  if(ALMARA_DEVELOPER_WARNINGS)
    target_compile_options(${target} PRIVATE
      -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  endif()
  if(ALMARA_SANITIZERS)
    target_compile_options(${target} PRIVATE
      -fsanitize=${ALMARA_SANITIZERS} -fno-sanitize-recover=all)
    target_link_options(${target} PRIVATE -fsanitize=${ALMARA_SANITIZERS})
  endif()
endfunction()
