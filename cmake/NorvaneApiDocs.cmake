# The API reference of the installed headers, where Doxygen is installed: the target api_docs, and a test that fails
# when anything in it lacks a comment.

find_package(Doxygen QUIET)
if(NOT TARGET Doxygen::doxygen)
    return()
endif()

set(NORVANE_API_OUTPUT ${PROJECT_BINARY_DIR}/docs/api)
set(NORVANE_API_INPUT "\"${PROJECT_SOURCE_DIR}/docs/api/main.md\"")
foreach(header IN LISTS public_headers)
    string(APPEND NORVANE_API_INPUT " \\\n    \"${PROJECT_SOURCE_DIR}/${header}\"")
endforeach()
configure_file(${PROJECT_SOURCE_DIR}/docs/api/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
file(MAKE_DIRECTORY ${NORVANE_API_OUTPUT})

add_custom_target(api_docs COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/docs/Doxyfile VERBATIM)
if(NORVANE_TESTS)
    add_test(NAME api_docs COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/docs/Doxyfile)
endif()
