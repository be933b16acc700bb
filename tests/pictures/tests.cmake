# Silhouettes of a few scenes drawn by the VRML viewer from the translation
# and by three.js from the glTF export must agree (silhouettes.sh states the
# bound).  Skipped while the command writes no glTF or a viewer is missing.
add_test(NAME pictures.silhouettes
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/silhouettes.sh $<TARGET_FILE:lumeric_cli>)
set_tests_properties(pictures.silhouettes PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 300)
