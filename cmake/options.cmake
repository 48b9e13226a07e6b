# What all of our own targets are compiled with. GoogleTest is built without it.
add_library(effect_settings_options INTERFACE)
target_include_directories(effect_settings_options INTERFACE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/include)
target_compile_definitions(effect_settings_options INTERFACE UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0601)
if(MSVC)
    target_compile_options(effect_settings_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/W4 /permissive- /utf-8
                           /external:anglebrackets /external:W0>)
else()
    # COM interfaces have no virtual destructor on purpose, so -Wnon-virtual-dtor is left out.
    target_compile_options(effect_settings_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wconversion
                           -Wsign-conversion -Wshadow -Wold-style-cast -Wsuggest-override
                           -ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>)
    target_link_options(effect_settings_options INTERFACE -static)
endif()

# A static library of our own sources.
function(effect_settings_library name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PUBLIC effect_settings_options)
    set_target_properties(${name} PROPERTIES COMPILE_WARNING_AS_ERROR ON)
endfunction()

# A console program of our own sources.
function(effect_settings_program name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE effect_settings_options)
    set_target_properties(${name} PROPERTIES COMPILE_WARNING_AS_ERROR ON)
endfunction()
