# One place for the warning set of every target we build.
function(qorkit_set_warnings target)
    set(options STD_ONLY)
    cmake_parse_arguments(ARG "${options}" "" "" ${ARGN})
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
        -Woverloaded-virtual -Wimplicit-fallthrough -Wformat=2)
    if(ARG_STD_ONLY)
        target_compile_options(${target} PRIVATE -Wsign-conversion)
    endif()
    if(QORKIT_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# Test executables: GoogleTest main, registered with CTest.
function(qorkit_add_test name)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    qorkit_set_warnings(${name})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} qorkit_test_support GTest::gtest GTest::gmock)
    if(ARG_QT)
        target_link_libraries(${name} PRIVATE qorkit_qt_test_main)
        set_property(TARGET ${name} PROPERTY AUTOMOC ON)
    else()
        target_link_libraries(${name} PRIVATE GTest::gtest_main)
    endif()
    set(label core)
    if(ARG_QT)
        set(label qt)
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
        PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" LABELS ${label})
endfunction()

# A test folder: *_test.cpp files form <folder>_tests (std-only, label "core"), *_qttest.cpp
# files form <folder>_qttests (Qt, label "qt"; built only with the widgets library).
function(qorkit_add_test_dir folder)
    file(GLOB core_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*_test.cpp)
    file(GLOB qt_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*_qttest.cpp)
    if(core_sources)
        qorkit_add_test(${folder}_tests SOURCES ${core_sources} LIBS qorkit_core)
    endif()
    if(qt_sources AND TARGET qorkit_widgets)
        qorkit_add_test(${folder}_qttests QT SOURCES ${qt_sources} LIBS qorkit_widgets)
    endif()
endfunction()

# A source folder's modules, listed by name: CORE sources go to qorkit_core, QT sources and the
# folder's RESOURCES (.qrc) to qorkit_widgets when it is built. A .cpp file in the folder that is
# in neither list stops the configure step, so a new module is never left out of the build.
function(qorkit_add_source_dir)
    cmake_parse_arguments(ARG "" "" "CORE;QT;RESOURCES" ${ARGN})
    if(ARG_CORE)
        target_sources(qorkit_core PRIVATE ${ARG_CORE})
    endif()
    if(TARGET qorkit_widgets AND (ARG_QT OR ARG_RESOURCES))
        target_sources(qorkit_widgets PRIVATE ${ARG_QT} ${ARG_RESOURCES})
    endif()
    file(GLOB present RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    foreach(src IN LISTS present)
        if(NOT src IN_LIST ARG_CORE AND NOT src IN_LIST ARG_QT)
            message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR}/${src} is not listed in its CMakeLists.txt")
        endif()
    endforeach()
endfunction()
