# What `cmake --install` puts in place, in two components: `runtime` is the library, `development` its public headers
# and what find_package(NorvaneCore) and pkg-config read.

include(CMakePackageConfigHelpers)

set(header_dir ${CMAKE_INSTALL_INCLUDEDIR}/norvane/core)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/NorvaneCore)

# Every other header is the library's own affair and may change from one version to the next.
set(public_headers
    NorvaneCoreExport.h
    colour/Color4.h
    colour/ColorModels.h
    colour/SampleRange.h
    colour/TransformI.h
    colour/YCbCrMatrix.h
    colour/YCbCrRows.h
    ui/colour/ColorControl.h
    ui/colour/ColorControlWidget.h
    ui/colour/ColorSlider.h
    ui/colour/ColorUIConstants.h
    ui/colour/ColorWheel.h
    ui/colour/IColorControlClient.h
    ui/docking/Dock.h
    ui/docking/DockMainWindow.h
    ui/docking/DockPlaceHolder.h
    ui/docking/DockSplitter.h
    ui/docking/DockTabBar.h
    ui/docking/DockTitleBar.h
    ui/docking/DockWindow.h
    ui/docking/FloatingWindowRegistry.h
    ui/docking/HoverWidget.h
    ui/docking/LayoutInspector.h
    ui/docking/SnappableWindow.h
    ui/docking/TitleBarButton.h
    ui/docking/WidgetUtils.h
    ui/progress/DialogProgressManager.h
    ui/progress/ProgressDialog.h
    ui/progress/ProgressManager.h
    ui/progress/ProgressTask.h
    ui/progress/ProgressWidget.h
    ui/progress/Relaxed.h
    ui/progress/TaskPrivate.h
    ui/sliders/LogSlider.h
    ui/sliders/Slider.h
    ui/toolkit/Application.h
    ui/toolkit/Events.h
    ui/toolkit/Images.h
    ui/toolkit/Painting.h
    ui/toolkit/Screens.h
    ui/widgets/ApplicationPaths.h
    ui/widgets/AppSettings.h
    ui/widgets/BubbleWidget.h
    ui/widgets/DisclosableWidget.h
    ui/widgets/DisclosureButton.h
    ui/widgets/DropAcceptingListWidget.h
    ui/widgets/DropAcceptingWidget.h
    ui/widgets/FilenameField.h
    ui/widgets/FlatButton.h
    ui/widgets/SearchField.h
    ui/widgets/VerticalLayout.h)
if(NORVANE_PYTHON)
    list(APPEND public_headers
        python/ProgressTaskType.h
        python/RunInMainThread.h)
endif()
foreach(header IN LISTS public_headers)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/${header}
        DESTINATION ${header_dir}/${folder} COMPONENT development)
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/generated/NorvaneCoreVersion.h
    DESTINATION ${header_dir} COMPONENT development)

# norvane_qt goes along because the library's interface is made of it.
set_target_properties(norvane_qt PROPERTIES EXPORT_NAME qt)
install(TARGETS core norvane_qt EXPORT NorvaneCoreTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(EXPORT NorvaneCoreTargets NAMESPACE Norvane:: DESTINATION ${package_dir} COMPONENT development)

# find_dependency() says by itself whether the package is required.
string(REPLACE " REQUIRED" "" NORVANE_QT_DEPENDENCY "${NORVANE_QT_PACKAGE}")
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/NorvaneCoreConfig.cmake.in
    ${PROJECT_BINARY_DIR}/NorvaneCoreConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/NorvaneCoreConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/NorvaneCoreConfig.cmake
    ${PROJECT_BINARY_DIR}/NorvaneCoreConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development)

if(NORVANE_QT EQUAL 4)
    set(NORVANE_QT_PKGCONFIG QtGui)
else()
    set(NORVANE_QT_PKGCONFIG Qt${NORVANE_QT}Widgets)
endif()
# Relative, so that the prefix given to `cmake --install` counts.
file(RELATIVE_PATH NORVANE_PKGCONFIG_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(
    ${PROJECT_SOURCE_DIR}/cmake/norvane-core.pc.in
    ${PROJECT_BINARY_DIR}/norvane-core.pc
    @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/norvane-core.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

install(FILES
    ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    ${PROJECT_SOURCE_DIR}/LICENSE
    ${PROJECT_SOURCE_DIR}/THIRD-PARTY.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/norvane-core COMPONENT runtime)
