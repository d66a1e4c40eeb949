# The chosen Qt, under names that do not depend on its generation:
#   norvane_qt        what a library or program with widgets links to
#   norvane_qt_test   QtTest, for tests

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

add_library(norvane_qt INTERFACE)
add_library(norvane_qt_test INTERFACE)

if(NORVANE_QT EQUAL 4)
    # An installation that is not on the path is named with -DQT_QMAKE_EXECUTABLE=.../bin/qmake.
    find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui QtTest)
    target_link_libraries(norvane_qt INTERFACE Qt4::QtGui)
    # What its headers do is C++ of their time; C++17 has no `register`.
    target_compile_options(norvane_qt INTERFACE -Wno-register)
    target_link_libraries(norvane_qt_test INTERFACE Qt4::QtTest)
    set(NORVANE_QT_PACKAGE "Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui")
elseif(NORVANE_QT EQUAL 5 OR NORVANE_QT EQUAL 6)
    find_package(Qt${NORVANE_QT} REQUIRED COMPONENTS Core Gui Widgets Test)
    target_link_libraries(norvane_qt INTERFACE Qt${NORVANE_QT}::Widgets)
    target_link_libraries(norvane_qt_test INTERFACE Qt${NORVANE_QT}::Test)
    set(NORVANE_QT_PACKAGE "Qt${NORVANE_QT} REQUIRED COMPONENTS Widgets")
else()
    message(FATAL_ERROR "NORVANE_QT is \"${NORVANE_QT}\"; it must be 4, 5 or 6.")
endif()

# Python's headers use the word "slots", so Qt's keywords are off for us and for everybody who uses the library.
target_compile_definitions(norvane_qt INTERFACE QT_NO_KEYWORDS)
