# korvane_library(<name> SOURCES ... DEPENDS ...) adds one static library of the core, or one that tests
# share.
#
# Every target can include from all of src/, so that an include looks the same everywhere. The level table of
# src/README.md says which folder may include which, and tests/arch checks it.
function(korvane_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    set(target korvane_${name})
    list(TRANSFORM ARG_DEPENDS PREPEND korvane_)
    if(ARG_SOURCES)
        add_library(${target} STATIC ${ARG_SOURCES})
        target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE korvane_options)
        target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
        if(KORVANE_SOURCE_HEADERS)
            korvane_use_headers(${target} ${KORVANE_SOURCE_HEADERS})
        else()
            korvane_use_headers(${target} korvane_core_headers)
        endif()
    else()
        add_library(${target} INTERFACE)
        target_link_libraries(${target} INTERFACE ${ARG_DEPENDS})
        target_include_directories(${target} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    endif()
endfunction()

# korvane_folder([NAME name] SOURCES ... FORMS ...) adds the library of the current folder of src/.
#
# It is linked with exactly the libraries that the level table names for the folder. The library of `a/b` is
# called `a_b` unless NAME says otherwise. FORMS are the Designer files of the folder's windows.
function(korvane_folder)
    cmake_parse_arguments(ARG "" "NAME" "SOURCES;FORMS" ${ARGN})
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    if(NOT ARG_NAME)
        string(REPLACE "/" "_" ARG_NAME ${folder})
    endif()
    korvane_folder_depends(depends ${folder})
    korvane_library(${ARG_NAME} SOURCES ${ARG_SOURCES} DEPENDS ${depends})
    list(TRANSFORM ARG_FORMS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    set_property(GLOBAL APPEND PROPERTY KORVANE_FORMS ${ARG_FORMS})
endfunction()

# Finds the libraries that the level table names in the brackets of a folder.
function(korvane_folder_depends result folder)
    set(table ${PROJECT_SOURCE_DIR}/src/README.md)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
    file(STRINGS ${table} row REGEX "^\\| `${folder}` \\| .*")
    if(NOT row MATCHES "^\\| `${folder}` \\| \\[([^]]*)\\]")
        message(FATAL_ERROR "${table} has no row for ${folder}")
    endif()
    string(REGEX REPLACE "[ `]" "" depends "${CMAKE_MATCH_1}")
    string(REPLACE "," ";" depends "${depends}")
    list(TRANSFORM depends REPLACE "/" "_")
    # Some folders are built only for one system.
    set(built "")
    foreach(name IN LISTS depends)
        if(TARGET korvane_${name})
            list(APPEND built ${name})
        endif()
    endforeach()
    set(${result} ${built} PARENT_SCOPE)
endfunction()

# Does the same for a folder that uses Qt. QT are the modules that it needs besides widgets.
function(korvane_qt_folder)
    cmake_parse_arguments(ARG "" "" "SOURCES;QT" ${ARGN})
    set(KORVANE_SOURCE_HEADERS korvane_qt_headers)
    korvane_folder(SOURCES ${ARG_SOURCES})
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    string(REPLACE "/" "_" name ${folder})
    list(TRANSFORM ARG_QT PREPEND Qt6::)
    set_target_properties(korvane_${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(korvane_${name} PUBLIC Qt6::Widgets PRIVATE ${ARG_QT})
endfunction()
