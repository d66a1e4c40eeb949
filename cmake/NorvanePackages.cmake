# What `cpack` makes: two Debian packages, libnorvane-core1 with the library and libnorvane-core-dev with what is needed
# to build programs with it.

if(NORVANE_QT EQUAL 4)
    set(qt_dev libqt4-dev)
elseif(NORVANE_QT EQUAL 5)
    set(qt_dev qtbase5-dev)
else()
    set(qt_dev qt6-base-dev)
endif()
set(runtime_package libnorvane-core${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME norvane-core)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "the Norvane core authors <core@norvane.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "user-interface building blocks for media applications
Dockable panels, sliders over real numbers, colour controls, progress of long
jobs and small form widgets, built with Qt ${NORVANE_QT}.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libnorvane-core-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION}), ${qt_dev}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "user-interface building blocks for media applications, headers
What is needed to build programs with ${runtime_package}: headers, a CMake
package and a file for pkg-config.")

# Debian looks for the licence of each package here.
set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
    DESTINATION ${doc_dir}/${runtime_package} RENAME copyright COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
    DESTINATION ${doc_dir}/libnorvane-core-dev RENAME copyright COMPONENT development)

include(CPack)
