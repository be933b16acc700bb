# Tests of the editor support in editors/: highlighting, indentation and the
# reading of the command's gnu messages, each in the editor itself (vim and
# Emacs run headless) or in the engine VS Code uses (vscode-textmate).  An
# editor that is not installed is reported and its tests are not registered;
# scripts/install-deps.sh installs them all.
set(LUMERIC_EDITORS_DIR ${PROJECT_SOURCE_DIR}/editors)
set(LUMERIC_EDITOR_TESTS ${CMAKE_CURRENT_LIST_DIR})
set(LUMERIC_EDITOR_MESSAGES ${CMAKE_CURRENT_BINARY_DIR}/editors/broken.gnu)

# The messages the command prints for a broken scene, which the message
# tests of every editor read.
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/editors)
add_test(NAME editors.messages
  COMMAND ${LUMERIC_EDITOR_TESTS}/messages/generate.sh $<TARGET_FILE:lumeric_cli> ${LUMERIC_EDITOR_MESSAGES})
set_tests_properties(editors.messages PROPERTIES FIXTURES_SETUP lumeric_editor_messages)

find_program(LUMERIC_VIM vim)
if(LUMERIC_VIM)
  set(lumeric_vim ${LUMERIC_VIM} -es -N -u NONE -i NONE --cmd "let g:editors = '${LUMERIC_EDITORS_DIR}/vim'")
  add_test(NAME editors.vim.syntax
    COMMAND ${lumeric_vim} -S ${LUMERIC_EDITOR_TESTS}/vim/syntax_test.vim)
  add_test(NAME editors.vim.indent
    COMMAND ${lumeric_vim} --cmd "let g:examples = '${PROJECT_SOURCE_DIR}/examples'"
      -S ${LUMERIC_EDITOR_TESTS}/vim/indent_test.vim)
  add_test(NAME editors.vim.errorformat
    COMMAND ${lumeric_vim} --cmd "let g:cli_messages = '${LUMERIC_EDITOR_MESSAGES}'"
      -S ${LUMERIC_EDITOR_TESTS}/vim/errorformat_test.vim)
  set_tests_properties(editors.vim.errorformat PROPERTIES FIXTURES_REQUIRED lumeric_editor_messages)
  set_tests_properties(editors.vim.syntax editors.vim.indent editors.vim.errorformat PROPERTIES TIMEOUT 60)
else()
  message(STATUS "vim not found: the vim editor tests are not registered (run scripts/install-deps.sh)")
endif()

find_program(LUMERIC_EMACS emacs)
if(LUMERIC_EMACS)
  add_test(NAME editors.emacs
    COMMAND ${LUMERIC_EMACS} --batch -Q
      -l ${LUMERIC_EDITORS_DIR}/emacs/lumeric-mode.el
      -l ${LUMERIC_EDITOR_TESTS}/emacs/lumeric-mode-test.el
      --eval "(setq lumeric-test-messages \"${LUMERIC_EDITOR_MESSAGES}\" lumeric-test-examples \"${PROJECT_SOURCE_DIR}/examples\")"
      -f ert-run-tests-batch-and-exit)
  set_tests_properties(editors.emacs PROPERTIES FIXTURES_REQUIRED lumeric_editor_messages TIMEOUT 60)
else()
  message(STATUS "emacs not found: the Emacs editor tests are not registered (run scripts/install-deps.sh)")
endif()

find_program(LUMERIC_NODE node)
if(LUMERIC_NODE)
  # The grammar test reads the extension's package.json from its folder;
  # install-deps.sh installs the test tool there with npm ci.
  add_test(NAME editors.vscode.grammar
    COMMAND ${LUMERIC_NODE} node_modules/vscode-tmgrammar-test/dist/unit.js
      ${LUMERIC_EDITOR_TESTS}/grammar/*.vlm
    WORKING_DIRECTORY ${LUMERIC_EDITORS_DIR}/vscode)
  add_test(NAME editors.vscode.extension
    COMMAND ${LUMERIC_NODE} --test ${LUMERIC_EDITOR_TESTS}/vscode/extension.test.js)
  set_tests_properties(editors.vscode.extension PROPERTIES
    FIXTURES_REQUIRED lumeric_editor_messages
    ENVIRONMENT "LUMERIC_MESSAGES=${LUMERIC_EDITOR_MESSAGES}")
  set_tests_properties(editors.vscode.grammar editors.vscode.extension PROPERTIES TIMEOUT 60)
else()
  message(STATUS "node not found: the VS Code editor tests are not registered (run scripts/install-deps.sh)")
endif()
