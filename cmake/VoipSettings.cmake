# What holds for every target: language level, where files go, the precompiled Qt headers, ccache where present.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
# Every target passes -fPIC itself, executables too, or the one precompiled header would not fit them all.
set(CMAKE_POSITION_INDEPENDENT_CODE OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)

if(PROJECT_IS_TOP_LEVEL)
  if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
  endif()
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1 -DNDEBUG")
endif()
# The module says the same of itself in every build, "debug": false in its metadata; Q_ASSERT stays in force.
add_compile_definitions($<$<CONFIG:Debug>:QT_NO_DEBUG> $<$<CONFIG:Debug>:QT_FORCE_ASSERTS>)

option(VOIP_COVERAGE "Count what the tests reach, for tools/coverage" OFF)
if(VOIP_COVERAGE)
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1 -DNDEBUG")
  add_compile_options(--coverage -fprofile-update=atomic $<$<COMPILE_LANGUAGE:CXX>:-Wno-error>)
  add_link_options(--coverage)
endif()

# Sanitizers for everything that is built here, Qt and the other libraries stay as they are. The compiler warns of paths that
# only its own checks make, so here warnings do not end the build.
set(VOIP_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them: address,undefined or thread")
if(VOIP_SANITIZE)
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1")
  add_compile_options(
    -fsanitize=${VOIP_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer $<$<COMPILE_LANGUAGE:CXX>:-Wno-error>)
  add_link_options(-fsanitize=${VOIP_SANITIZE})
endif()

# The demo client, the plug-in and what ships beside them stand together, laid out as at run time.
set(VOIP_BIN_DIR ${PROJECT_BINARY_DIR}/bin)

find_program(VOIP_CCACHE ccache)
if(VOIP_CCACHE)
  # Precompiled headers need the relaxed checks, or every compile is a miss.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${VOIP_CCACHE})
endif()
