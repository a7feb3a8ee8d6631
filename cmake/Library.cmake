# Helpers for the targets of the client: one set of warnings, one precompiled header, one way to make a QML module.

add_library(zv_options INTERFACE)
add_library(zv_warnings INTERFACE)
target_compile_options(zv_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
                       # GCC 12 sees overlaps in the standard library's strings that are none.
                       $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(zv_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_BYTEARRAY)
target_include_directories(zv_options INTERFACE ${PROJECT_SOURCE_DIR})

# zv_library(NAME SOURCES...) makes a static library without a GUI.
function(zv_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC zv_options Qt6::Core Qt6::Network PRIVATE zv_warnings)
  target_precompile_headers(${name} PRIVATE <QtCore/QtCore> <functional> <memory> <vector>)
  set_target_properties(${name} PROPERTIES QT_QMLTYPEREGISTRAR_SKIP TRUE)
  qt_extract_metatypes(${name})
endfunction()

# zv_views(NAME URI LIBRARY FILES...) makes the QML module URI from the .qml files (and the headers that name the C++
# types it shows) of the calling folder, on top of LIBRARY. A view's URL is without its folder. What Qt compiles views to
# is not held to our warnings.
function(zv_views name uri library)
  set(qml ${ARGN})
  list(FILTER qml INCLUDE REGEX "\\.qml$")
  set(sources ${ARGN})
  list(FILTER sources EXCLUDE REGEX "\\.qml$")
  foreach(file ${qml})
    get_filename_component(view ${file} NAME)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS ${view})
  endforeach()
  string(REPLACE "." "/" path ${uri})
  # Where qmllint looks up the C++ types that a module does not make known itself.
  set(dependencies DEPENDENCIES QtQuick)
  if(NOT uri STREQUAL "Zorvane.Ui")
    list(APPEND dependencies Zorvane.Ui)
  endif()
  qt_add_library(${name} STATIC)
  qt_add_qml_module(${name} URI ${uri} VERSION 1.0 RESOURCE_PREFIX /qt/qml QML_FILES ${qml} SOURCES ${sources} ${dependencies}
                    OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml/${path} IMPORT_PATH ${PROJECT_BINARY_DIR}/qml)
  target_link_libraries(${name} PUBLIC ${library} PRIVATE Qt6::Quick)
  # The generated registration includes the headers by their bare names.
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/views)
endfunction()

# zv_test(NAME LIBRARIES... SOURCES files...) makes a GoogleTest program with the fakes of tests/support.
function(zv_test name)
  cmake_parse_arguments(arg "" "" "LIBRARIES;SOURCES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE zv_testsupport ${arg_LIBRARIES} GTest::gtest zv_warnings)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 600)
endfunction()
