# The Debian packages: what is installed, under the names and with the dependencies below. The second one is there where the
# SIP library is.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL voip)
set(CPACK_PACKAGE_NAME kelvarim-voip)
set(CPACK_DEBIAN_VOIP_PACKAGE_NAME kelvarim-voip)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR KelvarIM)
set(CPACK_PACKAGE_CONTACT "KelvarIM calls <calls@im.example.org>")
# The first line is the summary.
set(CPACK_COMPONENT_VOIP_DESCRIPTION
    "voice and video calls for KelvarIM: plug-in, host kit, demo client
The plug-in that gives the KelvarIM desktop client its calls, with the headers
and the archive for programs that load it, a demo client that tries every way
a call can go against a stand-in call process, and a gallery of the widgets.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
# What the programs link is read from them; these are loaded at run time.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_VOIP_PACKAGE_DEPENDS "libqt5multimedia5-plugins, libqt5sql5-sqlite, qttranslations5-l10n")
set(CPACK_DEBIAN_VOIP_PACKAGE_RECOMMENDS "fonts-noto-cjk")
# For building a host.
set(CPACK_DEBIAN_VOIP_PACKAGE_SUGGESTS "cmake, g++, libjsoncpp-dev, qtbase5-dev")
if(TARGET kelvarim-calls)
  list(APPEND CPACK_COMPONENTS_ALL calls)
  set(CPACK_DEBIAN_CALLS_PACKAGE_NAME kelvarim-voip-calls)
  set(CPACK_COMPONENT_CALLS_DESCRIPTION "calls between people for KelvarIM
The call process that signs in at an exchange and calls people, in the place
of the stand-in call process. It links liblinphone, and is under the GNU
General Public License, version 3 or later, for that.")
  set(CPACK_DEBIAN_CALLS_PACKAGE_DEPENDS "kelvarim-voip (= ${PROJECT_VERSION})")
  # For an exchange of one's own; the certificates of others'. Whose server is set needs no Kamailio, which brings a service.
  set(CPACK_DEBIAN_CALLS_PACKAGE_RECOMMENDS "ca-certificates, kamailio, kamailio-tls-modules")
endif()
# CPack takes the module, one folder below lib, for a library that every program links, and would renew the linker's cache for
# it. It writes no script of a name that it is given a file for, and packs no file that is not there.
set(CPACK_DEBIAN_VOIP_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/none/postinst ${CMAKE_CURRENT_BINARY_DIR}/none/postrm)
include(CPack)
