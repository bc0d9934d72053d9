# Installs the programs and the files that register them with the desktop.
include(GNUInstallDirs)

foreach(program glimmerpane gpicon)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  endif()
endforeach()

if(TARGET glimmerpane)
  set(resources ${CMAKE_SOURCE_DIR}/resources)
  install(FILES ${resources}/glimmerpane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${resources}/glimmerpane-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME glimmerpane.xml)
  install(FILES ${resources}/com.zorvexlattice.Glimmerpane.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${resources}/app/glimmerpane.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
