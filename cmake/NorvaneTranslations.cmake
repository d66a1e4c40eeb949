# norvane_add_translations(TARGET FILE.ts...)
#
# Compiles translations of texts and puts them into the resources of TARGET: translations/norvane-core_de.ts becomes
# ":/norvane/translations/norvane-core_de.qm". Without Qt's lrelease the texts stay English.

# Any generation's tools will do; those of the chosen Qt come first.
if(QT_QMAKE_EXECUTABLE)
    execute_process(COMMAND ${QT_QMAKE_EXECUTABLE} -query QT_INSTALL_BINS
        OUTPUT_VARIABLE qt_tools OUTPUT_STRIP_TRAILING_WHITESPACE)
elseif(TARGET Qt${NORVANE_QT}::qmake)
    get_target_property(qt_tools Qt${NORVANE_QT}::qmake IMPORTED_LOCATION)
    get_filename_component(qt_tools ${qt_tools} DIRECTORY)
endif()
find_program(LRELEASE NAMES lrelease lrelease-qt5 lrelease6 HINTS ${qt_tools})
find_program(LUPDATE NAMES lupdate lupdate-qt5 lupdate6 HINTS ${qt_tools})
if(NOT LRELEASE)
    message(STATUS "There is no lrelease: the texts are English only.")
endif()

function(norvane_add_translations target)
    if(NOT LRELEASE)
        return()
    endif()
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}-translations)
    set(entries "")
    foreach(source IN LISTS ARGN)
        get_filename_component(name ${source} NAME_WLE)
        set(compiled ${folder}/${name}.qm)
        add_custom_command(OUTPUT ${compiled}
            COMMAND ${LRELEASE} -silent ${source} -qm ${compiled}
            DEPENDS ${source}
            VERBATIM)
        target_sources(${target} PRIVATE ${compiled})
        string(APPEND entries "<file>${name}.qm</file>")
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/${target}-translations.qrc
        CONTENT "<RCC><qresource prefix=\"/norvane/translations\">${entries}</qresource></RCC>\n")
    target_sources(${target} PRIVATE ${folder}/${target}-translations.qrc)
endfunction()
