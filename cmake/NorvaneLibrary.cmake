# The library: its folders add their sources to this target.

configure_file(${PROJECT_SOURCE_DIR}/NorvaneCoreVersion.h.in ${PROJECT_BINARY_DIR}/generated/NorvaneCoreVersion.h @ONLY)

add_library(core SHARED
    NorvaneCoreVersion.cpp)
add_library(Norvane::core ALIAS core)
set_target_properties(core PROPERTIES
    OUTPUT_NAME norvane-core
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
target_include_directories(core PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/norvane/core>)
target_compile_definitions(core PRIVATE NORVANE_CORE_BUILD)
target_link_libraries(core PUBLIC norvane_qt)
norvane_warnings(core)
norvane_add_translations(core ${PROJECT_SOURCE_DIR}/translations/norvane-core_de.ts)

# The same objects, for tests of classes that the shared library does not export.
add_library(core_internals INTERFACE)
target_include_directories(core_internals INTERFACE ${PROJECT_SOURCE_DIR})
target_link_libraries(core_internals INTERFACE $<TARGET_OBJECTS:core> norvane_qt)
add_dependencies(core_internals core)
