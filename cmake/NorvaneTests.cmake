# norvane_add_test(tst_Name [INTERNAL] [ACCESSIBLE] [HEADLESS] [SOURCES more.cpp...] [LABELS label...])
#
# Builds tst_Name.cpp and registers it with CTest. INTERNAL gives it the classes that the shared library keeps to
# itself. ACCESSIBLE runs it where assistive technology is listening. HEADLESS lets it run beside others: it needs no
# desktop, which is one test's at a time. A Qt warning that the test did not announce with QTest::ignoreMessage() is a
# failure.
function(norvane_add_test name)
    cmake_parse_arguments(TEST "INTERNAL;ACCESSIBLE;HEADLESS" "" "SOURCES;LABELS" ${ARGN})
    add_executable(${name} ${name}.cpp ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    if(TEST_INTERNAL)
        target_link_libraries(${name} PRIVATE core_internals)
    else()
        target_link_libraries(${name} PRIVATE Norvane::core)
    endif()
    target_link_libraries(${name} PRIVATE norvane_qt_test)
    norvane_warnings(${name})
    if(TEST_ACCESSIBLE)
        add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/support/accessible $<TARGET_FILE:${name}>)
    else()
        add_test(NAME ${name} COMMAND ${name})
    endif()
    set_tests_properties(${name} PROPERTIES LABELS "${TEST_LABELS}")
    if(NOT TEST_HEADLESS)
        set_tests_properties(${name} PROPERTIES RESOURCE_LOCK desktop)
    endif()
    norvane_test_environment(${name})
endfunction()

# Time limit, sanitizers and warnings for a registered test.
#
# QT_FATAL_WARNINGS would abort at announced warnings too, so warnings are found in the output: in the form that
# QtTest gives them, and, outside of test functions, in that of QT_MESSAGE_PATTERN.
function(norvane_test_environment name)
    set(support ${PROJECT_SOURCE_DIR}/tests/support)
    set(timeout 300)
    set(warnings "${NORVANE_QT_WARNINGS}")
    if(NORVANE_SANITIZE)
        set(timeout 600)
    endif()
    set(environment
        "QT_MESSAGE_PATTERN=%{if-warning}Qt warning: %{endif}%{if-critical}Qt warning: %{endif}%{message}"
        "LC_ALL=C.UTF-8"
        "XDG_RUNTIME_DIR=${NORVANE_TEST_RUNTIME_DIR}"
        "ASAN_OPTIONS=detect_stack_use_after_return=1"
        "LSAN_OPTIONS=suppressions=${support}/lsan.supp:print_suppressions=0"
        "UBSAN_OPTIONS=print_stacktrace=1"
        "TSAN_OPTIONS=suppressions=${support}/tsan.supp:second_deadlock_stack=1")
    if(NORVANE_SANITIZE MATCHES "thread")
        # Without the threads of the X and GLib libraries, which are not built for the sanitizer either.
        list(APPEND environment "QT_QPA_PLATFORM=offscreen" "QT_NO_GLIB=1")
        # Which says of every window that comes to the front: "This plugin does not support raise()".
        string(REPLACE "([^Q]|Q[^X]" "([^QT]|T[^h]|Th[^i]|Thi[^s]|This[^ ]|This [^p]|Q[^X]" warnings "${warnings}")
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${timeout}
        ENVIRONMENT "${environment}"
        FAIL_REGULAR_EXPRESSION "${warnings}")
endfunction()

# Warnings as our message pattern marks them and as QtTest does, but for one: when a window hides, Qt looks which one the
# mouse is over now, asks the X server about each on the way there (TranslateCoords, 40), and complains (BadWindow, 3) if
# the window manager has just destroyed one of them.
set(NORVANE_QT_WARNINGS
    "Qt warning: ([^Q]|Q[^X]|QX[^c])"
    "Qt warning: QXcb[^\n]* error: ([^3]|3[^ ])"
    "Qt warning: QXcb[^\n]* major code: ([^4]|4[^0]|40[^ ])"
    "Qt warning: QXcbConnection: [^X]"
    "Qt warning: QXcb([^C]|C[^o])"
    "QWARN  *: [^)]*[)] ([^Q]|Q[^t])"
    "QSYSTEM *:"
    "QCRITICAL *:")

# Qt complains about a runtime directory that is not there or that others can read.
set(NORVANE_TEST_RUNTIME_DIR ${PROJECT_BINARY_DIR}/tests/runtime)
file(MAKE_DIRECTORY ${NORVANE_TEST_RUNTIME_DIR})
file(CHMOD ${NORVANE_TEST_RUNTIME_DIR} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
