# One function per kind of target.

# A build that takes this one in may have another compiler: a warning of ours is not to end it.
set(errors)
if(PROJECT_IS_TOP_LEVEL)
  set(errors -Werror)
endif()
set(VOIP_WARNINGS
    -Wall -Wextra -Wpedantic ${errors} -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    -Wnull-dereference)
set(VOIP_COMPILER)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  list(APPEND VOIP_WARNINGS -Wduplicated-cond -Wlogical-op)
  # ccache needs it to know a precompiled header's content.
  set(VOIP_COMPILER -fpch-preprocess)
endif()
list(APPEND VOIP_WARNINGS -Wformat=2)

# A log statement holds its source's name from here on, not the folder that it was built in.
set(VOIP_PATHS -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)

# Every target is compiled with the headers of the same Qt modules and the same options, so that one precompiled header serves
# all. What a target links are the modules that it uses.
add_library(voip_qt_headers INTERFACE)
foreach(module Core Gui Widgets Network Multimedia Sql Xml)
  target_include_directories(voip_qt_headers SYSTEM INTERFACE $<TARGET_PROPERTY:Qt5::${module},INTERFACE_INCLUDE_DIRECTORIES>)
  target_compile_definitions(voip_qt_headers INTERFACE $<TARGET_PROPERTY:Qt5::${module},INTERFACE_COMPILE_DEFINITIONS>)
endforeach()

# voip_precompiled(name HEADERS ... [OPTIONS ...]): headers compiled once for all targets that reuse those of this name.
function(voip_precompiled target)
  cmake_parse_arguments(ARG "" "" "HEADERS;OPTIONS" ${ARGN})
  file(WRITE ${PROJECT_BINARY_DIR}/${target}.cpp "")
  add_library(${target} OBJECT EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/${target}.cpp)
  target_link_libraries(${target} PRIVATE voip_qt_headers)
  target_precompile_headers(${target} PRIVATE ${ARG_HEADERS})
  set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  target_compile_options(${target} PRIVATE ${VOIP_WARNINGS} ${VOIP_COMPILER} -fPIC ${VOIP_PATHS} ${ARG_OPTIONS})
endfunction()
set(headers <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets> <QtNetwork/QtNetwork>)
voip_precompiled(voip_pch HEADERS ${headers})

# What a test does itself runs once, so it is compiled with less effort; under the sanitizers, where that takes longest, with
# the least, and undefined behaviour is looked for in what is tested. A test that meets a null pointer crashes, which tells.
set(VOIP_TEST_OPTIONS -Wno-null-dereference)
if(VOIP_SANITIZE MATCHES "undefined")
  list(APPEND VOIP_TEST_OPTIONS $<$<CONFIG:RelWithDebInfo>:-O0> -fno-sanitize=undefined)
else()
  list(APPEND VOIP_TEST_OPTIONS $<$<CONFIG:RelWithDebInfo>:-O1>)
endif()
if(VOIP_TESTS)
  voip_precompiled(voip_test_pch HEADERS ${headers} <QtTest/QtTest> OPTIONS ${VOIP_TEST_OPTIONS})
  target_link_libraries(voip_test_pch PRIVATE Qt5::Test)
endif()

if(VOIP_SANITIZE)
  set(sanitize_dir ${PROJECT_SOURCE_DIR}/tests/sanitize)
  add_library(voip_sanitized OBJECT
    ${sanitize_dir}/KeepLibraries.cpp ${sanitize_dir}/LeakCheck.cpp ${sanitize_dir}/OtherThreads.cpp ${sanitize_dir}/OtherThreads.h)
  if(VOIP_SANITIZE MATCHES "address")
    target_sources(voip_sanitized PRIVATE ${sanitize_dir}/OpenSignals.cpp ${sanitize_dir}/QuietFork.cpp)
  endif()
  set_target_properties(voip_sanitized PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  target_compile_options(voip_sanitized PRIVATE -fPIC)
endif()

# Compiler settings of the project's own code. Includes are written from src/ ("store/DB.h").
function(voip_own_code target)
  cmake_parse_arguments(ARG "" "PRECOMPILED" "" ${ARGN})
  if(NOT ARG_PRECOMPILED)
    set(ARG_PRECOMPILED voip_pch)
  endif()
  target_compile_options(${target} PRIVATE ${VOIP_WARNINGS} ${VOIP_COMPILER} -fPIC ${VOIP_PATHS})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${target} PRIVATE voip_qt_headers)
  target_precompile_headers(${target} REUSE_FROM ${ARG_PRECOMPILED})
  get_target_property(type ${target} TYPE)
  if(VOIP_SANITIZE AND type STREQUAL "EXECUTABLE")
    target_link_libraries(${target} PRIVATE voip_sanitized)
  endif()
endfunction()

