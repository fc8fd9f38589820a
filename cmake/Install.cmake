# cmake --install BUILD --prefix PREFIX: the programs, with the speech program where a build looks for
# it, what a desktop needs to open a project file with a double click, and what man and bash know of them.

# All texts that are made for the installation.
add_custom_target(installed_texts ALL)

# What a program prints for an option becomes a file in the folder install of the build.
function(plinkett_printed program option file)
  set(output ${CMAKE_BINARY_DIR}/install/${file})
  add_custom_command(OUTPUT ${output} COMMAND ${program} ${option} > ${output} DEPENDS ${program}
                     VERBATIM)
  add_custom_target(text_${file} DEPENDS ${output})
  add_dependencies(installed_texts text_${file})
endfunction()

# Installs a file as NAME.gz, which says nothing about when and where it was made.
function(plinkett_compressed name file folder)
  set(output ${CMAKE_BINARY_DIR}/install/${name}.gz)
  add_custom_command(OUTPUT ${output} COMMAND gzip -9nc ${file} > ${output} DEPENDS ${file} VERBATIM)
  add_custom_target(text_${name}.gz DEPENDS ${output})
  add_dependencies(installed_texts text_${name}.gz)
  install(FILES ${output} DESTINATION ${folder})
endfunction()

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
  install(FILES ${desktop}/org.plinkett.plinkett.metainfo.xml DESTINATION share/metainfo)

  # What the programs say about themselves, as they are built.
  plinkett_printed(plinkett --man plinkett.1)
  plinkett_compressed(plinkett.1 ${CMAKE_BINARY_DIR}/install/plinkett.1 share/man/man1)
  plinkett_printed(plinkett-cli --man plinkett-cli.1)
  plinkett_compressed(plinkett-cli.1 ${CMAKE_BINARY_DIR}/install/plinkett-cli.1 share/man/man1)
  plinkett_printed(plinkett-cli --completion plinkett-cli.bash)
  install(FILES ${CMAKE_BINARY_DIR}/install/plinkett-cli.bash
          DESTINATION share/bash-completion/completions RENAME plinkett-cli)
  include(Package)

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
