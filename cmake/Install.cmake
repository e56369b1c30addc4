# What `cmake --install` puts where, in components that are the packages:
#   library   libplot3d and libquorhost, with the add-on for other hosts
#   develop   headers, config files for find_package and pkg-config
#   programs  plot3d, quorhost, plot3d-sample, man page, completions
#   render    libplot3dscene, which plot3d render loads
#   desktop   quorhost-desktop, its entry in menus, icon, patterns of file names
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# An installed tree can be moved: programs and libraries find each other by relative paths.
function(find_libraries_beside folder)
  file(RELATIVE_PATH way "/${folder}" "/${CMAKE_INSTALL_LIBDIR}")
  foreach(target IN LISTS ARGN)
    if(way STREQUAL "")
      set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    else()
      set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${way}")
    endif()
  endforeach()
endfunction()

set(config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/plot3d)
set(addon_folder ${CMAKE_INSTALL_LIBDIR}/plot3d) # where host/session/AddOnPath and program/render look

find_libraries_beside(${CMAKE_INSTALL_LIBDIR} plot3d quorhost_sdk)
install(TARGETS plot3d quorhost_sdk EXPORT plot3dTargets
    LIBRARY COMPONENT library NAMELINK_COMPONENT develop)
install(TARGETS plot3dloader LIBRARY DESTINATION ${addon_folder} COMPONENT library)

install(DIRECTORY library/include/plot3d DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT develop)
install(EXPORT plot3dTargets NAMESPACE plot3d:: DESTINATION ${config_folder} COMPONENT develop)
configure_package_config_file(packaging/plot3dConfig.cmake.in ${CMAKE_BINARY_DIR}/plot3dConfig.cmake
    INSTALL_DESTINATION ${config_folder} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/plot3dConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/plot3dConfig.cmake ${CMAKE_BINARY_DIR}/plot3dConfigVersion.cmake
    DESTINATION ${config_folder} COMPONENT develop)
file(RELATIVE_PATH PLOT3D_PREFIX_FROM_PC "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file(packaging/plot3d.pc.in ${CMAKE_BINARY_DIR}/plot3d.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/plot3d.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT develop)
install(DIRECTORY library/example/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/example COMPONENT develop)

find_libraries_beside(${CMAKE_INSTALL_BINDIR} plot3d_program quorhost)
install(TARGETS plot3d_program quorhost plot3d-sample RUNTIME COMPONENT programs)
# Help, man page and completions are made from what the commands declare.
set(pages ${CMAKE_BINARY_DIR}/pages)
add_custom_command(OUTPUT ${pages}/plot3d.1 ${pages}/plot3d ${pages}/_plot3d
    COMMAND ${CMAKE_COMMAND} -E make_directory ${pages}
    COMMAND plot3d_program --man > ${pages}/plot3d.1
    COMMAND plot3d_program --completion bash > ${pages}/plot3d
    COMMAND plot3d_program --completion zsh > ${pages}/_plot3d
    DEPENDS plot3d_program
    VERBATIM)
add_custom_target(pages ALL DEPENDS ${pages}/plot3d.1)
install(FILES ${pages}/plot3d.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT programs)
install(FILES ${pages}/plot3d
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT programs)
install(FILES ${pages}/_plot3d
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT programs)

if(TARGET plot3dscene)
  find_libraries_beside(${addon_folder} plot3dscene)
  install(TARGETS plot3dscene LIBRARY DESTINATION ${addon_folder} COMPONENT render)
endif()

if(PLOT3D_BUILD_DESKTOP)
  find_libraries_beside(${CMAKE_INSTALL_BINDIR} quorhost-desktop)
  install(TARGETS quorhost-desktop RUNTIME COMPONENT desktop)
  install(FILES packaging/quorhost-desktop.desktop
      DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT desktop)
  install(FILES packaging/plot3d.xml
      DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT desktop)
  install(FILES packaging/plot3d.svg
      DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT desktop)
endif()
