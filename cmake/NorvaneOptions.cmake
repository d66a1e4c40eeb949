# What every target of ours is compiled with: C++17, warnings as errors, hidden symbols, sanitizers.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

if(NORVANE_SANITIZE)
    add_compile_options(-fsanitize=${NORVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${NORVANE_SANITIZE})
endif()

# Warnings are an affair of our own code only: they are never passed on to those who use the library.
function(norvane_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
    if(NORVANE_QT EQUAL 4)
        # Its classes have copy constructors beside assignments that the compiler makes.
        target_compile_options(${target} PRIVATE -Wno-deprecated-copy)
    endif()
    if(NORVANE_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
