# The program itself: what knows the platform, the resources, and the executable.
include(cmake/assets.cmake)

# Only libraries that every Windows has loaded already or maps from its own list of known ones; the
# rest is loaded when it is first used, so that no file beside the program can stand in for it.
add_library(varnel_platform STATIC ${VARNEL_PLATFORM})
target_compile_definitions(varnel_platform PRIVATE
                           VARNEL_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
                           VARNEL_VERSION_MINOR=${PROJECT_VERSION_MINOR})
target_link_libraries(varnel_platform PUBLIC varnel_engines gdi32 advapi32 shell32 ole32 oleaut32
                      comdlg32 uuid)
# g++ 12 takes the copy of a short literal for one beyond its bounds, and no longer knows that it is the
# library's own once that comes from a shared header.
target_compile_options(varnel_platform PRIVATE -Wno-array-bounds -Wno-stringop-overread)
target_precompile_headers(varnel_platform PRIVATE <windows.h> ${VARNEL_STANDARD_HEADERS})

# The resource compiler knows no enumeration.
file(STRINGS resources/control_ids.h control_ids REGEX "^  [A-Za-z0-9]+ = ")
list(TRANSFORM control_ids REPLACE "^  ([A-Za-z0-9]+) = ([A-Za-z0-9]+),.*" "#define \\1 \\2")
list(FILTER control_ids INCLUDE REGEX "^#define ")
list(JOIN control_ids "\n" control_ids)
file(CONFIGURE OUTPUT ${VARNEL_ASSETS_DIR}/control_defines.h CONTENT "${control_ids}\n")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS resources/control_ids.h)

# The resources are a target of their own so that tests can link the same dialogs.
enable_language(RC)
string(REPLACE "." "," VARNEL_VERSION_NUMBERS "${PROJECT_VERSION}.0.0.0")
string(REGEX MATCH "^[0-9]+,[0-9]+,[0-9]+,[0-9]+" VARNEL_VERSION_NUMBERS ${VARNEL_VERSION_NUMBERS})
configure_file(resources/version.rc.in ${VARNEL_ASSETS_DIR}/version.rc @ONLY)
add_library(varnel_resources OBJECT resources/app.rc)
target_include_directories(varnel_resources PRIVATE ${PROJECT_SOURCE_DIR} ${VARNEL_ASSETS_DIR})
file(GLOB resource_parts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/*.rc
     ${PROJECT_SOURCE_DIR}/resources/*.h ${PROJECT_SOURCE_DIR}/resources/*.manifest)
set_source_files_properties(
  resources/app.rc PROPERTIES OBJECT_DEPENDS
  "${VARNEL_ASSETS};${VARNEL_ASSETS_DIR}/version.rc;${VARNEL_ASSETS_DIR}/control_defines.h;${resource_parts}")

add_executable(WidgetVarnel WIN32 main.cpp catalogue_win.cpp)
target_link_libraries(WidgetVarnel PRIVATE varnel_platform varnel_resources)
# Sections that are aligned in the file as they are in memory are mapped by every loader; Wine's
# copies others, which made two MB of memory of its own for each running program.
target_link_options(WidgetVarnel PRIVATE -municode -Wl,--file-alignment,4096
                    $<$<NOT:$<CONFIG:Debug>>:-s>)

add_test(NAME check.program
         COMMAND /usr/bin/python3 ${PROJECT_SOURCE_DIR}/tools/check_exe.py ${CMAKE_OBJDUMP}
                 $<TARGET_FILE:WidgetVarnel> ${PROJECT_VERSION})
