# What all of our own targets are compiled with. GoogleTest is built without it.
add_library(house_rules INTERFACE)
target_include_directories(house_rules INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_compile_definitions(house_rules INTERFACE UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0601)
if(MSVC)
    target_compile_options(house_rules INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/W4 /permissive- /utf-8
                           /external:anglebrackets /external:W0>)
else()
    # COM interfaces have no virtual destructor on purpose, so -Wnon-virtual-dtor is left out.
    target_compile_options(house_rules INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wconversion -Wshadow
                           -Wold-style-cast -Wsuggest-override
                           -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
    # No time stamp: the same sources give the same bytes.
    target_link_options(house_rules INTERFACE -static -Wl,--no-insert-timestamp)
endif()

# With mingw and 64 bits only.
option(EFFECT_SETTINGS_CHECKED "Stop at undefined behaviour and at bad accesses to memory" OFF)
if(EFFECT_SETTINGS_CHECKED)
    target_compile_options(house_rules INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined
                           -fsanitize-undefined-trap-on-error>)
    # Each module has allocations of its own.
    set(guard_pages ${CMAKE_SOURCE_DIR}/tests/guard_pages.cpp)
endif()

# A library of our own sources; the kind is STATIC or OBJECT.
function(effect_settings_library name kind)
    add_library(${name} ${kind} ${ARGN})
    target_link_libraries(${name} PUBLIC house_rules)
    set_target_properties(${name} PROPERTIES COMPILE_WARNING_AS_ERROR ON)
endfunction()

# A console program of our own sources.
function(effect_settings_program name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE house_rules)
    set_target_properties(${name} PROPERTIES COMPILE_WARNING_AS_ERROR ON)
endfunction()
