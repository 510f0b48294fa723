# Settings that every target of this project shares.
add_library(quorlane_settings INTERFACE)
target_include_directories(quorlane_settings INTERFACE "${CMAKE_SOURCE_DIR}"
                                                       "${CMAKE_BINARY_DIR}/generated")
target_compile_options(
    quorlane_settings
    INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Wnon-virtual-dtor
              -Woverloaded-virtual $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
              $<$<BOOL:${QUORLANE_WERROR}>:-Werror>)
# -Wrestrict: g++ 12 warns of every text put in front of a std::string (its bug 105329).
target_compile_definitions(quorlane_settings INTERFACE SPDLOG_FMT_EXTERNAL)
# -Wmaybe-uninitialized: instrumented code makes g++ 12 see it inside std::regex.
if(QUORLANE_SANITIZE)
    target_compile_options(quorlane_settings INTERFACE -fsanitize=address,undefined
                                                       -fno-omit-frame-pointer
                                                       -fno-sanitize-recover=undefined
                                                       $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(quorlane_settings INTERFACE -fsanitize=address,undefined)
endif()

if(QUORLANE_FUZZ)
    target_compile_options(quorlane_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quorlane_library(NAME SOURCES ... LIBRARIES ...): one folder's static library.
function(quorlane_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC quorlane_settings ${arg_LIBRARIES})
    target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
endfunction()
