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
