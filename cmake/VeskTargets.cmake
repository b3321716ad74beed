include(GenerateExportHeader)

# Compiler flags for every target of this tree. An interface target, so that installed packages do not carry them.
add_library(vesk_build_flags INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(vesk_build_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
        # Source paths in debug warnings are relative to the tree, so they are the same on every machine.
        "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/="
        $<$<BOOL:${VESK_WARNINGS_AS_ERRORS}>:-Werror>)
    target_link_options(vesk_build_flags INTERFACE
        $<$<AND:$<PLATFORM_ID:Linux>,$<NOT:$<BOOL:${VESK_SANITIZE}>>>:-Wl,--no-undefined>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # A unique symbol pins its library in the process, but unloading must really unload it.
    target_compile_options(vesk_build_flags INTERFACE -fno-gnu-unique)
endif()
if(WIN32)
    # Otherwise macros of the system headers would replace std::min and std::max.
    target_compile_definitions(vesk_build_flags INTERFACE NOMINMAX=1)
endif()
if(VESK_SANITIZE)
    target_compile_options(vesk_build_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(vesk_build_flags INTERFACE -fsanitize=address,undefined)
endif()

# Compiles the targets of this folder in batches of files, which parse their headers once. With -DCMAKE_UNITY_BUILD=OFF
# each file is compiled alone: that is how scripts/lint sees them, so that none can lack an include unnoticed.
macro(vesk_compile_in_batches)
    if(NOT DEFINED CMAKE_UNITY_BUILD)
        set(CMAKE_UNITY_BUILD ON)
    endif()
endmacro()

# Leaves in a list of sources one file of each Platform/<Name><System>.cpp: that of the target's window system, Windows or
# X11, or else the one for all others; the header of the same name, if there is one, goes with it. Each is compiled alone,
# for the headers of a system define macros with everyday names.
function(vesk_select_platform_sources variable)
    if(WIN32)
        set(system Windows)
    else()
        set(system X11)
    endif()
    set(selected ${${variable}})
    foreach(source IN LISTS ${variable})
        if(source MATCHES "^(.*Platform/.*)(Windows|X11|Other)\\.cpp$")
            set(chosen "${CMAKE_MATCH_1}${system}.cpp")
            if(NOT chosen IN_LIST ${variable})
                set(chosen "${CMAKE_MATCH_1}Other.cpp")
            endif()
            if(source STREQUAL chosen)
                set_source_files_properties("${source}" PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
            else()
                string(REGEX REPLACE "cpp$" "h" header "${source}")
                list(REMOVE_ITEM selected "${source}" "${header}")
            endif()
        endif()
    endforeach()
    set(${variable} ${selected} PARENT_SCOPE)
endfunction()

# What a library exports, on systems where it would also export pieces of the standard library.
set(vesk_exported "${CMAKE_CURRENT_LIST_DIR}/Exported.map")

# vesk_library(<target> ALIAS <Vesk::Name> COMPONENT <name> EXPORT <MACRO> EXPORT_FILE <path below the include root>)
#
# A shared library whose published headers, if any, are in include/ next to its CMakeLists.txt, and whose export macro
# comes from a generated header. It is installed with its component, what programs are built with as Development.
function(vesk_library target)
    cmake_parse_arguments(ARG "" "ALIAS;COMPONENT;EXPORT;EXPORT_FILE" "" ${ARGN})
    add_library(${target} SHARED)
    add_library(${ARG_ALIAS} ALIAS ${target})
    string(REGEX REPLACE "^.*::" "" exported "${ARG_ALIAS}")
    # Until 1.0 each minor version may break what was built with the one before.
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${exported} INSTALL_RPATH "$ORIGIN"
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
        target_link_options(${target} PRIVATE "-Wl,--version-script=${vesk_exported}")
        set_target_properties(${target} PROPERTIES LINK_DEPENDS "${vesk_exported}")
    endif()
    if(WIN32)
        # The same name with every compiler: whoever loads it at run time knows only the name.
        set_target_properties(${target} PROPERTIES PREFIX "")
    endif()
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vesk_build_flags>)

    set(generated "${CMAKE_CURRENT_BINARY_DIR}/include")
    generate_export_header(${target} EXPORT_MACRO_NAME ${ARG_EXPORT} EXPORT_FILE_NAME "${generated}/${ARG_EXPORT_FILE}")
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>" "$<BUILD_INTERFACE:${generated}>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vesk>")
    install(TARGETS ${target} EXPORT VeskTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${ARG_COMPONENT} NAMELINK_COMPONENT Development
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${ARG_COMPONENT}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
    set(folders "${generated}/")
    if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/include")
        list(APPEND folders include/)
    endif()
    install(DIRECTORY ${folders} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vesk COMPONENT Development)
endfunction()

# vesk_test_program(<name> LABEL <unit|scenario|desktop> TESTS <file>... [SOURCES <file>...] [LIBRARIES <target>...]
#                   [PREFIX <text>] [WITH_FOLDERS] [PRECOMPILED] [TIMEOUT <s>])
#
# A program of Qt tests. Each <Name>.cpp of TESTS is a test called <PREFIX><Name>, or with WITH_FOLDERS
# <PREFIX><Folder><Name>, and runs on its own: in the C.UTF-8 locale, and on the offscreen platform unless it is a
# desktop test. On Windows it opens real windows. PRECOMPILED programs link Qt Widgets and share the precompiled headers
# of vesk_test_support.
function(vesk_test_program program)
    cmake_parse_arguments(ARG "WITH_FOLDERS;PRECOMPILED" "LABEL;PREFIX;TIMEOUT" "TESTS;SOURCES;LIBRARIES" ${ARGN})
    add_executable(${program} ${ARG_TESTS} ${ARG_SOURCES})
    # The types and functions of a test are its own: several tests may use the same names. For Platform/ see above.
    set(alone ${ARG_TESTS} ${ARG_SOURCES})
    list(FILTER alone INCLUDE REGEX "Test\\.cpp$|Platform/")
    set_source_files_properties(${alone} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    set_target_properties(${program} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    target_include_directories(${program} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${program} PRIVATE vesk_build_flags vesk_test_main ${ARG_LIBRARIES} Qt::Test)
    if(ARG_PRECOMPILED)
        target_precompile_headers(${program} REUSE_FROM vesk_test_support)
    endif()
    foreach(source IN LISTS ARG_TESTS)
        get_filename_component(test "${source}" NAME_WE)
        vesk_moc_test(${program} "${source}")
        set(name "${test}")
        if(ARG_WITH_FOLDERS)
            string(REGEX REPLACE "[/]|\\.cpp$" "" name "${source}")
        endif()
        vesk_add_test("${ARG_PREFIX}${name}" ${program} ${test} ${ARG_LABEL} "${ARG_TIMEOUT}")
    endforeach()
endfunction()

# Runs moc on a test without looking for headers, which tells no more about a test class and takes moc a hundred times as
# long: automatic runs parse all of Qt for each test.
function(vesk_moc_test program source)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${program}_moc")
    file(MAKE_DIRECTORY "${folder}")
    get_filename_component(test "${source}" NAME_WE)
    set(output "${folder}/${test}.moc")
    set(input "${CMAKE_CURRENT_SOURCE_DIR}/${source}")
    add_custom_command(OUTPUT "${output}" COMMAND Qt${QT_VERSION_MAJOR}::moc "${input}" -o "${output}"
        DEPENDS "${input}" VERBATIM)
    target_sources(${program} PRIVATE "${output}")
    target_include_directories(${program} PRIVATE "${folder}")
    set_source_files_properties("${source}" PROPERTIES SKIP_AUTOMOC ON)
endfunction()

# Registers one run of a test program.
function(vesk_add_test name program test label timeout)
    # Ends only hanging tests: no result depends on the speed of the machine.
    if(NOT timeout)
        set(timeout 900)
    endif()
    if(VESK_SANITIZE)
        math(EXPR timeout "${timeout} * 5")
    endif()
    add_test(NAME ${name} COMMAND ${program} ${test})
    set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT ${timeout} REQUIRED_FILES "$<TARGET_FILE:${program}>"
        ENVIRONMENT "LC_ALL=C.UTF-8;VESK_UNATTENDED=1;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0;QTEST_FUNCTION_TIMEOUT=${timeout}000")
    if(WIN32)
        # The program itself ends a test function that hangs, run-under-wine a program that hangs, and all that it
        # has started.
        math(EXPR limit "${timeout} + 60")
        math(EXPR timeout "${timeout} + 120")
        set_tests_properties(${name} PROPERTIES TIMEOUT ${timeout})
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "QT_QPA_PLATFORM=windows;VESK_TIME_LIMIT=${limit}")
    elseif(NOT label STREQUAL "desktop")
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
    endif()
endfunction()
