# Installs the build tree BUILD into PREFIX, which is emptied first: a header that is no longer installed must not be
# found there.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The library cannot be installed.")
endif()
