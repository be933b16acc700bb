# The playground in headless Chromium (web/test/playground.test.mjs) against
# the site `make web` builds into build/web/; `make test` builds it first.
# Reported as skipped, not passed, when the site has not been built.
add_test(NAME web.playground
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/run_playground_test.sh ${PROJECT_SOURCE_DIR}/build/web $<TARGET_FILE:lumeric_cli>)
set_tests_properties(web.playground PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 600)

# The playground's highlighting against the cases the other editors' tests
# share; needs only the playground's Node packages.
add_test(NAME web.highlight
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/run_node_test.sh ${PROJECT_SOURCE_DIR}/web/test/highlight.test.mjs)
set_tests_properties(web.highlight PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 120)
