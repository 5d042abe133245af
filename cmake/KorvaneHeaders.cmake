# With KORVANE_PCH the headers that many sources include are compiled once for each kind of target. This is for
# builds that only test: a release build compiles all of src/ without it, and so finds a header that a source
# forgot.
#
# korvane_headers(<name> <library|program> LINK targets... HEADERS headers...) makes such headers. The compiler
# takes them only for targets with the same flags.
function(korvane_headers name kind)
    if(NOT KORVANE_PCH)
        return()
    endif()
    cmake_parse_arguments(ARG "" "" "LINK;HEADERS" ${ARGN})
    set(source ${PROJECT_BINARY_DIR}/${name}.cpp)
    file(WRITE ${source} "")
    if(kind STREQUAL program)
        add_executable(${name} EXCLUDE_FROM_ALL ${source})
    else()
        add_library(${name} STATIC EXCLUDE_FROM_ALL ${source})
    endif()
    target_link_libraries(${name} PRIVATE korvane_options ${ARG_LINK})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

# Has the target use these headers, if there are any.
function(korvane_use_headers target name)
    if(TARGET "${name}")
        target_precompile_headers(${target} REUSE_FROM ${name})
    endif()
endfunction()

set(KORVANE_COMMON_HEADERS <algorithm> <array> <functional> <map> <memory> <optional> <span> <string> <utility> <vector>)
set(KORVANE_QT_HEADERS <QAbstractItemView> <QApplication> <QKeyEvent> <QLineEdit> <QMainWindow> <QPainter> <QTimer>)
