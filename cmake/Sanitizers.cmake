# PLINKETT_SANITIZE names the sanitizers; everything we build and link gets them.
if(PLINKETT_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(PLINKETT_SANITIZE)
  add_compile_options(-fsanitize=${PLINKETT_SANITIZE} -fno-omit-frame-pointer
                      -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${PLINKETT_SANITIZE})
endif()
