# One function per kind of target.

set(VOIP_WARNINGS
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    -Wnull-dereference)
set(VOIP_COMPILER)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  list(APPEND VOIP_WARNINGS -Wduplicated-cond -Wlogical-op)
  # ccache needs it to know a precompiled header's content.
  set(VOIP_COMPILER -fpch-preprocess)
endif()
list(APPEND VOIP_WARNINGS -Wformat=2)

# A log statement holds its source's name from here on, not the folder that it was built in.
set(VOIP_PATHS -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)

# Every target sees the same Qt modules and is compiled with the same options, so that one precompiled header serves all.
set(VOIP_QT Qt5::Core Qt5::Gui Qt5::Widgets Qt5::Network Qt5::Multimedia Qt5::Sql Qt5::Xml)

file(WRITE ${CMAKE_BINARY_DIR}/voip_pch.cpp "")
add_library(voip_pch OBJECT ${CMAKE_BINARY_DIR}/voip_pch.cpp)
target_link_libraries(voip_pch PRIVATE ${VOIP_QT})
target_precompile_headers(voip_pch PRIVATE
    <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets> <QtNetwork/QtNetwork>)
set_target_properties(voip_pch PROPERTIES AUTOMOC OFF AUTOUIC OFF)
target_compile_options(voip_pch PRIVATE ${VOIP_WARNINGS} ${VOIP_COMPILER} -fPIC ${VOIP_PATHS})

if(VOIP_SANITIZE)
  add_library(voip_sanitized_end OBJECT
    ${CMAKE_SOURCE_DIR}/tests/sanitize/KeepLibraries.cpp ${CMAKE_SOURCE_DIR}/tests/sanitize/LeakCheck.cpp)
  set_target_properties(voip_sanitized_end PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  target_compile_options(voip_sanitized_end PRIVATE -fPIC)
endif()

# Compiler settings of the project's own code. Includes are written from src/ ("store/DB.h").
function(voip_own_code target)
  target_compile_options(${target} PRIVATE ${VOIP_WARNINGS} ${VOIP_COMPILER} -fPIC ${VOIP_PATHS})
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${target} PRIVATE ${VOIP_QT})
  target_precompile_headers(${target} REUSE_FROM voip_pch)
  get_target_property(type ${target} TYPE)
  if(VOIP_SANITIZE AND type STREQUAL "EXECUTABLE")
    target_link_libraries(${target} PRIVATE voip_sanitized_end)
  endif()
endfunction()

# voip_library(name SOURCES ... LINKS ...): the static library voip_name, known as Voip::name.
function(voip_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(voip_${name} STATIC ${ARG_SOURCES})
  add_library(Voip::${name} ALIAS voip_${name})
  voip_own_code(voip_${name})
  target_link_libraries(voip_${name} PUBLIC ${ARG_LINKS} ${VOIP_QT})
endfunction()

# moc for a test program, by itself: CMake's own search starts two processes and compiles one more file for each of them. A
# source tst_X.cpp includes its tst_X.moc at its end; headers with a QObject are named among the program's sources.
function(voip_moc target)
  set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    get_filename_component(stem ${source} NAME_WE)
    if(source MATCHES "tst_[^/]*\\.cpp$")
      set(moc ${CMAKE_CURRENT_BINARY_DIR}/${stem}.moc)
    elseif(source MATCHES "\\.h$")
      file(STRINGS ${source} objects REGEX "Q_OBJECT$" LIMIT_COUNT 1)
      if(NOT objects)
        continue()
      endif()
      set(moc ${CMAKE_CURRENT_BINARY_DIR}/moc_${stem}.cpp)
    else()
      continue()
    endif()
    # Once in a folder, also for a header that several programs name.
    get_property(made DIRECTORY PROPERTY VOIP_MOCS)
    if(NOT moc IN_LIST made)
      qt5_generate_moc(${source} ${moc} TARGET ${target})
      set_property(DIRECTORY APPEND PROPERTY VOIP_MOCS ${moc})
    endif()
    target_sources(${target} PRIVATE ${moc})
  endforeach()
endfunction()

# voip_test(name SOURCES ... LINKS ... [ENV ...] [LABELS ...] [TIMEOUT s]): a Qt Test program, run in a folder,
# a home and a temporary directory of its own, so that sockets and files of two tests never meet. Where VOIP_TEST_SCREEN is
# set it has a screen of its own as well, so that no other test's window covers its windows or moves its cursor.
function(voip_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINKS;ENV;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  voip_own_code(${name})
  voip_moc(${name})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt5::Test)
  set(screen)
  if(VOIP_TEST_SCREEN)
    set(screen --screen)
  endif()
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/isolated ${screen} $<TARGET_FILE:${name}>)
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  if(VOIP_SANITIZE)
    math(EXPR ARG_TIMEOUT "3 * ${ARG_TIMEOUT}")
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
  if(ARG_ENV)
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${ARG_ENV}")
  endif()
  if(ARG_LABELS)
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}")
  endif()
endfunction()
