# What every target of the project shares: language, warnings, float rules, sanitizers.

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O3 -DNDEBUG")

find_program(QB_CCACHE ccache)
if(QB_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${QB_CCACHE}")
endif()
find_program(QB_MOLD mold)
if(QB_MOLD)
  add_link_options(-fuse-ld=mold)
endif()

# Results must not depend on the compiler's taste: no fused multiply-add, no fast-math.
add_compile_options(-ffp-contract=off -fno-math-errno)
add_compile_options(-Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)  # warns of every "a" + std::string (GCC bug 105651)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  add_compile_options(-Wno-unknown-pragmas)  # GCC ivdep
endif()

if(QB_SANITIZE)
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1")  # assertions stay
  add_compile_options(-fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(CMAKE_CXX_CLANG_TIDY)
  # Generated sources, which lie below this file, are not looked at; some check there must be.
  file(WRITE "${CMAKE_BINARY_DIR}/.clang-tidy" "Checks: '-*,misc-definitions-in-headers'\nExtraArgs: [-Wno-unknown-warning-option]\n")
endif()

if(QB_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# qb_library(NAME SOURCES ... LINKS ...): the static library of the folder NAME.
# Sources include each other from the project's root ("terrain/clsTerrain.h").
function(qb_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(qb_${name} STATIC ${ARG_SOURCES})
  target_include_directories(qb_${name} PUBLIC "${CMAKE_SOURCE_DIR}")
  target_link_libraries(qb_${name} PUBLIC ${ARG_LINKS})
endfunction()

# qb_link_program_data(): links to what the programs need beside them, so that the ones of this
# folder work uninstalled. Without QB_MAKE_DATA the links lead nowhere.
function(qb_link_program_data)
  foreach(name IN ITEMS PS erode0.flt Elevator.dat Quillbrand.ini)
    file(CREATE_LINK "${QB_PROGRAM_FOLDER}/${name}" "${CMAKE_CURRENT_BINARY_DIR}/${name}" SYMBOLIC)
  endforeach()
endfunction()
