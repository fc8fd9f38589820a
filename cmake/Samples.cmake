# The sample books: a folder for each language, and in it one for each book, as they are installed and
# as the programs of a build find them, too. examples/farm is the English book, examples/farm-de the
# German one.

set(samples share/plinkett/samples)
set(sample_books farm quiz dictionary)

function(plinkett_sample folder language book)
  set(source ${CMAKE_SOURCE_DIR}/examples/${folder})
  # Not the drawings, from which the pictures were made.
  install(DIRECTORY ${source}/ DESTINATION ${samples}/${language}/${book}
          PATTERN "*.svg" EXCLUDE PATTERN README.md EXCLUDE)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/${samples}/${language})
  file(CREATE_LINK ${source} ${CMAKE_BINARY_DIR}/${samples}/${language}/${book}
       COPY_ON_ERROR SYMBOLIC)
endfunction()

foreach(book ${sample_books})
  plinkett_sample(${book} en ${book})
  plinkett_sample(${book}-de de ${book})
endforeach()
