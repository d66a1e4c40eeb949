# The interpreter that hosts embed, as norvane_python, if NORVANE_PYTHON names one: "3" for the system's Python 3, "3.11"
# for that version of it, or "2.7" unpacked into NORVANE_PYTHON_ROOT by scripts/python27. NORVANE_PYTHON_HOME is the
# folder below which it finds its modules.

if(NOT NORVANE_PYTHON)
    return()
endif()

add_library(norvane_python INTERFACE)
if(NORVANE_PYTHON MATCHES "^3(\\.[0-9]+)?$")
    # Not FindPython3: it takes the first interpreter on the path, which need not be one that can be embedded.
    find_package(PkgConfig REQUIRED)
    if(NORVANE_PYTHON EQUAL 3)
        pkg_check_modules(Python REQUIRED IMPORTED_TARGET GLOBAL python3-embed)
    else()
        pkg_check_modules(Python REQUIRED IMPORTED_TARGET GLOBAL python-${NORVANE_PYTHON}-embed)
    endif()
    target_link_libraries(norvane_python INTERFACE PkgConfig::Python)
    set(NORVANE_PYTHON_HOME ${Python_PREFIX})
elseif(NORVANE_PYTHON STREQUAL "2.7")
    set(NORVANE_PYTHON_HOME ${NORVANE_PYTHON_ROOT}/usr)
    set(include_dir ${NORVANE_PYTHON_HOME}/include)
    find_library(NORVANE_PYTHON_LIBRARY python2.7 REQUIRED NO_DEFAULT_PATH
        PATHS ${NORVANE_PYTHON_HOME}/lib
        PATH_SUFFIXES ${CMAKE_LIBRARY_ARCHITECTURE})
    # The second one is for the headers of Debian's architecture, which the first one's include.
    target_include_directories(norvane_python SYSTEM INTERFACE ${include_dir}/python2.7 ${include_dir})
    target_link_libraries(norvane_python INTERFACE ${NORVANE_PYTHON_LIBRARY})
    # What these headers do is C of their time.
    target_compile_options(norvane_python INTERFACE -Wno-register)
else()
    message(FATAL_ERROR "NORVANE_PYTHON is \"${NORVANE_PYTHON}\"; it must be 3, 3.11 or the like, 2.7 or OFF.")
endif()
