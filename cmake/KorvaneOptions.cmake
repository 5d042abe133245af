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

# What is delivered stops at once where a fault would otherwise let a hostile file go on with broken memory. The
# sanitizers find more in the other builds, and don't go together with _FORTIFY_SOURCE.
if(KORVANE_HARDENING)
    add_compile_options($<$<CONFIG:Release>:-fstack-protector-strong>)
    add_compile_definitions($<$<CONFIG:Release>:_FORTIFY_SOURCE=2> _GLIBCXX_ASSERTIONS)
    if(WIN32)
        # The first option has the protector's own library linked.
        add_link_options($<$<CONFIG:Release>:-fstack-protector-strong>
            $<$<CONFIG:Release>:LINKER:--dynamicbase,--nxcompat,--high-entropy-va>)
    else()
        add_link_options($<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
    endif()
endif()
