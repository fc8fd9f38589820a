# What Windows shows of a program and how it treats it: icon, version and manifest.
#   plinkett_windows_resource(plinkett-cli "Plinkett on the command line")
function(plinkett_windows_resource program description)
  if(NOT WIN32)
    return()
  endif()
  set(manifest ${CMAKE_SOURCE_DIR}/src/app/windows/program.manifest)
  set(icon ${CMAKE_BINARY_DIR}/plinkett.ico)
  set(resource ${CMAKE_BINARY_DIR}/resources/${program}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/src/app/windows/program.rc.in ${resource} @ONLY)
  set_source_files_properties(${resource} PROPERTIES OBJECT_DEPENDS "${icon};${manifest}")
  target_sources(${program} PRIVATE ${resource})
  add_dependencies(${program} windows_icon)
endfunction()

# The icon of the desktop in the sizes that Windows asks for.
if(WIN32)
  enable_language(RC)
  find_program(RSVG_CONVERT rsvg-convert REQUIRED)
  find_program(ICOTOOL icotool REQUIRED)
  set(drawing ${CMAKE_SOURCE_DIR}/src/app/icons/plinkett.svg)
  foreach(size 16 24 32 48 64 256)
    set(picture ${CMAKE_BINARY_DIR}/resources/plinkett-${size}.png)
    add_custom_command(OUTPUT ${picture} DEPENDS ${drawing} VERBATIM
                       COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/resources
                       COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${picture} ${drawing})
    list(APPEND pictures ${picture})
  endforeach()
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/plinkett.ico DEPENDS ${pictures} VERBATIM
                     COMMAND ${ICOTOOL} --create --output ${CMAKE_BINARY_DIR}/plinkett.ico ${pictures})
  add_custom_target(windows_icon DEPENDS ${CMAKE_BINARY_DIR}/plinkett.ico)
endif()
