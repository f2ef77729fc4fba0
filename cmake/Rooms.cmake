# Every room of the house is one static library made of the sources in its folder.
# What a room may use is what it links here: platform <- store <- records <- shell <- screens <- app.

add_library(kestrel_flags INTERFACE)
target_include_directories(kestrel_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(kestrel_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_compile_definitions(kestrel_flags INTERFACE
  QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER
  KESTRELMOOR_VERSION="${PROJECT_VERSION}")
if(KESTREL_SANITIZE)
  # g++ 12 takes untouched parts of a std::variant for read ones when the sanitizers are on.
  target_compile_options(kestrel_flags INTERFACE
    -fsanitize=address,undefined -fno-omit-frame-pointer -Wno-maybe-uninitialized)
  target_link_options(kestrel_flags INTERFACE -fsanitize=address,undefined)
endif()

# Shared precompiled headers: one for rooms without a window, one for rooms with one.
file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/pch_core.cpp CONTENT "")
file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/pch_widgets.cpp CONTENT "")
add_library(kestrel_pch_core STATIC ${CMAKE_BINARY_DIR}/pch_core.cpp)
target_link_libraries(kestrel_pch_core PUBLIC kestrel_flags Qt6::Core)
target_precompile_headers(kestrel_pch_core PRIVATE
  <QtCore/QtCore> <functional> <memory> <optional> <string> <vector>)
add_library(kestrel_pch_widgets STATIC ${CMAKE_BINARY_DIR}/pch_widgets.cpp)
target_link_libraries(kestrel_pch_widgets PUBLIC kestrel_flags Qt6::Core Qt6::Gui Qt6::Widgets)
target_precompile_headers(kestrel_pch_widgets PRIVATE
  <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets> <functional> <memory> <optional> <string> <vector>)
set_target_properties(kestrel_pch_core kestrel_pch_widgets PROPERTIES AUTOMOC OFF)

# kestrel_room(name CORE|WINDOWED [SOURCES files...] [USES libraries...])
# CORE rooms see QtCore and no widget; WINDOWED rooms see widgets too.
# Without SOURCES the room is made of every source file in its folder.
function(kestrel_room name kind)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  if(NOT ROOM_SOURCES)
    file(GLOB ROOM_SOURCES CONFIGURE_DEPENDS *.cpp *.h *.qrc)
  endif()
  if(NOT ROOM_SOURCES MATCHES "\\.cpp")
    return()
  endif()
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(${name} PUBLIC kestrel_flags Qt6::Core ${ROOM_USES})
  # A header that is new in the folder makes moc look again.
  set_target_properties(${name} PROPERTIES AUTOGEN_TARGET_DEPENDS
    ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${name}_autogen.dir/AutogenInfo.json)
  if(kind STREQUAL "WINDOWED")
    target_link_libraries(${name} PUBLIC Qt6::Gui Qt6::Widgets)
    target_precompile_headers(${name} REUSE_FROM kestrel_pch_widgets)
  else()
    target_precompile_headers(${name} REUSE_FROM kestrel_pch_core)
  endif()
endfunction()

# kestrel_tests(name [USES libraries...]): one test program made of every *_test.cpp in the folder.
function(kestrel_tests name)
  cmake_parse_arguments(TESTS "" "" "USES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *_test.cpp)
  add_executable(${name} ${sources})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE kestrel_flags kestrel_test_main Qt6::Core Qt6::Test GTest::gtest ${TESTS_USES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC" TIMEOUT 600)
endfunction()
