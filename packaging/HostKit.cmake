# What a host builds with, here and once installed.

# The headers that hosts include; what these include goes with them. The demo client gets by with them.
set(VOIP_HOST_HEADERS
    common/AppInfo.h
    common/AppPaths.h
    common/BuiltInPictures.h
    common/CLogManger.h
    common/CLogThread.h
    common/CommonFun.h
    common/CServerSettings.h
    common/CustomLogger.h
    common/log/QtWarningFilter.h
    common/Palette.h
    model/AvatarFiles.h
    model/CommonData.h
    model/LoginData.h
    model/MemberRoles.h
    model/SharedContext.h
    model/StoreFileName.h
    model/SystemSetData.h
    model/SysUIData.h
    plugin/BaseEvent.h
    plugin/CallResult.h
    plugin/EMsgId.h
    plugin/EventPayload.h
    plugin/HostEvents.h
    plugin/PluginIds.h
    plugin/PluginInterface.h
    store/DB.h
    store/DBConfInfo.h
    store/SqliteCode.h
    wire/Commands.h
    wire/Notifications.h
    wire/SocketProbe.h)
# Where they stand: below src/, or below the floor whose folder takes theirs in.
set(header_roots ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/src/commonfun)
set(installed_headers)
set(header_files)
while(VOIP_HOST_HEADERS)
  list(POP_FRONT VOIP_HOST_HEADERS header)
  list(APPEND installed_headers ${header})
  find_file(file ${header} PATHS ${header_roots} NO_CACHE REQUIRED NO_DEFAULT_PATH)
  list(APPEND header_files ${file})
  file(STRINGS ${file} includes REGEX "^#include \"")
  foreach(include ${includes})
    string(REGEX REPLACE "^#include \"(.*)\".*" "\\1" include ${include})
    list(APPEND VOIP_HOST_HEADERS ${include})
  endforeach()
  list(REMOVE_DUPLICATES VOIP_HOST_HEADERS)
  list(REMOVE_ITEM VOIP_HOST_HEADERS ${installed_headers})
  # A changed header may include another one.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  unset(file)
endwhile()

# The floors behind these headers as one archive.
set(objects)
foreach(floor common model commonfun hostlink store)
  list(APPEND objects $<TARGET_OBJECTS:voip_${floor}>)
endforeach()
add_library(voip_host_kit STATIC ${objects})
add_library(KelvarIMVoip::host ALIAS voip_host_kit)
set_target_properties(voip_host_kit PROPERTIES
  AUTOMOC OFF
  AUTOUIC OFF
  LINKER_LANGUAGE CXX
  OUTPUT_NAME KelvarIMVoipHost
  EXPORT_NAME host)
# What a debugger would read is of no use without the sources, and names the folder that it was built in.
add_custom_command(TARGET voip_host_kit POST_BUILD
  COMMAND ${CMAKE_STRIP} --strip-debug $<TARGET_FILE:voip_host_kit>
  VERBATIM)
target_compile_features(voip_host_kit INTERFACE cxx_std_17)
target_include_directories(voip_host_kit INTERFACE
  "$<BUILD_INTERFACE:${header_roots}>" $<INSTALL_INTERFACE:${headers}>)
target_link_libraries(voip_host_kit INTERFACE
  Qt5::Core Qt5::Gui Qt5::Widgets Qt5::Network Qt5::Sql Qt5::Xml JsonCpp::JsonCpp)

# A build that takes this one in finds the function and the folder that an installed package has.
set(KelvarIMVoip_RUN_TIME_DIR ${VOIP_BIN_DIR} CACHE INTERNAL "The module, the call process and the resources")
include(KelvarIMVoipBeside.cmake)
