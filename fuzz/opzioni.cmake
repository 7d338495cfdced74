# The fuzz configuration: every library built with libFuzzer's coverage and
# with AddressSanitizer and UndefinedBehaviorSanitizer, and the fuzz targets
# of fuzz/ linked against them. Only clang has libFuzzer; scripts/fuzz.sh
# configures a build folder of its own with it.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "SCHEDINE_FUZZ=ON needs clang++ as CMAKE_CXX_COMPILER (found ${CMAKE_CXX_COMPILER_ID})")
endif()

add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                    -fno-omit-frame-pointer -g)
add_link_options(-fsanitize=address,undefined)

add_subdirectory(fuzz)
