# Makes one HTML file of the pages of a manual, in the order in which their index names them. A page is
# found there under its name, "#areas", and its place "#draw" under both, "#areas-draw". Is run as a
# script, with CMARK_GFM, PAGES (their folder), LANGUAGE and HTML (the file).

function(convert page result)
  execute_process(COMMAND ${CMARK_GFM} --unsafe -e table ${PAGES}/${page}.md
                  OUTPUT_VARIABLE html COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "<h1>" "<h1 id=\"${page}\">" html "${html}")
  string(REGEX REPLACE "<a id=\"" "<a id=\"${page}-" html "${html}")
  # A heading that is a name, of a hint for instance, is found under that.
  string(REGEX REPLACE "<h([23])><code>([^<]*)</code></h"
         "<h\\1 id=\"${page}-\\2\"><code>\\2</code></h" html "${html}")
  string(REGEX REPLACE "href=\"#" "href=\"#${page}-" html "${html}")
  string(REGEX REPLACE "href=\"([a-z-]+)\\.md#" "href=\"#\\1-" html "${html}")
  string(REGEX REPLACE "href=\"([a-z-]+)\\.md\"" "href=\"#\\1\"" html "${html}")
  set(${result} "<section>\n${html}</section>\n" PARENT_SCOPE)
endfunction()

convert(index body)
file(READ ${PAGES}/index.md index)
string(REGEX MATCHALL "\\([a-z-]+\\.md\\)" pages "${index}")
list(REMOVE_DUPLICATES pages)
foreach(page IN LISTS pages)
  string(REGEX REPLACE "[(](.*)\\.md[)]" "\\1" page "${page}")
  convert(${page} html)
  string(APPEND body "${html}")
endforeach()
string(REGEX MATCH "^# ([^\n]*)" headline "${index}")
set(TITLE "${CMAKE_MATCH_1}")
set(BODY "${body}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/manual.html.in ${HTML} @ONLY)
