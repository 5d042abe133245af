# korvane_library(<name> SOURCES ... DEPENDS ...)
#
# One static library for one folder of src/. It is linked with exactly what the level table of src/README.md
# names for the folder, so that an include that points the wrong way finds no header.
function(korvane_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    set(target korvane_${name})
    list(TRANSFORM ARG_DEPENDS PREPEND korvane_)
    if(ARG_SOURCES)
        add_library(${target} STATIC ${ARG_SOURCES})
        target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE korvane_options)
        target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    else()
        add_library(${target} INTERFACE)
        target_link_libraries(${target} INTERFACE ${ARG_DEPENDS})
        target_include_directories(${target} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    endif()
endfunction()
