# The manual: of the pages in docs/manual/LANGUAGE one HTML file with its pictures beside it, as they are
# installed and as the programs of a build find them, too.

find_program(CMARK_GFM cmark-gfm REQUIRED)

set(manual share/plinkett/manual)
set(manual_files)
foreach(language en de)
  set(pages_folder ${CMAKE_SOURCE_DIR}/docs/manual/${language})
  file(GLOB pages CONFIGURE_DEPENDS ${pages_folder}/*.md)
  set(html ${CMAKE_BINARY_DIR}/${manual}/${language}/index.html)
  add_custom_command(
    OUTPUT ${html}
    COMMAND ${CMAKE_COMMAND} -DCMARK_GFM=${CMARK_GFM} -DPAGES=${pages_folder} -DLANGUAGE=${language}
            -DHTML=${html} -P ${CMAKE_SOURCE_DIR}/cmake/make-manual.cmake
    DEPENDS ${pages} ${CMAKE_SOURCE_DIR}/cmake/make-manual.cmake
            ${CMAKE_SOURCE_DIR}/cmake/manual.html.in
    VERBATIM)
  list(APPEND manual_files ${html})
  if(EXISTS ${pages_folder}/images)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/${manual}/${language})
    file(CREATE_LINK ${pages_folder}/images ${CMAKE_BINARY_DIR}/${manual}/${language}/images
         COPY_ON_ERROR SYMBOLIC)
    install(DIRECTORY ${pages_folder}/images DESTINATION ${manual}/${language}
            FILES_MATCHING PATTERN "*.png")
  endif()
  install(FILES ${html} DESTINATION ${manual}/${language})
endforeach()
add_custom_target(manual ALL DEPENDS ${manual_files})
