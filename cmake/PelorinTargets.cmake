# The few functions from which every target of the project is made.

# pelorin_compile_options(<target>): language level, warnings and definitions that all of our code shares.
function(pelorin_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF AUTOMOC ON)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_MESSAGELOGCONTEXT
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast)
        if(PELORIN_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    endif()
endfunction()

# pelorin_subsystem(<folder> CLASSES <class>... [TYPES <type>...] [SOURCES <file>...]
#                   [HEADERS <header>...] [PRIVATE <header>...])
#
# Adds the subsystem in the current folder to the library. CLASSES are its exported classes: each has
# <class>.h and <class>.cpp, is installed, gets a forwarding header <Pelorin/class>, and is compiled
# alone by the header check. TYPES are the same without a <type>.cpp. SOURCES are further sources,
# HEADERS those that are installed because others include them, but that nobody includes by name, PRIVATE
# the headers that are not installed.
function(pelorin_subsystem folder)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "CLASSES;TYPES;SOURCES;HEADERS;PRIVATE")

    target_sources(Pelorin PRIVATE ${arg_SOURCES} ${arg_HEADERS} ${arg_PRIVATE})
    install(FILES ${arg_HEADERS} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/Pelorin/${folder}")
    foreach(class IN LISTS arg_CLASSES)
        target_sources(Pelorin PRIVATE ${class}.cpp)
    endforeach()
    foreach(class IN LISTS arg_CLASSES arg_TYPES)
        target_sources(Pelorin PRIVATE ${class}.h)
        set(forward "${PROJECT_BINARY_DIR}/include/Pelorin/${class}")
        configure_file("${PROJECT_SOURCE_DIR}/cmake/ForwardingHeader.in" "${forward}" @ONLY)
        install(FILES "${forward}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/Pelorin")
        install(FILES ${class}.h DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/Pelorin/${folder}")
    endforeach()
    set_property(GLOBAL APPEND PROPERTY PELORIN_CLASSES ${arg_CLASSES})
    set_property(GLOBAL APPEND PROPERTY PELORIN_TYPES ${arg_TYPES})
endfunction()

# pelorin_header_check(): an object library that includes each forwarding header first, in a file of its own.
function(pelorin_header_check)
    get_property(classes GLOBAL PROPERTY PELORIN_CLASSES)
    get_property(types GLOBAL PROPERTY PELORIN_TYPES)
    foreach(class IN LISTS classes types)
        set(assertion "")
        if(class IN_LIST classes)
            set(assertion "static_assert(sizeof(${class}) > 0, \"the header defines its class\");")
        endif()
        set(source "${CMAKE_CURRENT_BINARY_DIR}/headers/${class}.cpp")
        configure_file("${PROJECT_SOURCE_DIR}/cmake/HeaderCheck.cpp.in" "${source}" @ONLY)
        list(APPEND sources "${source}")
    endforeach()
    add_library(pelorin-header-check OBJECT ${sources})
    pelorin_compile_options(pelorin-header-check)
    set_target_properties(pelorin-header-check PROPERTIES AUTOMOC OFF)
    target_link_libraries(pelorin-header-check PRIVATE Pelorin::Pelorin)
endfunction()

# pelorin_test(<folder> <name> [X11] [SOURCES <file>...] [ENVIRONMENT <NAME=value>...])
#
# One QtTest program, <folder>/<name>.cpp. It runs offscreen, or with X11 on the display at hand under
# the label x11.
function(pelorin_test folder name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "X11" "" "SOURCES;ENVIRONMENT")

    add_executable(${name} ${folder}/${name}.cpp ${arg_SOURCES})
    pelorin_compile_options(${name})
    target_link_libraries(${name} PRIVATE pelorin-test-support)
    target_precompile_headers(${name} REUSE_FROM pelorin-test-support)
    set(x11)
    if(arg_X11)
        set(x11 X11)
    endif()
    pelorin_test_again(${name} ${name} ${x11} ENVIRONMENT ${arg_ENVIRONMENT})
endfunction()

# pelorin_test_again(<name> <program> [X11] [ENVIRONMENT <NAME=value>...])
#
# Runs a program of pelorin_test() under another name, in an environment of its own.
function(pelorin_test_again name program)
    cmake_parse_arguments(PARSE_ARGV 2 arg "X11" "" "ENVIRONMENT")

    add_test(NAME ${name} COMMAND ${program})
    set(environment "QT_FONT_DPI=96" "LC_ALL=C.UTF-8" ${PELORIN_TEST_ENVIRONMENT} ${arg_ENVIRONMENT})
    if(arg_X11)
        # Without OpenGL, whose drivers differ from machine to machine and are not used by widgets.
        list(APPEND environment "QT_QPA_PLATFORM=xcb" "QT_XCB_GL_INTEGRATION=none")
        # One pointer, one keyboard focus: these tests take turns.
        set_tests_properties(${name} PROPERTIES LABELS x11 RESOURCE_LOCK display)
    else()
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300)
endfunction()

# pelorin_reference(): the target docs, which makes the reference from the comments of the headers that are
# installed. A warning of Doxygen fails it; without Doxygen there is no such target.
function(pelorin_reference)
    find_package(Doxygen 1.9 QUIET)
    if(NOT DOXYGEN_FOUND)
        return()
    endif()
    set(doxyfile "${PROJECT_BINARY_DIR}/Doxyfile")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Doxyfile.in" "${doxyfile}" @ONLY)
    add_custom_target(docs
        COMMAND Doxygen::doxygen "${doxyfile}"
        COMMENT "Reference: ${PROJECT_BINARY_DIR}/docs/html/index.html"
        VERBATIM)
endfunction()
