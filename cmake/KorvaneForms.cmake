# korvane_forms(<target> FILES...)
#
# Compiles the Designer files of all windows into the target. It also generates the registry that finds the
# look of a window by the window's name (`KorvaneForms()` of platform/qt/binder/FormEntry.h).
function(korvane_forms target)
    set(includes "")
    set(entries "")
    foreach(file ${ARGN})
        get_filename_component(form ${file} NAME_WE)
        file(STRINGS ${file} root REGEX "<widget class=\"Q[A-Za-z]+\" name=\"${form}\">" LIMIT_COUNT 1)
        if(NOT root MATCHES "class=\"(Q[A-Za-z]+)\"")
            message(FATAL_ERROR "${file}: no window named ${form}")
        endif()
        string(APPEND includes "#include \"ui_${form}.h\"\n")
        string(APPEND entries "    {\"${form}\", MakeLook<${CMAKE_MATCH_1}, Ui::${form}>},\n")
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    endforeach()
    qt6_wrap_ui(headers ${ARGN})
    set(registry ${CMAKE_CURRENT_BINARY_DIR}/FormRegistry.cpp)
    file(CONFIGURE OUTPUT ${registry} CONTENT [[
#include "platform/qt/binder/FormEntry.h"

@includes@
#include <array>

namespace korvane {

namespace {

template <class WidgetT, class LookT>
std::unique_ptr<QWidget> MakeLook() {
    auto widget = std::make_unique<WidgetT>();
    LookT().setupUi(widget.get());
    return widget;
}

constexpr auto kForms = std::to_array<FormEntry>({
@entries@});

} // namespace

std::span<const FormEntry> KorvaneForms() {
    return kForms;
}

} // namespace korvane
]] @ONLY)
    # Code from uic is compiled without warnings.
    set_source_files_properties(${registry} PROPERTIES COMPILE_OPTIONS "-w")
    target_sources(${target} PRIVATE ${registry} ${headers})
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
