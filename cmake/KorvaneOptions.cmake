# All targets are compiled with these options.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC_MOC_OPTIONS --include ${PROJECT_SOURCE_DIR}/cmake/MocFirst.h)

find_program(KORVANE_CCACHE ccache)
if(KORVANE_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${KORVANE_CCACHE})
endif()
if(NOT WIN32)
    find_program(KORVANE_LLD ld.lld)
    if(KORVANE_LLD)
        add_link_options(-fuse-ld=lld)
    endif()
endif()

add_library(korvane_options INTERFACE)
target_compile_options(korvane_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion
    $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
    # When GCC 12 optimises, it wrongly reports an overlap where the standard library joins strings.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(KORVANE_WERROR)
    target_compile_options(korvane_options INTERFACE -Werror)
endif()

if(KORVANE_SANITIZE)
    add_compile_options(-fsanitize=${KORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KORVANE_SANITIZE})
    # With the sanitizers GCC wrongly warns about variables that the standard library does initialise.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(KORVANE_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
