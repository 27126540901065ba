# What every target of the project is built with: warnings, hardening, sanitizers.

add_library(tessel_options INTERFACE)
target_include_directories(tessel_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(tessel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference
  # GCC 12 sees overlapping copies wherever a literal and a temporary string are added.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${TESSEL_WARNINGS_AS_ERRORS}>:-Werror>)

if(TESSEL_SANITIZE)
  target_compile_options(tessel_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tessel_options INTERFACE -fsanitize=address,undefined)
  target_compile_definitions(tessel_options INTERFACE _GLIBCXX_ASSERTIONS)
else()
  target_compile_options(tessel_options INTERFACE
    -fstack-protector-strong $<$<CONFIG:Release>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
endif()
if(TESSEL_COVERAGE)
  target_compile_options(tessel_options INTERFACE --coverage)
  target_link_options(tessel_options INTERFACE --coverage)
endif()
target_link_options(tessel_options INTERFACE -Wl,-z,relro,-z,now)

include(CheckPIESupported)
check_pie_supported()

# tessel_library(NAME core SOURCES ... LINKS ...): one folder's library.
function(tessel_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC tessel_options ${ARG_LINKS})
endfunction()

# tessel_optimise_across_files(TARGET...): link-time optimisation of these libraries in Release
# builds with GCC, whose linker takes them without a word; Clang's would have to be told at every
# program. Not for code that uses Qt: its libraries forbid that their data be addressed directly,
# which this optimisation would do.
function(tessel_optimise_across_files)
  if(NOT TESSEL_LTO OR NOT CMAKE_BUILD_TYPE STREQUAL "Release" OR TESSEL_SANITIZE
     OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    return()
  endif()
  include(CheckIPOSupported)
  check_ipo_supported(RESULT supported LANGUAGES CXX)
  if(supported)
    set_target_properties(${ARGN} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
  endif()
endfunction()
