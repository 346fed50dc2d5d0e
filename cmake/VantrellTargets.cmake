# What all targets share: language level, warnings, strict Qt switches and the sanitizer, on one interface
# target; and one function each for libraries, programs and tests.

add_library(vantrell_common INTERFACE)
target_include_directories(vantrell_common INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_features(vantrell_common INTERFACE cxx_std_20)
target_compile_options(vantrell_common INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
    -Wformat=2 -Wimplicit-fallthrough -Wextra-semi -Werror)
target_compile_definitions(vantrell_common INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

if(VANTRELL_SANITIZER STREQUAL "")
elseif(VANTRELL_SANITIZER STREQUAL "address")
    set(VANTRELL_SANITIZER_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # Checks of pointers take half of the time that a test takes to compile; in its own code the address sanitizer
    # makes nearly the same ones.
    set(VANTRELL_TEST_SANITIZER_FLAGS -fno-sanitize=null,alignment,object-size,vptr)
elseif(VANTRELL_SANITIZER STREQUAL "thread")
    set(VANTRELL_SANITIZER_FLAGS -fsanitize=thread -fno-omit-frame-pointer)
    # Two libraries that are not built for the sanitizer may synchronise unseen; and a test that starts a
    # program goes on with its own threads.
    set(VANTRELL_SANITIZER_ENVIRONMENT "TSAN_OPTIONS=ignore_noninstrumented_modules=1:die_after_fork=0")
else()
    message(FATAL_ERROR "VANTRELL_SANITIZER is \"${VANTRELL_SANITIZER}\"; known are \"\", \"address\" and \"thread\".")
endif()
# Under a sanitizer more than a hundred programs share the libraries, which are too large to be linked into each.
set(VANTRELL_LIBRARY_KIND STATIC)
if(VANTRELL_SANITIZER_FLAGS)
    set(VANTRELL_LIBRARY_KIND SHARED)
endif()
# Tests take about as long to compile as to run, so no build spends time on optimising them; nor does a build for
# tests only on the template code of JSON and the argument parser, and on the window, which waits more than it works.
set(VANTRELL_TEST_OPTIMISATION $<$<CONFIG:Release>:-O1>)
set(VANTRELL_JSON_OPTIMISATION "")
set(VANTRELL_WINDOW_OPTIMISATION "")
set(VANTRELL_PARSER_OPTIMISATION -O1)
if(VANTRELL_SANITIZER_FLAGS)
    set(VANTRELL_TEST_OPTIMISATION -O0)
    set(VANTRELL_JSON_OPTIMISATION -O0)
    set(VANTRELL_WINDOW_OPTIMISATION -O0)
    set(VANTRELL_PARSER_OPTIMISATION -O0)
    # Ahead of the options of a target, which take checks away: of -fsanitize and -fno-sanitize the last one counts.
    add_compile_options(${VANTRELL_SANITIZER_FLAGS})
    target_link_options(vantrell_common INTERFACE ${VANTRELL_SANITIZER_FLAGS})
endif()

# GCC looks for unused memory whenever its heap has doubled, which the precompiled headers make it do at once. Without
# that most files take a seventh less time and up to 1 GB.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:--param=ggc-min-heapsize=800000>)
endif()

# A faster linker, if available, for programs that are never shipped.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=mold VANTRELL_HAS_MOLD)
check_linker_flag(CXX -fuse-ld=gold VANTRELL_HAS_GOLD)
set(VANTRELL_TEST_LINKER "")
if(VANTRELL_HAS_MOLD)
    set(VANTRELL_TEST_LINKER -fuse-ld=mold)
elseif(VANTRELL_HAS_GOLD)
    set(VANTRELL_TEST_LINKER -fuse-ld=gold)
endif()
if(VANTRELL_SANITIZER_FLAGS)
    target_link_options(vantrell_common INTERFACE ${VANTRELL_TEST_LINKER})
endif()

# vantrell_library(<folder> SOURCES ... [PUBLIC libraries ...] [PRIVATE libraries ...] [PRECOMPILED set])
# makes the static library vantrell_<folder> from the files of the calling folder. It uses the precompiled
# headers `window` if its headers need Qt Widgets, else `core`.
function(vantrell_library folder)
    cmake_parse_arguments(ARG "" "PRECOMPILED" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    if(NOT ARG_PRECOMPILED)
        set(ARG_PRECOMPILED core)
        if("Qt6::Widgets" IN_LIST ARG_PUBLIC)
            set(ARG_PRECOMPILED window)
        endif()
    endif()
    add_library(vantrell_${folder} ${VANTRELL_LIBRARY_KIND} ${ARG_SOURCES})
    set_target_properties(vantrell_${folder} PROPERTIES DEFINE_SYMBOL "")
    target_precompile_headers(vantrell_${folder} REUSE_FROM vantrell_precompiled_${ARG_PRECOMPILED})
    if(ARG_PRECOMPILED STREQUAL "json")
        target_compile_options(vantrell_${folder} PRIVATE ${VANTRELL_JSON_OPTIMISATION})
    elseif(ARG_PRECOMPILED STREQUAL "window")
        target_compile_options(vantrell_${folder} PRIVATE ${VANTRELL_WINDOW_OPTIMISATION})
    endif()
    target_link_libraries(vantrell_${folder} PUBLIC vantrell_common ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
endfunction()

# vantrell_argument_parser(<source>): a file that includes CLI11's header, whose code takes longer to optimise than
# to run. Compiled separately.
function(vantrell_argument_parser source)
    set_source_files_properties("${source}" PROPERTIES
        COMPILE_OPTIONS ${VANTRELL_PARSER_OPTIMISATION} SKIP_PRECOMPILE_HEADERS ON SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# vantrell_program(<name> SOURCES ... LIBRARIES ...)
function(vantrell_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
    target_link_libraries(${name} PRIVATE vantrell_common ${ARG_LIBRARIES})
endfunction()

# vantrell_moc(<target> <source> <output>) runs moc on the source, which includes the output: faster than
# AUTOMOC, which compiles one more file for each target.
function(vantrell_moc target source output)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
    qt6_generate_moc("${source}" "${folder}/${output}")
    set_property(SOURCE "${source}" APPEND PROPERTY OBJECT_DEPENDS "${folder}/${output}")
    target_include_directories(${target} PRIVATE "${folder}")
endfunction()

# vantrell_test(<folder> <name> [LIBRARIES ...]) makes the Qt Test program tst_<name> from
# tests/<folder>/tst_<name>.cpp and registers it with CTest. It links that folder's library and LIBRARIES.
# SERIES: it tries random cases, of which tools/series runs more. SECONDS: its duration under the thread
# sanitizer, if long; such tests start first, so that no processor waits for the last one.
# A test function that takes longer than 45 seconds, for one row of its data, is hung: Qt Test's watchdog ends the
# program. LONG doubles that, and a series may take five minutes.
function(vantrell_test folder name)
    cmake_parse_arguments(ARG "SERIES;LONG" "SECONDS" "LIBRARIES" ${ARGN})
    set(function_seconds 45)
    set(program_seconds 300)
    if(ARG_LONG)
        set(function_seconds 90)
    endif()
    if(ARG_SERIES)
        set(function_seconds 300)
        set(program_seconds 900)
    endif()
    set(set test)
    get_target_property(libraries vantrell_${folder} INTERFACE_LINK_LIBRARIES)
    if("Qt6::Widgets" IN_LIST libraries)
        set(set window_test)
    endif()
    set(source "${PROJECT_SOURCE_DIR}/tests/${folder}/tst_${name}.cpp")
    add_executable(tst_${name} "${source}")
    set_target_properties(tst_${name} PROPERTIES UNITY_BUILD OFF)
    vantrell_moc(tst_${name} "${source}" tst_${name}.moc)
    target_compile_options(tst_${name} PRIVATE ${VANTRELL_TEST_OPTIMISATION} ${VANTRELL_TEST_SANITIZER_FLAGS})
    target_link_options(tst_${name} PRIVATE ${VANTRELL_TEST_LINKER})
    target_precompile_headers(tst_${name} REUSE_FROM vantrell_precompiled_${set})
    target_link_libraries(tst_${name} PRIVATE vantrell_${folder} vantrell_testsupport Qt6::Test Qt6::Network
        ${ARG_LIBRARIES})
    add_test(NAME ${folder}/${name} COMMAND tst_${name})
    set_tests_properties(${folder}/${name} PROPERTIES
        TIMEOUT ${program_seconds}
        ENVIRONMENT "QTEST_FUNCTION_TIMEOUT=${function_seconds}000;QT_QPA_PLATFORM=offscreen;LANGUAGE=en;VANTRELL_SOURCE_DIR=${PROJECT_SOURCE_DIR};VANTRELL_BIN_DIR=${CMAKE_RUNTIME_OUTPUT_DIRECTORY};${VANTRELL_SANITIZER_ENVIRONMENT}")
    if(ARG_SECONDS)
        set_tests_properties(${folder}/${name} PROPERTIES COST ${ARG_SECONDS})
    endif()
    if(ARG_SERIES)
        set_tests_properties(${folder}/${name} PROPERTIES LABELS series)
    endif()
endfunction()