# voip_library(name SOURCES ... LINKS ...): the static library voip_name, known as Voip::name. It links Qt5::Core without being told.
function(voip_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(voip_${name} STATIC ${ARG_SOURCES})
  add_library(Voip::${name} ALIAS voip_${name})
  voip_own_code(voip_${name})
  target_link_libraries(voip_${name} PUBLIC ${ARG_LINKS} Qt5::Core)
endfunction()

# voip_call_part(name SOURCES ... LINKS ...): the static library voip_name, known as Voip::name, of a program on the call process's
# side of the wire: Qt's core, perhaps its network, and no windows. Includes are written from apps/ ("endpoint/Trace.h"). The first one,
# the endpoint, makes the precompiled header of all.
function(voip_call_part name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(voip_${name} STATIC ${ARG_SOURCES})
  add_library(Voip::${name} ALIAS voip_${name})
  target_compile_options(voip_${name} PRIVATE ${VOIP_WARNINGS} ${VOIP_COMPILER})
  target_compile_definitions(voip_${name} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
  target_include_directories(voip_${name} PUBLIC ${PROJECT_SOURCE_DIR}/apps)
  if(name STREQUAL "endpoint")
    target_precompile_headers(voip_${name} PRIVATE <QtCore/QtCore> <QtNetwork/QtNetwork>)
  else()
    target_precompile_headers(voip_${name} REUSE_FROM voip_endpoint)
    # For a part that has no use for the network, or the precompiled header would not fit it.
    target_include_directories(voip_${name} SYSTEM PRIVATE $<TARGET_PROPERTY:Qt5::Network,INTERFACE_INCLUDE_DIRECTORIES>)
    target_compile_definitions(voip_${name} PRIVATE $<TARGET_PROPERTY:Qt5::Network,INTERFACE_COMPILE_DEFINITIONS>)
  endif()
  target_link_libraries(voip_${name} PUBLIC ${ARG_LINKS} Qt5::Core)
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

# voip_add_test(name COMMAND ... [NEEDS target ...] [TIMEOUT s] [ENV ...] [LABELS ...]): runs the command as a test in a folder, a
# home and a temporary directory of its own, so that sockets and files of two tests never meet. Where VOIP_TEST_SCREEN is set
# it has a screen of its own as well, so that no other test's window covers its windows or moves its cursor; BARE is one
# without a compositor. NEEDS are the targets that `./test --only` builds for it; without them it builds everything.
function(voip_add_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND;NEEDS;ENV;LABELS" ${ARGN})
  set(screen)
  if(VOIP_TEST_SCREEN STREQUAL "BARE")
    set(screen --bare-screen)
  elseif(VOIP_TEST_SCREEN)
    set(screen --screen)
  endif()
  add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/isolated ${screen} ${ARG_COMMAND})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  voip_set_test(${name} TIMEOUT ${ARG_TIMEOUT} ENV ${ARG_ENV} LABELS ${ARG_LABELS})
  if(ARG_NEEDS)
    voip_test_needs(${name} ${ARG_NEEDS})
  endif()
endfunction()

# voip_set_test(name [TIMEOUT s] [ENV ...] [LABELS ...]): what is other for one test. The label slow is for those that
# take longest: `./test --quick` leaves them out.
function(voip_set_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "ENV;LABELS" ${ARGN})
  if(ARG_TIMEOUT)
    if(VOIP_SANITIZE)
      math(EXPR ARG_TIMEOUT "3 * ${ARG_TIMEOUT}")
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
  endif()
  if(ARG_ENV)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT ${ARG_ENV})
  endif()
  if(ARG_LABELS)
    set_property(TEST ${name} APPEND PROPERTY LABELS ${ARG_LABELS})
  endif()
endfunction()

# voip_test_needs(name [target ...]): a row of build/tests/needs, from which ./test knows what to build for the test.
function(voip_test_needs name)
  string(JOIN " " row ${name} ${ARGN})
  set_property(GLOBAL APPEND_STRING PROPERTY VOIP_TEST_NEEDS "${row}\n")
endfunction()

# voip_tests(program CLASSES tst_A topic/tst_B ... [SOURCES ...] LINKS ... [FOLDER ...]): the test program of that name in this
# room (or in FOLDER), of the classes in tst_A.cpp, topic/tst_B.cpp ... and what they share. Each class is a test of its own
# with a process of its own.
function(voip_tests program)
  cmake_parse_arguments(ARG "" "FOLDER" "CLASSES;SOURCES;LINKS" ${ARGN})
  get_filename_component(room ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  set(target ${room}_${program})
  add_executable(${target} ${ARG_SOURCES})
  list(TRANSFORM ARG_CLASSES APPEND .cpp OUTPUT_VARIABLE sources)
  target_sources(${target} PRIVATE ${sources})
  voip_own_code(${target} PRECOMPILED voip_test_pch)
  target_compile_options(${target} PRIVATE ${VOIP_TEST_OPTIONS})
  voip_moc(${target})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${target} PRIVATE ${ARG_LINKS} Voip::testprogram Qt5::Test)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${program})
  if(ARG_FOLDER)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ARG_FOLDER})
  endif()
  foreach(source ${ARG_CLASSES})
    get_filename_component(class ${source} NAME)
    voip_add_test(${class} COMMAND $<TARGET_FILE:${target}> ${class} NEEDS ${target})
  endforeach()
endfunction()
