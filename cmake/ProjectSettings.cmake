# One place for the language standard, warnings and defines: every target links
# purrlodge_settings and gets the same rules.
add_library(purrlodge_settings INTERFACE)
target_compile_features(purrlodge_settings INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)

if(MSVC)
  target_compile_options(purrlodge_settings INTERFACE /W4 /WX /permissive-)
else()
  target_compile_options(purrlodge_settings INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wold-style-cast -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
  # GCC 12 reports false -Wrestrict overlaps inside std::string at -O2 and above
  # (GCC bug 105329); the warning says nothing about our code.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(purrlodge_settings INTERFACE -Wno-restrict)
  endif()
endif()

target_compile_definitions(purrlodge_settings INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_USE_QSTRINGBUILDER)

if(PURRLODGE_SANITIZE)
  target_compile_options(purrlodge_settings INTERFACE
    -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(purrlodge_settings INTERFACE -fsanitize=address,undefined)
endif()

# The fuzz build instruments the core for libFuzzer, AddressSanitizer and UBSan;
# any UBSan finding aborts, so the fuzzer reports it. The targets link the
# fuzzer's own main (tests/fuzz).
if(PURRLODGE_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "PURRLODGE_FUZZ needs clang (CC=clang CXX=clang++)")
  endif()
  if(PURRLODGE_SANITIZE)
    message(FATAL_ERROR "PURRLODGE_FUZZ brings its own sanitizers; leave PURRLODGE_SANITIZE off")
  endif()
  target_compile_options(purrlodge_settings INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(purrlodge_settings INTERFACE -fsanitize=address,undefined)
endif()
