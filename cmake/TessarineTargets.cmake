include_guard(GLOBAL)

# What every target compiles with: standard, warnings, sanitizers, Qt's strict mode.
add_library(tessarine_options INTERFACE)
target_compile_features(tessarine_options INTERFACE cxx_std_20)
if(MSVC)
    target_compile_options(tessarine_options INTERFACE
        /W4 /utf-8 /permissive- /Zc:__cplusplus $<$<BOOL:${TESSARINE_WERROR}>:/WX>)
else()
    target_compile_options(tessarine_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Woverloaded-virtual -Wnon-virtual-dtor
        $<$<BOOL:${TESSARINE_WERROR}>:-Werror>)
endif()
target_compile_definitions(tessarine_options INTERFACE QT_ENABLE_STRICT_MODE_UP_TO=0x060A00)
if(TESSARINE_SANITIZE)
    target_compile_options(tessarine_options INTERFACE -fsanitize=${TESSARINE_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(tessarine_options INTERFACE -fsanitize=${TESSARINE_SANITIZE})
endif()
if(TESSARINE_SANITIZE MATCHES "undefined")
    target_compile_options(tessarine_options INTERFACE -fno-sanitize-recover=undefined)
endif()

# What the product adds. Tests go without: their rows would drown in literal suffixes.
add_library(tessarine_product_options INTERFACE)
target_link_libraries(tessarine_product_options INTERFACE tessarine_options)
target_compile_definitions(tessarine_product_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

# tessarine_library(NAME SOURCES file... [FORMS file.ui...] [LINK target...] [STRICT])
# A static library of one folder. STRICT adds the conversion warnings for readers of foreign bytes and pixel code.
function(tessarine_library name)
    cmake_parse_arguments(ARG "STRICT" "" "SOURCES;FORMS;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    if(ARG_FORMS)
        qt_add_ui(${name} SOURCES ${ARG_FORMS})
    endif()
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE tessarine_product_options)
    if(ARG_STRICT AND NOT MSVC)
        target_compile_options(${name} PRIVATE -Wconversion -Wno-sign-conversion)
    endif()
endfunction()

# tessarine_test(NAME [SOURCES file...] [LINK target...] [TIMEOUT seconds])
# One Qt Test executable in a directory of its own, with a HOME of its own, so that tests run side by side.
function(tessarine_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK" ${ARGN})
    if(NOT ARG_SOURCES)
        set(ARG_SOURCES ${name}.cpp)
    endif()
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    set(directory "${CMAKE_CURRENT_BINARY_DIR}/${name}.dir")
    file(MAKE_DIRECTORY "${directory}/home/.local/share" "${directory}/home/.config" "${directory}/runtime")
    file(CHMOD "${directory}/runtime" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    add_executable(${name} ${ARG_SOURCES})
    if(TESSARINE_SANITIZE STREQUAL "thread")
        target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/threads/ClockJoin.cpp")
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${directory}" UNITY_BUILD OFF)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test tessarine_options)
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY "${directory}")
    # Image plugins ask for absurd sizes on broken files and live with a refusal, as malloc gives it.
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;HOME=${directory}/home;XDG_DATA_HOME=${directory}/home/.local/share;XDG_CONFIG_HOME=${directory}/home/.config;XDG_RUNTIME_DIR=${directory}/runtime;LANG=C.UTF-8;LC_ALL=C.UTF-8;ASAN_OPTIONS=detect_leaks=0:allocator_may_return_null=1;QT_LOGGING_RULES=qt.multimedia.*=false")
endfunction()
