# What every target of the project has in common: warnings, sanitizers, coverage.

add_library(tessaro_build_flags INTERFACE)
target_compile_definitions(tessaro_build_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
target_compile_options(tessaro_build_flags INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
    $<$<BOOL:${TESSARO_WERROR}>:-Werror>
    $<$<BOOL:${TESSARO_SANITIZE}>:-fsanitize=address,undefined -fno-sanitize-recover=undefined
                                  -fno-omit-frame-pointer>
    $<$<BOOL:${TESSARO_FUZZ}>:-fsanitize=fuzzer-no-link>
    $<$<BOOL:${TESSARO_COVERAGE}>:--coverage -fprofile-update=atomic>)
target_link_options(tessaro_build_flags INTERFACE
    $<$<BOOL:${TESSARO_SANITIZE}>:-fsanitize=address,undefined>
    $<$<BOOL:${TESSARO_COVERAGE}>:--coverage>)

# tessaro_target_defaults(TARGET): marks TARGET as the project's own code, built under its flags.
function(tessaro_target_defaults target)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tessaro_build_flags>)
endfunction()
