# What every target of the house obeys: the language level, the warnings, the sanitizers, and the
# one-way layering. Written once, linked by all through `house_rules`.

set_property(GLOBAL PROPERTY GLOBAL_DEPENDS_NO_CYCLES ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_EXTENSIONS OFF)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()

set(TESSALOOM_SANITIZE "" CACHE STRING "Sanitizers to build with, for example address,undefined")
option(TESSALOOM_COVERAGE "Measure which lines the tests reach" OFF)

add_library(house_rules INTERFACE)
target_compile_features(house_rules INTERFACE cxx_std_20)
set_target_properties(house_rules PROPERTIES INTERFACE_POSITION_INDEPENDENT_CODE ON)
if(MSVC)
  target_compile_options(house_rules INTERFACE /W4 /WX /permissive- /utf-8)
else()
  # Amounts are rounded at every stored value: contracting a product and a sum into one rounding,
  # or keeping excess precision, would change cents.
  target_compile_options(house_rules INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wconversion -Wsign-conversion -Wshadow -Wdouble-promotion
    -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wimplicit-fallthrough -ffp-contract=off)
  # What GCC suspects while it optimizes as much as for Release is mostly wrong, and in the library's headers.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(house_rules INTERFACE
      "$<$<CONFIG:Release>:-Wno-error=restrict;-Wno-error=maybe-uninitialized>")
  endif()
endif()
if(TESSALOOM_SANITIZE)
  target_compile_options(house_rules INTERFACE -fsanitize=${TESSALOOM_SANITIZE}
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(house_rules INTERFACE -fsanitize=${TESSALOOM_SANITIZE})
endif()

# For what tests ask a million times, as at every price of a scan: unoptimised and watched, that takes minutes.
set(TESSALOOM_COMPUTES "")
if(TESSALOOM_SANITIZE AND CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT MSVC)
  set(TESSALOOM_COMPUTES -O1)
endif()
if(TESSALOOM_COVERAGE)
  target_compile_options(house_rules INTERFACE --coverage)
  target_link_options(house_rules INTERFACE --coverage)
endif()

# house_library(NAME SOURCES ... HEADERS ... LINKS ...): a static library whose public include root is
# its own folder, so that only who links it can include it. Each header is also compiled alone.
function(house_library name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;HEADERS;LINKS")
  add_library(${name} STATIC ${ARG_SOURCES})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES ${ARG_HEADERS})
  target_link_libraries(${name} PUBLIC house_rules ${ARG_LINKS})
  set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()
