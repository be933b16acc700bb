# The playground in headless Chromium (web/test/playground.test.mjs) against
# the site `make web` builds into build/web/; `make test` builds it first.
# Reported as skipped, not passed, when the site has not been built.
add_test(NAME web.playground
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/run_playground_test.sh ${PROJECT_SOURCE_DIR}/build/web)
set_tests_properties(web.playground PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 600)
