# kelvarim_voip_beside(target): after each link of the executable, links to the module, the call process and the resources
# stand beside it. In a build that makes these itself they are made first; the call process is left out where that build
# makes none.
function(kelvarim_voip_beside target)
  set(items libVoipManage.so VoipSDK Resources)
  if(TARGET VoipManageCore)
    add_dependencies(${target} VoipManage voip_resources)
    if(TARGET VoipSDK)
      add_dependencies(${target} VoipSDK)
    else()
      list(REMOVE_ITEM items VoipSDK)
    endif()
  endif()
  foreach(item ${items})
    add_custom_command(TARGET ${target} POST_BUILD
      COMMAND ${CMAKE_COMMAND} -E create_symlink ${KelvarIMVoip_RUN_TIME_DIR}/${item} $<TARGET_FILE_DIR:${target}>/${item}
      VERBATIM)
  endforeach()
endfunction()
