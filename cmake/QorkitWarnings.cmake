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

# A source folder: QORKIT*.cpp files go to qorkit_core, except the modules named in QT_MODULES
# (and every module when the folder is Qt-only), which go to qorkit_widgets with the folder's
# .qrc resources.
function(qorkit_add_source_dir)
    cmake_parse_arguments(ARG "QT_ONLY" "" "QT_MODULES" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    file(GLOB resources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
    foreach(src IN LISTS sources)
        get_filename_component(module ${src} NAME_WE)
        if(ARG_QT_ONLY OR module IN_LIST ARG_QT_MODULES)
            if(TARGET qorkit_widgets)
                target_sources(qorkit_widgets PRIVATE ${src})
            endif()
        else()
            target_sources(qorkit_core PRIVATE ${src})
        endif()
    endforeach()
    if(resources AND TARGET qorkit_widgets)
        target_sources(qorkit_widgets PRIVATE ${resources})
    endif()
endfunction()
