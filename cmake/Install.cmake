# What `cmake --install` puts where, in three components: `runtime` (the library), `development`
# (headers, link name, CMake package, pkg-config file, manual) and `viewer` (almara-board).
include(CMakePackageConfigHelpers)

install(TARGETS almara EXPORT almaraTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT runtime NAMELINK_COMPONENT development)

set(left_out)
if(NOT TARGET almara_plugin_objects)
  # Its functions are in the library only if the embedding was there to build them against.
  set(left_out PATTERN almara_plugin.h EXCLUDE)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/almara DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  COMPONENT development FILES_MATCHING PATTERN *.h ${left_out})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/almara)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/almaraConfig.cmake.in
  ${PROJECT_BINARY_DIR}/almaraConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/almaraConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(EXPORT almaraTargets NAMESPACE almara:: DESTINATION ${package_dir} COMPONENT development)
install(FILES
  ${PROJECT_BINARY_DIR}/almaraConfig.cmake ${PROJECT_BINARY_DIR}/almaraConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

# Paths from the folder of the pkg-config file, so that an installed tree can be moved as a whole.
set(pkgconfig_dir ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH ALMARA_PC_PREFIX ${pkgconfig_dir} ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH ALMARA_PC_LIBDIR ${pkgconfig_dir} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH ALMARA_PC_INCLUDEDIR ${pkgconfig_dir} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
configure_file(${CMAKE_CURRENT_LIST_DIR}/almara.pc.in ${PROJECT_BINARY_DIR}/almara.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/almara.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/docs/man/almara.3
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 COMPONENT development)

if(TARGET almara-board)
  # Beside its library the viewer runs from any prefix.
  file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(almara-board PROPERTIES INSTALL_RPATH $ORIGIN/${bin_to_lib})
  install(TARGETS almara-board RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT viewer)
  install(FILES ${PROJECT_SOURCE_DIR}/docs/man/almara-board.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT viewer)
  if(TARGET almara_board_completions)
    set(completions ${PROJECT_BINARY_DIR}/viewer/completions)
    install(FILES ${completions}/bash/almara-board
      DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT viewer)
    install(FILES ${completions}/zsh/_almara-board
      DESTINATION ${ALMARA_ZSH_COMPLETIONS} COMPONENT viewer)
    install(FILES ${completions}/fish/almara-board.fish
      DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT viewer)
  endif()
endif()
