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
  install(FILES ${packaging}/metainfo/example.gradix.gradix.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${packaging}/mime/gradix.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)

  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES ${packaging}/icons/gradix.svg DESTINATION ${icons}/scalable/apps)
  install(FILES ${packaging}/icons/application-x-gradix-class+xml.svg DESTINATION ${icons}/scalable/mimetypes)
  foreach(size 16 22 24 32 48 64 128 256) # drawn by scripts/icons
    install(FILES ${packaging}/icons/gradix-${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME gradix.png)
  endforeach()
endif()
