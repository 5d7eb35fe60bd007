# What belongs to the installation as a whole; programs and run-time files have their rules where they are built.
# gxhost looks for the module in `../lib/gradix` and for the run-time files in `../share/gradix`, seen from its own
# folder: both are fixed, whatever the distribution's folder of libraries is called.
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(module_folder lib/gradix)

install(FILES include/gradix/QZFilter.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/gradix)

# Finds its prefix from its own place, so that the installed tree can be moved.
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgconfig_folder} OUTPUT_VARIABLE to_prefix)
configure_file(${packaging}/gradix-filter.pc.in gradix-filter.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/gradix-filter.pc DESTINATION ${pkgconfig_folder})

if(TARGET GX_StdCsv)
  install(TARGETS GX_StdCsv LIBRARY DESTINATION ${module_folder})
endif()
if(TARGET gxhost)
  install(FILES ${packaging}/man/gxhost.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${packaging}/gradix.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${packaging}/icons/gradix.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
