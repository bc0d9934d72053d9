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

if(TARGET gpicon)
  set(pages ${CMAKE_BINARY_DIR}/pages)
  file(MAKE_DIRECTORY ${pages})
  add_custom_command(
    OUTPUT ${pages}/gpicon.1 ${pages}/gpicon ${pages}/_gpicon ${pages}/gpicon.fish
    COMMAND gpicon manual > ${pages}/gpicon.1
    COMMAND gpicon completions bash > ${pages}/gpicon
    COMMAND gpicon completions zsh > ${pages}/_gpicon
    COMMAND gpicon completions fish > ${pages}/gpicon.fish
    DEPENDS gpicon
    COMMENT "Writing the manual page and the completions of gpicon"
    VERBATIM)
  add_custom_target(gpicon_pages ALL DEPENDS ${pages}/gpicon.1)
  install(FILES ${pages}/gpicon.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${pages}/gpicon DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES ${pages}/_gpicon DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
  install(FILES ${pages}/gpicon.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endif()
