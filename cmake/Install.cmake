# cmake --install BUILD --prefix PREFIX: the programs, with the speech program where a build looks for
# it, and what a desktop needs to open a project file with a double click.

set(programs libexec/plinkett)
install(TARGETS plinkett plinkett-cli DESTINATION ${programs})
install(TARGETS Text2Speech DESTINATION ${programs}/tools/text2speech_win)

if(UNIX)
  foreach(program plinkett plinkett-cli)
    set(link ${CMAKE_BINARY_DIR}/install/${program})
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/install)
    file(CREATE_LINK ../${programs}/${program} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION bin)
  endforeach()

  set(desktop ${CMAKE_SOURCE_DIR}/src/app/desktop)
  # The desktop entry names the program by its whole path: ~/.local/bin is not in every PATH.
  install(CODE "configure_file(\"${desktop}/plinkett.desktop.in\"
    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/share/applications/plinkett.desktop\" @ONLY)")
  install(FILES ${desktop}/plinkett.xml DESTINATION share/mime/packages)
  install(FILES ${CMAKE_SOURCE_DIR}/src/app/icons/plinkett.svg
          DESTINATION share/icons/hicolor/scalable/apps)

  # The desktop's own indexes; a packager's DESTDIR is not where they are.
  install(CODE [[
    if(NOT DEFINED ENV{DESTDIR})
      foreach(index update-mime-database/mime update-desktop-database/applications)
        get_filename_component(folder ${index} NAME)
        get_filename_component(command ${index} DIRECTORY)
        find_program(${command} ${command})
        if(${command})
          execute_process(COMMAND ${${command}} ${CMAKE_INSTALL_PREFIX}/share/${folder})
        endif()
      endforeach()
    endif()]])
endif()
