# The manuals beside the programs, as Debian wants them: the pages of the programs and the changelog packed, and the documents
# that one reads without the sources.
set(manuals share/doc/kelvarim-voip)
install(
  FILES
    share/doc/copyright
    ${PROJECT_SOURCE_DIR}/docs/call-process-kit.md
    ${PROJECT_SOURCE_DIR}/docs/host-contract.md
    ${PROJECT_SOURCE_DIR}/docs/real-calls.md
    ${PROJECT_SOURCE_DIR}/docs/scenario-language.md
    ${PROJECT_SOURCE_DIR}/docs/server-addresses.md
    ${PROJECT_SOURCE_DIR}/docs/wire-protocol.md
  DESTINATION ${manuals})

find_program(VOIP_GZIP gzip REQUIRED)
# packed_file(file folder [component]): installs the file into the folder, packed without name and time.
function(packed_file file folder)
  set(component voip)
  if(ARGC GREATER 2)
    set(component ${ARGV2})
  endif()
  get_filename_component(name ${file} NAME)
  configure_file(${file} ${CMAKE_CURRENT_BINARY_DIR}/${component}/${name})
  execute_process(COMMAND ${VOIP_GZIP} -9nf ${CMAKE_CURRENT_BINARY_DIR}/${component}/${name} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${component}/${name}.gz DESTINATION ${folder} COMPONENT ${component})
endfunction()
packed_file(share/doc/changelog ${manuals})
foreach(program kelvarim-callcheck kelvarim-demo kelvarim-gallery VoipSDK)
  packed_file(share/man/man1/${program}.1 share/man/man1)
endforeach()
packed_file(share/man/man5/calls.ini.5 share/man/man5)

if(TARGET kelvarim-calls)
  set(manuals share/doc/kelvarim-voip-calls)
  install(FILES share/doc/calls/copyright DESTINATION ${manuals} COMPONENT calls)
  install(
    FILES
      ${PROJECT_SOURCE_DIR}/apps/calls/settings/calls.ini
      ${PROJECT_BINARY_DIR}/apps/calls/exchange/kamailio.cfg
    DESTINATION ${manuals}/examples
    COMPONENT calls)
  packed_file(share/doc/calls/changelog ${manuals} calls)
  foreach(program kelvarim-calls kelvarim-exchange)
    packed_file(share/man/man1/${program}.1 share/man/man1 calls)
  endforeach()
endif()
