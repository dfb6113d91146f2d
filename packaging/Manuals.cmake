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

install(
  FILES
    ${PROJECT_SOURCE_DIR}/apps/calls/settings/calls.ini
    ${PROJECT_BINARY_DIR}/apps/calls/exchange/kamailio.cfg
  DESTINATION ${manuals}/examples)

find_program(VOIP_GZIP gzip REQUIRED)
# packed_file(file folder): installs the file into the folder, packed without name and time.
function(packed_file file folder)
  get_filename_component(name ${file} NAME)
  configure_file(${file} ${CMAKE_CURRENT_BINARY_DIR}/${name})
  execute_process(COMMAND ${VOIP_GZIP} -9nf ${CMAKE_CURRENT_BINARY_DIR}/${name} COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz DESTINATION ${folder})
endfunction()
packed_file(share/doc/changelog ${manuals})
foreach(program kelvarim-callcheck kelvarim-demo kelvarim-exchange kelvarim-gallery VoipSDK)
  packed_file(share/man/man1/${program}.1 share/man/man1)
endforeach()
packed_file(share/man/man5/calls.ini.5 share/man/man5)
